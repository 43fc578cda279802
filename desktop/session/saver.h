// Saves the ledgers while play goes on, on a thread of its own, so that no frame waits for the disk.
// Of texts that come faster than the disk takes them the newest is saved.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace hustle::desktop {

struct saver {
    std::string folder, name; // of the file
    // Told after each save, on the saver's own thread: why it failed, or empty.
    std::function<void(std::string)> saved;

    std::mutex lock; // of the two below
    std::condition_variable_any changed;
    std::optional<std::string> waiting;
    bool at_work = false;
    std::jthread worker; // last: it ends before the rest goes
};

void save_soon(saver&, std::string text);
// Returns when nothing is waiting or being written any more.
void finish(saver&);

} // namespace hustle::desktop
