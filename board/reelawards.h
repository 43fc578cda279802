// The awards that are played on the reels of main with no stake.
#pragma once

#include "core/game.h"

namespace hustle {

// The frames of GET READY that every hand-over shows, by step 10 to 21; nothing at another step.
void get_ready_line(game&, int step);

void sevenspin(game&);
void pickspin(game&);
void winspin(game&);
void streakspin(game&);

void take_pick(game&); // On the Run ends with the prize on show

} // namespace hustle
