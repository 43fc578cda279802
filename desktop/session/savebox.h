// What the player is told, and asked, about the two stored files. None of it is the machine's.
#pragma once

#include <QString>

#include <string>

namespace hustle::desktop {

// A file is there and cannot be read.
void tell_unreadable(const QString& folder, const QString& file, const QString& why);
// At the start: nothing can be saved where the files belong.
void tell_no_place(const QString& folder, const QString& why);
// While play goes on: the ledgers could not be saved. Nothing waits for this box.
void note_unsaved(const QString& folder, const QString& why);
// A save has failed. The folder to try next, which may be the same one; empty to do without.
std::string ask_where_to_save(const QString& folder, const QString& file, const QString& why);

} // namespace hustle::desktop
