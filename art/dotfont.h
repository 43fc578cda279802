// The letters of the dot-matrix lines: five columns by seven rows of dots.
#pragma once

#include <array>
#include <cstdint>

namespace hustle {

inline constexpr int glyph_columns = 5;
inline constexpr int glyph_rows = 7;

struct glyph {
    char32_t letter;
    // From the top; of a row the dot at the left is the highest of five bits.
    std::array<std::uint8_t, glyph_rows> rows;
};

// The glyph of a letter. A letter with an accent is shown without it; one that is not in the font
// is an empty box.
const glyph& glyph_of(char32_t letter);

} // namespace hustle
