// The buttons of the board as lamps: each has a dark and a lit look.
#pragma once

#include "core/game.h"

namespace hustle {

void show_dark(game&, element button);
void show_lit(game&, element button);
void shut(game&, element button); // disabled and dark

} // namespace hustle
