// The neutral panel: what is shown and what runs. It holds the state of every element, fires
// timers in a fixed order and remembers which screens stand open; it draws nothing. The logic
// reads lamps back, so what was set here is state of the game.
#pragma once

#include "panel/ids.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace hustle {

using colour = std::uint32_t; // 0x00BBGGRR

struct element_state {
    std::string text;       // caption of a label or line, contents of a text box; UTF-8
    int top = 0;            // twips; a pixel is 15 twips
    colour back = 0;        // of a label
    colour fore = 0;        // of a label
    colour activecolor = 0; // of the lit dots of a line
    art picture = art::none;
    bool enabled = true; // a disabled button takes no press and keeps its look
    bool visible = true;
    bool checked = false;   // the tick of a menu entry
    bool lineflash = false; // the second look of a line
    bool touched = true;    // changed since a front end last drew it; the front end clears it
};

struct focus_event {
    screen where;
    bool front; // true: it has come to the front; false: it has been covered
};

struct armed_timer {
    std::int64_t due; // ms on the panel's clock
    timer what;
};

struct panel {
    std::array<element_state, element_count> elements;

    // Running timers, soonest first; of two due together, the one armed first.
    std::array<armed_timer, timer_count> queue{};
    int queued = 0;
    std::array<int, timer_count> intervals{}; // ms
    std::array<bool, timer_count> running{};

    std::int64_t now = 0;            // ms since the start of the process
    std::int64_t clock_at_start = 0; // ms since midnight when the process started

    std::array<bool, screen_count> loaded{};
    std::array<std::string, screen_count> titles;
    std::array<screen, screen_count> shown{}; // the screens on show, the front one last
    int shown_count = 0;
    std::array<focus_event, 32> focus_events{}; // waiting to be run, oldest first
    int focus_waiting = 0;

    bool dollars = false; // the twelve reel pictures with a pound show their dollar versions
    bool over = false;    // the program has ended: nothing happens any more
};

// Puts every element and timer of every screen into its stored state, all screens unloaded.
void reset_panel(panel&);

// Elements. All are immediate and cannot fail.
inline element_state& at(panel& p, element e) { return p.elements[static_cast<std::size_t>(e)]; }
inline const element_state& at(const panel& p, element e) { return p.elements[static_cast<std::size_t>(e)]; }
template <class Value> void change(panel& p, element id, Value element_state::*what, Value value) {
    element_state& e = at(p, id);
    if (e.*what == value)
        return;
    e.*what = value;
    e.touched = true;
}
inline void set_picture(panel& p, element e, art a) { change(p, e, &element_state::picture, a); }
inline void set_back(panel& p, element e, colour c) { change(p, e, &element_state::back, c); }
inline void set_fore(panel& p, element e, colour c) { change(p, e, &element_state::fore, c); }
inline void set_activecolor(panel& p, element e, colour c) { change(p, e, &element_state::activecolor, c); }
inline void set_lineflash(panel& p, element e, bool on) { change(p, e, &element_state::lineflash, on); }
inline void set_checked(panel& p, element e, bool on) { change(p, e, &element_state::checked, on); }
inline void set_enabled(panel& p, element e, bool on) { change(p, e, &element_state::enabled, on); }
inline void set_visible(panel& p, element e, bool on) { change(p, e, &element_state::visible, on); }
inline void set_top(panel& p, element e, int twips) { change(p, e, &element_state::top, twips); }
void set_caption(panel&, element, std::string_view);
void set_title(panel&, screen, std::string_view);
inline void enable(panel& p, element e) { set_enabled(p, e, true); }
inline void disable(panel& p, element e) { set_enabled(p, e, false); }
inline void show(panel& p, element e) { set_visible(p, e, true); }
inline void hide(panel& p, element e) { set_visible(p, e, false); }
inline bool shows(const panel& p, element e, art a) { return at(p, e).picture == a; }
inline bool is_enabled(const panel& p, element e) { return at(p, e).enabled; }
inline bool is_visible(const panel& p, element e) { return at(p, e).visible; }
inline std::string_view caption(const panel& p, element e) { return at(p, e).text; }
inline colour back(const panel& p, element e) { return at(p, e).back; }

// Timers. The first tick comes one interval after the start; starting a running timer changes
// nothing; setting the interval of a running timer arms it anew. A timer of a screen that is not
// loaded does not start.
void start_timer(panel&, timer);
void stop_timer(panel&, timer);
void set_interval(panel&, timer, int ms);
inline bool is_running(const panel& p, timer t) { return p.running[static_cast<std::size_t>(t)]; }
inline int interval(const panel& p, timer t) { return p.intervals[static_cast<std::size_t>(t)]; }

// When the next tick falls due; false when no timer runs.
inline bool next_due(const panel& p, std::int64_t& due) {
    if (p.queued == 0)
        return false;
    due = p.queue[0].due;
    return true;
}
// Takes the next tick that is due at `until` or before: moves the clock on to it, arms the timer
// again and names it in `which`. False when there is none.
bool take_tick(panel&, std::int64_t until, timer& which);

// Screens. `open_screen` puts the elements and intervals of a screen into their stored state and
// starts its timers; `show_screen` brings a loaded screen to the front; `close_screen` stops its
// timers and brings what lies beneath to the front. The events that a change of focus causes wait
// in `focus_events`. The logic loads and unloads by core/upward.h, which runs the screen's own
// routine as well.
void open_screen(panel&, screen);
void show_screen(panel&, screen);
void close_screen(panel&, screen);
inline bool is_loaded(const panel& p, screen s) { return p.loaded[static_cast<std::size_t>(s)]; }
// The screen in front; `main` where none is shown.
screen front(const panel&);
// Takes the oldest waiting change of focus; false when there is none.
bool take_focus_event(panel&, focus_event&);

} // namespace hustle
