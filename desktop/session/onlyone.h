// One program at a time on the same two files. The lock dies with its process; a second program can
// ask the first to come to the front.
#pragma once

#include "desktop/platform/ear.h"

#include <QLockFile>
#include <QString>

#include <functional>
#include <memory>

namespace hustle::desktop {

struct only_one {
    std::unique_ptr<QLockFile> lock;
    open_ear ear;
};

// True where the folder's files are ours: nobody else plays on them, or no lock can stand there.
bool claim_folder(only_one&, const QString& folder);
// What a second program asks of the first: to come to the front, and to flash as its own options said.
enum class wish : char { to_front = '.', reduced_flashing = 'r', full_flashing = 'f' };
// Calls back when another program asks us.
void listen_for_calls(only_one&, const QString& folder, const std::function<void(wish)>& called);
// Asks the program that holds the folder; false where nobody answers.
bool call_to_front(const QString& folder, wish with);

enum class second { to_front, play_unsaved, leave };
// What the second program shall do; a box of the window's own.
second ask_second(bool first_is_deaf);

} // namespace hustle::desktop
