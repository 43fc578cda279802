// What the elements of the panel are called aloud.
#pragma once

#include "core/game.h"

#include <QString>

namespace hustle::desktop {

// The name of an element with its state; empty for decoration.
QString spoken_name(const game&, element);

} // namespace hustle::desktop
