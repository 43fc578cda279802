// The Bonus wheel, the stop button of main, the run-up to the board, the repeat chance, the roll.
#pragma once

#include "core/game.h"

#include <array>

namespace hustle {

// The words of the wheel; award n is wheel_texts[n - 1].
extern const std::array<std::string_view, 11> wheel_texts;

void bonuschance(game&);

void stopperpress(game&); // the action of `stopper`

void roll_stop(game&); // the stop button during the roll

} // namespace hustle
