// The Options menu: each group of entries is one stored setting and works like radio buttons.
#pragma once

#include "core/game.h"

namespace hustle {

// Ticks the entries of the stored settings and unticks all others. A number or a currency that no
// entry stands for leaves its group without a tick; any other word counts as "off" or "no".
void tickoptions(game&);

// Stores what an entry of the menu stands for and ticks it; false where it is no option.
bool chooseoption(game&, element entry);

} // namespace hustle
