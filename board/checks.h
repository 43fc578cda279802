// The draws that the die refuses: each is drawn again.
#pragma once

#include "core/game.h"

namespace hustle {

bool call_wins(const board&);      // the die shown against the call of the gamble
bool call_is_refused(const game&); // in the gamble, of the die shown
bool roll_is_refused(const game&); // on the ring, of the die shown from the square of the token

} // namespace hustle
