// Holds, cancel, and the three texts that go with them.
#pragma once

#include "core/game.h"

namespace hustle {

void holdpress1(game&);
void holdpress2(game&);
void holdpress3(game&);
void cancelpress(game&);
void pairhold(game&);

} // namespace hustle
