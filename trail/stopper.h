// The stop button of main. It has no meaning of its own: it stops what is running.
#pragma once

#include "core/game.h"

namespace hustle {

void stopperpress(game&); // the action of `stopper`

// What a press does to each game that it stops.
void climb_stop(game&);
void trailskill_stop(game&);
void trailstopper_stop(game&);
void selector_stop(game&);
void roll_stop(game&);

} // namespace hustle
