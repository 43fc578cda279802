// The road of one play: the start press, the reel run, what follows the last reel.
#pragma once

#include "core/game.h"

namespace hustle {

void startpress(game&); // the action of `start`
void resetplay(game&);
void darkbuttons(game&);
void clearholds(game&);
void afterreels(game&);         // the last reel of a normal play has stopped
bool machine_busy(const game&); // a press of `start` changes nothing

// pcent from moneyout and moneyin: plain, and only where both are above 0.
void refresh_pcent(machine&);
void refresh_pcent_guarded(machine&);

} // namespace hustle
