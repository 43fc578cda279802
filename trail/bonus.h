// The Bonus: its chance and its wheel.
#pragma once

#include "core/game.h"

#include <array>

namespace hustle {

// The words of the wheel; award n is wheel_texts[n - 1].
extern const std::array<std::string_view, 11> wheel_texts;

// The Bonus comes, unless there is a win or the Number Runner runs; one in ten is the true
// skill Bonus.
void bonuschance(game&);

} // namespace hustle
