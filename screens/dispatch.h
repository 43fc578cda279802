// The one place where events reach the machine: presses, keys, ticks, changes of focus. The tables
// that join a screen's rows to their handlers stand behind it.
//
// A front end: `reset_game`, then `boot`; then, again and again, `apply` for each input and
// `deliver` up to the machine's clock. After each of these the waiting changes of focus have run.
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

// Applies one input; false when it was ignored (screen not loaded, element hidden, disabled or
// with no action). The changes of focus that it causes stay waiting.
bool apply(game&, const input&);
// Runs one tick's handler.
void run_tick(game&, timer);
// Runs one change of focus; false when the screen has no such handler or is gone.
bool run_focus(game&, const focus_event&);
// Runs all waiting changes of focus.
void settle(game&);

// Delivers every tick due at `until` or before, in order, each followed by the changes of focus,
// and leaves the clock at `until` or, after a blocking wait, later.
void deliver(game&, std::int64_t until);
// Delivers one tick due at `until` or before; false when there is none.
bool deliver_one(game&, std::int64_t until);

// The press handler of an element; null where it has none.
using handler = void (*)(game&);
handler press_handler(element);
handler tick_handler(timer);

} // namespace hustle
