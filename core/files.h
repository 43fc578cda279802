// The two stored files, game.dat and hscore.dat: one value to a line, lines ended by CR LF, words in
// double quotes. What stands in them is marked * in the machine's record.
#pragma once

#include "core/game.h"

#include <string>

namespace hustle {

// Both files into the machine. One that is not there, or that is damaged, leaves its part as on the very
// first start; a damaged one is set aside before, and a box says so.
void readfiles(game&);
void savegame(game&);  // both files; a box says which could not be saved
void savetable(game&); // hscore.dat alone

// The text of the two files.
std::string game_text(const machine&);
std::string table_text(const machine&);
// False, with nothing changed, where the text is damaged.
bool read_game_text(machine&, std::string_view);
bool read_table_text(machine&, std::string_view);

} // namespace hustle
