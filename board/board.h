// The feature board: its opening, the two ladders, the die and the ring, the gamble, the exit.
#pragma once

#include "core/game.h"
#include "panel/prizes.h"

namespace hustle {

void feature_load(game&);
void feature_focus(game&);
void feature_unload(game&);

// Ring and ladders. Squares run 1 to 24, rungs 1 to 10 from the bottom.
void light_square(game&, int n);
void dark_square(game&, int n);
void lightallsquares(game&);
void darkallsquares(game&);
void light_cash(game&, int rung);
void dark_cash(game&, int rung);
bool cash_is_dark(const game&, int rung);
void light_feature(game&, int rung);
void dark_feature(game&, int rung);
single cash_value(int rung); // pounds; rung 4 reads 2.40 and is worth 3.00
count rung_of(single win);   // 0 where no rung from 1 to 9 has that value
void lightcashvalue(game&);
void fillcashladder(game&);
void clearcashladder(game&);
void clearfeatureladder(game&);
void lightfeaturerung(game&);
void lightladders(game&);
void resetboardlabels(game&);
void enterfeature(game&);
void feature_darkbuttons(game&);
void feature_enablebuttons(game&);
bool board_chain_runs(const game&); // a second chain would start beside it: presses change nothing

// Presses.
void feature_startpress(game&);
void exchangepress(game&);
void cashpress(game&);
void featurepress(game&);
void shotpress(game&);
void hipress(game&);
void lopress(game&);
void collectpress(game&);

// Die, ring, ladders.
void beginmove(game&);
void rolldice(game&);
void landsquare(game&);
void landed(game&);    // after landsquare: the four buttons come back unless something runs
void lightbomb(game&); // the next of the three bombs
void playgameover(game&);
void mysterysquare(game&);
void takecash(game&);
void takefeature(game&);
void takeshots(game&);
void judgegamble(game&);
void gamblewin(game&);
void jackpotrepeater(game&);

} // namespace hustle
