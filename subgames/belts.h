// The ten belts of the money belt.
#pragma once

#include <string_view>

namespace hustle {

inline constexpr int belt_prices = 27; // on a belt
inline constexpr int belts_each = 5;   // belts of an award
inline constexpr int belt_length = 247;

// A belt as it runs across the line: nine blanks, then the prices of four characters ("0.60") with
// five blanks between them. `row` is 1 to 5.
std::string_view creepy_belt(int row);
std::string_view super_belt(int row);

} // namespace hustle
