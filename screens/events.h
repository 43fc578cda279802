// Events one by one, for who tells each of them apart: the changes of focus that an event causes stay
// waiting in the panel until they are taken (`take_focus_event`) and run.
#pragma once

#include "screens/dispatch.h"

namespace hustle {

// One input without the changes of focus that it causes; false when it was ignored.
bool apply_alone(game&, const input&);
// One tick's handler.
void run_tick(game&, timer);
// One change of focus; false when the screen has no such handler or is gone.
bool run_focus(game&, const focus_event&);
// All waiting changes of focus. Hardly a tick causes one, and all ask.
void run_waiting_focus(game&);
inline void settle(game& g) {
    if (g.p.focus_waiting > 0)
        run_waiting_focus(g);
}

} // namespace hustle
