#include "subgames/belts.h"

#include <array>
#include <cstddef>

namespace hustle {

namespace {

using price_row = std::array<int, belt_prices>; // pence
using belt_text = std::array<char, belt_length>;

static_assert(belt_length == 9 + 4 * belt_prices + 5 * (belt_prices - 1));

// clang-format off
constexpr price_row creepy_prices[belts_each] = {
    { 60,  40,  80,  20, 100,  60,  40,  90,  60, 110,  30,  20, 110,  50,
      80,  20, 270,  60,  20,  20,  20,  40, 200,  20,  80,  30, 100},
    { 20,  80, 100, 100,  60, 100,  40,  20,  40, 130,  30,  40, 120,  30,
      80, 100, 160,  40,  80,  20,  40,  40, 200, 220,  80,  30, 200},
    {100,  60,  20, 220,  20,  40,  60, 110,  80,  80,  30,  20, 110,  50,
      80,  20, 150,  20, 120, 120,  40,  60, 220,  20,  20,  10,  80},
    { 40,  60, 120, 120,  80,  20,  60, 120,  80,  80,  30,  20, 100,  60,
      60,  20,  40,  20,  80,  40,  80,  20, 100,  20,  40,  20, 100},
    { 80,  20, 160,  20,  80, 120,  60,  90,  20, 300,  40,  40, 120,  20,
      80,  40,  60,  80,  80,  40,  80,  20,  40,  20, 300,  20, 300},
};

constexpr price_row super_prices[belts_each] = {
    {240, 100, 180,  60, 100,  60, 240,  90, 260, 110, 100, 220, 320, 150,
      60, 120, 370,  60, 120, 120,  80, 140, 200,  20, 480, 130, 200},
    {100, 140, 200, 180, 100, 160, 140,  80, 240, 110,  30, 420, 110, 150,
      80, 220, 370,  60, 160, 120,  60, 120, 200,  20, 800, 140, 100},
    {200, 120, 220,  40, 200, 260, 220,  70, 200, 140, 160, 200, 120, 300,
      60, 320, 370, 160, 120, 120,  80, 400, 160,  20, 480, 130,  20},
    {220, 160, 140, 200, 110, 160, 140,  60, 220, 110,  30, 420, 400, 150,
      80, 420, 370,  60, 180, 120,  80, 140, 200,  20, 280, 120,  80},
    {150, 180, 180, 220, 100, 260, 120,  50, 160, 120, 200, 320, 160, 200,
      60, 540, 120, 260, 120, 120,  60, 140, 240,  20, 460, 220, 100},
};
// clang-format on

consteval belt_text lay(const price_row& prices) {
    belt_text text{};
    text.fill(' ');
    std::size_t at = 0;
    for (int pence : prices) {
        at += at == 0 ? 9 : 5;
        text[at++] = static_cast<char>('0' + pence / 100);
        text[at++] = '.';
        text[at++] = static_cast<char>('0' + pence / 10 % 10);
        text[at++] = static_cast<char>('0' + pence % 10);
    }
    return text;
}

consteval std::array<belt_text, belts_each> lay_all(const price_row (&rows)[belts_each]) {
    std::array<belt_text, belts_each> belts{};
    for (std::size_t i = 0; i < belts.size(); ++i)
        belts[i] = lay(rows[i]);
    return belts;
}

constexpr std::array<belt_text, belts_each> creepy = lay_all(creepy_prices);
constexpr std::array<belt_text, belts_each> super = lay_all(super_prices);

std::string_view text_of(const belt_text& belt) { return {belt.data(), belt.size()}; }

} // namespace

std::string_view creepy_belt(int row) { return text_of(creepy[static_cast<std::size_t>(row - 1)]); }
std::string_view super_belt(int row) { return text_of(super[static_cast<std::size_t>(row - 1)]); }

} // namespace hustle
