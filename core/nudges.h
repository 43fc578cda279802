// Nudges: the offer, the three kinds of figure, the adding, the nudging.
#pragma once

#include "core/game.h"

namespace hustle {

void offernudges(game&);
void nudgereel1(game&);
void nudgereel2(game&);
void nudgereel3(game&);

} // namespace hustle
