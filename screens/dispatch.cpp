#include "screens/dispatch.h"

#include "core/upward.h"
#include "panel/sheet.h"
#include "screens/events.h"
#include "screens/handlers.h"
#include "screens/sidescreens.h"

#include <algorithm>

namespace hustle {

namespace {

bool press(game& g, element e) {
    if (!is_loaded(g.p, row(e).where) || !is_visible(g.p, e) || !is_enabled(g.p, e))
        return false;
    if (row(e).what == kind::entry) {
        menupress(g, e);
        return true;
    }
    const handler act = press_handler(e);
    if (act == nullptr)
        return false;
    act(g);
    return true;
}

bool type(game& g, element e, std::string_view text) {
    if (!is_loaded(g.p, row(e).where) || row(e).what != kind::textbox)
        return false;
    set_caption(g.p, e, text);
    return true;
}

} // namespace

void load_screen(game& g, screen s) {
    if (!is_loaded(g.p, s)) {
        open_screen(g.p, s);
        if (const handler load = routines(s).load)
            load(g);
    }
    if (is_loaded(g.p, s)) // its own load routine may have closed it again
        show_screen(g.p, s);
}

void unload_screen(game& g, screen s) {
    if (!is_loaded(g.p, s))
        return;
    if (const handler unload = routines(s).unload)
        unload(g);
    close_screen(g.p, s);
}

bool apply_alone(game& g, const input& in) {
    if (g.p.over)
        return false;
    switch (in.what) {
    case input::kind::press: return press(g, in.on);
    case input::kind::type: return type(g, in.on, in.text);
    case input::kind::key: return is_loaded(g.p, in.where) && keypress(g, in.where, in.code);
    case input::kind::close:
        if (!is_loaded(g.p, in.where))
            return false;
        routines(in.where).close(g);
        return true;
    case input::kind::show:
        if (!is_loaded(g.p, in.where))
            return false;
        show_screen(g.p, in.where);
        return true;
    }
    return false;
}

void run_tick(game& g, timer t) { tick_handler(t)(g); }

bool run_focus(game& g, const focus_event& event) {
    const handler act = event.front ? routines(event.where).focus : routines(event.where).blur;
    if (act == nullptr || !is_loaded(g.p, event.where) || g.p.over)
        return false;
    act(g);
    return true;
}

void run_waiting_focus(game& g) {
    focus_event event{};
    while (take_focus_event(g.p, event))
        run_focus(g, event);
}

void boot(game& g) {
    load_screen(g, screen::software);
    settle(g);
}

bool apply(game& g, const input& in) {
    const bool taken = apply_alone(g, in);
    settle(g);
    return taken;
}

bool deliver_one(game& g, std::int64_t until, timer& which) {
    if (g.p.over || !take_tick(g.p, until, which))
        return false;
    run_tick(g, which);
    settle(g);
    return true;
}

void deliver(game& g, std::int64_t until) {
    timer tick{};
    while (deliver_one(g, until, tick)) {
    }
    if (!g.p.over)
        g.p.now = std::max(g.p.now, until);
}

} // namespace hustle
