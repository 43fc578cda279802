// What a line wins, in pounds, for the machine and for the pictures of it.
#pragma once

#include "panel/word.h"

namespace hustle {

inline constexpr float jackpot_win = 15;

struct line_row {
    word symbol; // three of it on the win line
    float prize;
};
inline constexpr line_row line_rows[] = {
    // the best first
    {"bell", jackpot_win}, {"rseven", 8}, {"bseven", 6}, {"bar", 5},
    {"melon", 4},          {"cherry", 2}, {"pound", 1},
};
inline constexpr float mixed_sevens_prize = 1.60F; // three sevens, not all of one colour

} // namespace hustle
