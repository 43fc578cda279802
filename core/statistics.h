// The engineer's view of the machine: money in and out, the percentage against its target, the
// funds; and the refill that puts the ledgers back to those of a fresh machine.
#pragma once

#include "core/game.h"

namespace hustle {

void statistics_back(game&);  // Picture1
void statistics_reset(game&); // Picture2
void statistics_blur(game&);  // the screen has been covered: it closes

} // namespace hustle
