// What a screen reader calls an element, as it stands now.
#pragma once

#include "core/game.h"

#include <string>

namespace hustle {

// UTF-8; empty for an element that has nothing to say.
std::string spoken_name(const game&, element);

} // namespace hustle
