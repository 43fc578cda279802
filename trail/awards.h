// What the eleven awards of the Bonus wheel do when the stop button takes them.
#pragma once

#include "core/game.h"

namespace hustle {

// Carries out award `bonuspick`; a number outside 1 to 11 does nothing.
void takebonus(game&);

} // namespace hustle
