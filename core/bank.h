// Money between `win`, `bank` and `credits`, and the line that shows it.
#pragma once

#include "core/game.h"

namespace hustle {

void figuresline(game&); // the resting text: bank at the left, credits at the right
void payline(game&);     // bank, win and credits during a payout
void transferpress(game&);
void newgamepress(game&);
void startnewgame(game&);
// The bank becomes a score: it is at least 1.00 and above the tenth of the table.
bool score_counts(const game&);
void endgame(game&); // hands the score to the name form

} // namespace hustle
