// The win table, the hold offers and the promised line.
#pragma once

#include "core/game.h"

namespace hustle {

// What three symbols pay on the win line, in pounds; 0 where they are no line.
single line_prize(word, word, word);
bool forms_pair(word, word);                 // the last three letters agree: a red and a blue seven pair
bool pair_beside(const machine&, int which); // the two reels other than this one form a pair
// What the three symbols on the win line pay, in pounds; 0 where they are no line.
single line_prize(const machine&);
void checkline(game&);
void offerholds(game&);
void offerdontholdany(game&);
void spinforcedline(game&);
void forcedstep1(game&);
void forcedstep2(game&);
void forcedstep3(game&);

} // namespace hustle
