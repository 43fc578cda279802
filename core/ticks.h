// The handlers of all timers, declared from the rows of panel/timers.def; each is defined in the room
// that its chain belongs to. A row whose handler is missing does not link.
#pragma once

#include "core/game.h"

namespace hustle {

#define TIMER(name, where, script, ms, start, keeps) void name(game&);
#include "panel/timers.def"
#undef TIMER

} // namespace hustle
