// The number trail: nine lamps, the run up to a value, the trail hold, the reset walk, and the
// games of the stop button that place the trail.
#pragma once

#include "core/game.h"
#include "core/upward.h" // starttrailrun, traildark

namespace hustle {

// Lamp n, 1 to 9.
bool lamp_lit(const game&, int n);
void light_lamp(game&, int n);
void dark_lamp(game&, int n);
void light_lamps_to(game&, int n); // lamps 1 to n; the ninth is the last whatever n is
void dark_lamps_to(game&, int n);
// The lowest dark lamp of a stretch of the trail; 0 where all are lit.
int lowest_dark(const game&, int first, int last);
void traillit(game&);
void trailholdchance(game&);
// Lamp 9 has been reached: `win` becomes at least 1.00 and the run-up to the board begins.
void fulltrail(game&);

} // namespace hustle
