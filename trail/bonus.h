// The Bonus wheel, the stop button of main, the run-up to the board, the repeat chance, the roll.
#pragma once

#include "core/game.h"

#include <array>

namespace hustle {

// The words of the wheel; award n is wheel_texts[n - 1].
extern const std::array<std::string_view, 11> wheel_texts;

void bonuschance(game&);
void start_bonus(game&); // ticks
void start_superbonus(game&);
void bonus_timer(game&);
void bonusnumbers(game&);

void stopperpress(game&); // the action of `stopper`

void feature_start(game&); // tick: main's run-up to the board

void start_repeatchance(game&); // ticks
void yes_no(game&);

void feature_start_letsspin(game&); // tick on the board: the hand-over
void rollem(game&);                 // tick
void roll_stop(game&);              // the stop button during the roll

} // namespace hustle
