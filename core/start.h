// Start-up, the way out, and the two stored files.
#pragma once

#include "core/game.h"

#include <string>

namespace hustle {

// Puts the whole machine into the state of a process that has just started, with no screen
// loaded. `clock` is ms since midnight.
void reset_game(game&, std::int64_t clock);

void software_load(game&); // reads both files, opens the tune
void main_load(game&);
void main_focus(game&);
void exitroutine(game&);

void readfiles(game&);
void savegame(game&);  // both files
void savetable(game&); // hscore.dat alone

// The text of the two files.
std::string game_text(const machine&);
std::string table_text(const machine&);
// False, with nothing changed, where the text is damaged.
bool read_game_text(machine&, std::string_view);
bool read_table_text(machine&, std::string_view);

// Gives the lines of main the colour of `ledcolour` and returns it; 0 outside 1 to 6.
colour led_colour(int ledcolour);

} // namespace hustle
