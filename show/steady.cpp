// Reduced flashing: a lamp that is told to flash more than three times a second is held at its lit
// look until it has come to rest. Slower changes, words and figures pass as they are.
#include "art/lamplooks.h"
#include "show/motions.h"

#include <algorithm>

namespace hustle {

namespace {

constexpr std::int64_t quick_ms = 170; // changes that follow each other faster flash too fast
constexpr int quick_allowed = 2;       // in a row
constexpr std::int64_t calm_ms = 340;  // a held lamp goes on when it was told nothing for so long
constexpr std::int64_t second_ms = 1000;

bool blank(const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; }

bool is_logo(element e) { return e == element::toplogo || e == element::feature_toplogo; }

bool one_of(art a, art first, art last) { return a >= first && a <= last; }

// Of two looks of one element the one with the higher rank is held: light before dark, words before
// an empty line.
int rank(const element_row& r, const element_state& state) {
    if (!state.visible)
        return 0;
    if (r.what == kind::line)
        return blank(state.text) ? 0 : state.lineflash ? 1 : 2;
    if (r.what == kind::label)
        return is_lit(r, state) ? 2 : 1;
    const art a = state.picture;
    if (a == art::none)
        return 0;
    if (is_logo(r.id))
        return a == art::title ? 2 : 1;
    const bool dark = a == art::nudge0 || one_of(a, art::boxdark1, art::boxdark24) ||
                      name(a).find("dark") != std::string_view::npos;
    return dark ? 1 : 2;
}

// Other light falls from the one look than from the other. A line of other words is no flash.
bool lights_differ(const element_row& r, const element_state& a, const element_state& b) {
    if (a.visible != b.visible)
        return true;
    if (r.what == kind::line)
        return blank(a.text) != blank(b.text) || a.lineflash != b.lineflash;
    if (r.what == kind::label)
        return a.fore != b.fore || a.back != b.back;
    return a.picture != b.picture;
}

bool is_reel(element e) { return e >= element::reel1 && e <= element::reel3; }
bool can_flash(const element_row& r) {
    return r.what != kind::entry && r.what != kind::textbox && r.what != kind::push && !is_reel(r.id);
}

void note_painted(lamp_history& h, std::int64_t now) {
    std::rotate(h.painted.begin(), h.painted.begin() + 1, h.painted.end());
    h.painted.back() = now;
}

// Three flashes are six changes: a seventh within the second has to wait.
bool eye_is_full(const lamp_history& h, std::int64_t now) { return now - h.painted.front() < second_ms; }

void show_now(lamp_history& h, const element_state& look, std::int64_t now) {
    h.shown = look;
    note_painted(h, now);
}

void hold(stage& s, element e, lamp_history& h, const element_state& before) {
    h.held = true;
    h.shown = before;
    s.held.push_back(e);
}

// What may change while the light is held: words, and up to the brightest look once.
void follow_held(const element_row& r, lamp_history& h, const element_state& now_told, std::int64_t now) {
    const int better = rank(r, now_told) - rank(r, h.shown);
    if (better > 0 && !eye_is_full(h, now))
        show_now(h, now_told, now);
    else if (better == 0 && !lights_differ(r, h.shown, now_told))
        h.shown = now_told;
}

} // namespace

void take_in_lamp(stage& s, const panel& p, element e, std::int64_t now) {
    const element_row& r = row(e);
    if (!can_flash(r))
        return;
    lamp_history& h = s.lamps[static_cast<std::size_t>(e)];
    const element_state& told = at(p, e);
    if (!h.known) {
        h.known = true;
        h.told = h.shown = told;
        h.since = now - second_ms;
        h.painted.fill(now - second_ms);
        return;
    }
    const element_state before = h.told;
    h.told = told;
    const bool other_light = lights_differ(r, before, told);
    if (other_light) {
        h.quick = now - h.since < quick_ms ? h.quick + 1 : 0;
        h.since = now;
    }
    if (h.held) {
        follow_held(r, h, told, now);
        return;
    }
    if (!other_light)
        return;
    if (h.quick <= quick_allowed && !eye_is_full(h, now)) {
        note_painted(h, now);
        return;
    }
    hold(s, e, h, before);
    follow_held(r, h, told, now);
}

int advance_lamps(stage& s, const game& g, std::int64_t now) {
    int next = -1;
    std::erase_if(s.held, [&](element e) {
        lamp_history& h = s.lamps[static_cast<std::size_t>(e)];
        const std::int64_t calm = std::max(h.since + calm_ms, h.painted.front() + second_ms);
        if (now < calm) {
            const int wait = static_cast<int>(calm - now);
            next = next < 0 ? wait : std::min(next, wait);
            return false;
        }
        if (lights_differ(row(e), h.shown, at(g.p, e)))
            note_painted(h, now);
        h.held = false;
        h.quick = 0;
        add_patch(s, g.p, e);
        return true;
    });
    return next;
}

void set_reduced(stage& s, const game& g, bool on) {
    s.reduced = on;
    s.held.clear();
    for (lamp_history& h : s.lamps)
        h = {};
    if (!on)
        return;
    for (std::size_t e = 0; e < element_count; ++e)
        take_in_lamp(s, g.p, static_cast<element>(e), 0);
}

const element_state& shown(const stage& s, const panel& p, element e) {
    if (s.still_logo && is_logo(e))
        return s.logo;
    if (e == element::feature_startbutton && !at(p, e).visible)
        return s.dark_start;
    const lamp_history& h = s.lamps[static_cast<std::size_t>(e)];
    return s.reduced && h.held ? h.shown : at(p, e);
}

} // namespace hustle
