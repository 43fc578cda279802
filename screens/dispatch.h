// The one place where events reach the machine: presses, keys, ticks, changes of focus. The tables
// that join a screen's rows to their handlers stand behind it.
//
// A front end: `reset_game`, then `boot`; then, again and again, `apply` for each input and
// `deliver` up to the machine's clock. Each of these runs the changes of focus that it has caused
// before it returns. Who tells each event apart, as scripts do, finds the single ones in
// screens/events.h.
#pragma once

#include "core/game.h"

#include <cstdint>
#include <string_view>

namespace hustle {

struct input {
    enum class kind : std::uint8_t {
        press, // the mouse on an element (down for a button, a click for others)
        key,   // a key on a screen
        type,  // the contents of a text box replaced
        close, // a window's own close
        show,  // a loaded screen brought to the front
    } what;
    screen where = screen::main; // of key, close, show
    element on = element::total; // of press, type
    int code = 0;                // of key: a Windows virtual-key code
    std::string_view text = {};  // of type
};

// Start-up: the splash is loaded and shown; it hands over to main by its timer.
void boot(game&);

// Applies one input, and the changes of focus that it causes; false when it was ignored (screen not
// loaded, element hidden, disabled or with no action).
bool apply(game&, const input&);

// Delivers every tick due at `until` or before, in order, each with the changes of focus that it
// causes, and leaves the clock at `until` or, after a blocking wait, later.
void deliver(game&, std::int64_t until);
// Delivers one tick due at `until` or before and names it in `which`; false when there is none.
bool deliver_one(game&, std::int64_t until, timer& which);

} // namespace hustle
