// Keeps what the player has on the disk while the machine plays: game.dat after each play and at
// once when an option changes. The machine itself saves at its exit alone and knows nothing of this.
#pragma once

#include <string>

namespace hustle::desktop {

struct session;

struct kept_ledgers {
    std::string text;     // game.dat as it was last given to the disk
    std::string options;  // the part of it that the menu changes
    bool failing = false; // the last save failed, and the player knows
};

void begin_ledgers(session&);
// To be called when something may have changed.
void keep_ledgers(session&);

} // namespace hustle::desktop
