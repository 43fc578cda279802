// The awards that are played on the reels of main with no stake.
#pragma once

#include "core/game.h"

namespace hustle {

// The frames of GET READY that every hand-over shows, by step 10 to 21; nothing at another step.
void get_ready_line(game&, int step);

void feature_start_sevenspinner(game&); // ticks on the board: the hand-overs
void feature_start_pickawin(game&);
void feature_start_winspins(game&);
void feature_start_winstreak(game&);
void feature_start_reelskill(game&);

void start_luckysevens(game&); // ticks on main: the waits
void start_pickawin(game&);
void start_winspins(game&);
void start_winstreak(game&);
void spinreel1(game&); // ticks on main: the spin
void spinreel2(game&);
void spinreel3(game&);

void sevenspin(game&);
void pickspin(game&);
void winspin(game&);
void streakspin(game&);

void take_pick(game&); // On the Run ends with the prize on show

} // namespace hustle
