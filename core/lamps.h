// The button lamps of main in play.
#pragma once

#include "core/game.h"

namespace hustle {

void butflash(game&); // tick

} // namespace hustle
