// Reel Skill: reel 1 stopped blind, reel 3 by eye, reel 2 by itself.
#pragma once

#include "core/game.h"

namespace hustle {

void reelskill_stop1(game&); // hold1 while reelskill runs
void reelskill_stop3(game&); // hold3 while reelskill2 runs

} // namespace hustle
