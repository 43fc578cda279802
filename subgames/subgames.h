// What the stop button of the board can stop.
#pragma once

#include "core/game.h"

namespace hustle {

void stoppress(game&); // the action of `stopfeature`
void lostboard(game&);

void shot(game&);
void drawshotprize(game&);

} // namespace hustle
