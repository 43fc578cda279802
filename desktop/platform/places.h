// Where things lie on the disk: the folder of the two stored files, and what ships with the
// program (waves, the tune, the help pages).
#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace hustle::desktop {

// The folder of game.dat and hscore.dat: HUSTLE_DATA where it is set; the program's own folder
// while that can be written to; otherwise the user's data folder. It is made if it is missing.
QString data_folder();

// A folder that ships with the program ("sounds", "help"): beside the program, or in the share
// folder of an installed one. Where there is none, the place beside the program.
QString shipped_folder(const QString& name);

// The whole contents of a file; nothing where it is not there or cannot be read.
std::optional<std::string> read_file(const QString& path);

// Replaces a file as a whole. Whatever happens on the way, the old text or the new one is there.
// False where the new text could not be stored; the old one then stands.
bool write_file(const QString& path, std::string_view text);

// Keeps a file under its name with ".damaged" added, in place of one kept before.
void set_file_aside(const QString& path);

} // namespace hustle::desktop
