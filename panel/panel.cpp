#include "panel/panel.h"

#include "panel/sheet.h"

#include <algorithm>

namespace hustle {

namespace {

void store_element(panel& p, const element_row& r) {
    element_state& e = at(p, r.id);
    if (e.text != r.text) // few screens are left with a text other than the one they come with
        e.text = r.text;
    e.top = r.place.top;
    e.back = r.back;
    e.fore = r.what == kind::line ? 0 : r.fore;
    e.activecolor = r.what == kind::line ? r.fore : 0;
    e.picture = r.picture;
    e.enabled = r.enabled;
    e.visible = r.visible;
    e.checked = false;
    e.lineflash = false;
    e.touched = true;
}

// Puts a running timer into the queue, behind all that are due at the same time.
void arm(panel& p, timer t, std::int64_t due) {
    int place = p.queued++;
    while (place > 0 && p.queue[static_cast<std::size_t>(place - 1)].due > due) {
        p.queue[static_cast<std::size_t>(place)] = p.queue[static_cast<std::size_t>(place - 1)];
        --place;
    }
    p.queue[static_cast<std::size_t>(place)] = {due, t};
}

void disarm(panel& p, timer t) {
    const auto end = p.queue.begin() + p.queued;
    const auto found = std::find_if(p.queue.begin(), end, [t](const armed_timer& a) { return a.what == t; });
    if (found == end)
        return;
    std::move(found + 1, end, found);
    --p.queued;
}

void tell_focus(panel& p, screen s, bool comes_to_front) {
    if (p.focus_waiting < static_cast<int>(p.focus_events.size()))
        p.focus_events[static_cast<std::size_t>(p.focus_waiting++)] = {s, comes_to_front};
}

void take_from_stack(panel& p, screen s) {
    const auto end = p.shown.begin() + p.shown_count;
    const auto found = std::find(p.shown.begin(), end, s);
    if (found == end)
        return;
    std::move(found + 1, end, found);
    --p.shown_count;
}

} // namespace

void reset_panel(panel& p) {
    const std::int64_t clock_at_start = p.clock_at_start;
    p = panel{};
    p.clock_at_start = clock_at_start;
    for (const screen_row& s : screen_rows()) {
        p.titles[static_cast<std::size_t>(s.id)] = s.title;
        for (const element_row& r : elements_of(s.id)) {
            if (r.what == kind::line)
                at(p, r.id).text.reserve(256); // the longest text is a belt: no line grows in play
            store_element(p, r);
        }
    }
    for (std::size_t t = 0; t < timer_count; ++t)
        p.intervals[t] = row(static_cast<timer>(t)).interval;
}

void set_caption(panel& p, element e, std::string_view text) {
    element_state& state = at(p, e);
    if (state.text.size() != text.size())
        state.text = text;
    else if (state.text != text) // most often a line whose figures have changed
        std::copy(text.begin(), text.end(), state.text.begin());
    else
        return;
    state.touched = true;
}

void set_title(panel& p, screen s, std::string_view text) { p.titles[static_cast<std::size_t>(s)] = text; }

void start_timer(panel& p, timer t) {
    bool& running = p.running[static_cast<std::size_t>(t)];
    if (running || !is_loaded(p, row(t).where))
        return;
    running = true;
    arm(p, t, p.now + interval(p, t));
}

void stop_timer(panel& p, timer t) {
    bool& running = p.running[static_cast<std::size_t>(t)];
    if (!running)
        return;
    running = false;
    disarm(p, t);
}

void set_interval(panel& p, timer t, int ms) {
    p.intervals[static_cast<std::size_t>(t)] = ms;
    if (!is_running(p, t))
        return;
    disarm(p, t);
    arm(p, t, p.now + ms);
}

bool take_tick(panel& p, std::int64_t until, timer& which) {
    if (p.queued == 0 || p.queue[0].due > until)
        return false;
    const armed_timer tick = p.queue[0];
    p.now = std::max(p.now, tick.due);
    const int pause = interval(p, tick.what);
    const std::int64_t next = tick.due + pause < p.now ? p.now + pause : tick.due + pause;
    // It goes behind all that are due by then, which move up by one.
    const auto count = static_cast<std::size_t>(p.queued);
    std::size_t place = 1;
    for (; place < count && p.queue[place].due <= next; ++place)
        p.queue[place - 1] = p.queue[place];
    p.queue[place - 1] = {next, tick.what};
    which = tick.what;
    return true;
}

void open_screen(panel& p, screen s) {
    p.loaded[static_cast<std::size_t>(s)] = true;
    p.titles[static_cast<std::size_t>(s)] = row(s).title;
    for (const element_row& r : elements_of(s))
        store_element(p, r);
    for (std::size_t t = 0; t < timer_count; ++t) {
        const timer_row& r = row(static_cast<timer>(t));
        if (r.where != s)
            continue;
        p.intervals[t] = r.interval;
        if (r.at_start)
            start_timer(p, r.id);
    }
}

void show_screen(panel& p, screen s) {
    if (p.shown_count > 0 && front(p) == s)
        return;
    const bool covers = p.shown_count > 0;
    const screen covered = front(p);
    take_from_stack(p, s);
    p.shown[static_cast<std::size_t>(p.shown_count++)] = s;
    tell_focus(p, s, true);
    if (covers)
        tell_focus(p, covered, false);
}

void close_screen(panel& p, screen s) {
    const bool was_front = p.shown_count > 0 && front(p) == s;
    for (std::size_t t = 0; t < timer_count; ++t)
        if (row(static_cast<timer>(t)).where == s)
            stop_timer(p, static_cast<timer>(t));
    p.loaded[static_cast<std::size_t>(s)] = false;
    take_from_stack(p, s);
    if (was_front && p.shown_count > 0)
        tell_focus(p, front(p), true);
}

screen front(const panel& p) {
    return p.shown_count > 0 ? p.shown[static_cast<std::size_t>(p.shown_count - 1)] : screen::main;
}

bool take_focus_event(panel& p, focus_event& event) {
    if (p.focus_waiting == 0)
        return false;
    event = p.focus_events[0];
    std::move(p.focus_events.begin() + 1, p.focus_events.begin() + p.focus_waiting, p.focus_events.begin());
    --p.focus_waiting;
    return true;
}

} // namespace hustle
