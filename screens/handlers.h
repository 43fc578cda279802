// The tables that join screens, elements and timers to their handlers.
#pragma once

#include "core/game.h"

namespace hustle {

struct screen_routines {
    screen id;
    handler load = nullptr;   // after the stored state is set, before it is shown
    handler unload = nullptr; // before its timers stop
    handler focus = nullptr;  // it has come to the front
    handler blur = nullptr;   // it has been covered
    handler close = nullptr;  // its window's own close
};
const screen_routines& routines(screen);

handler tick_handler(timer);
handler press_handler(element); // null where it has none

// A key on a screen; false where it means nothing or its button is disabled.
bool keypress(game&, screen, int code);

} // namespace hustle
