// Start-up and the way out.
#pragma once

#include "core/game.h"

namespace hustle {

// Puts the whole machine into the state of a process that has just started, with no screen
// loaded. `clock` is ms since midnight.
void reset_game(game&, std::int64_t clock);

void software_load(game&); // reads both files, opens the tune
void main_load(game&);
void main_focus(game&);
void exitroutine(game&);

// Gives the lines of main the colour of `ledcolour` and returns it; 0 outside 1 to 6.
colour led_colour(int ledcolour);

} // namespace hustle
