// The nine lamps, the trail hold with its flash, and the walk that takes the lamps down at a Start.
#include "trail/trail.h"

#include <algorithm>

namespace hustle {

namespace {

constexpr int lamps = 9;
constexpr colour dark_back = 192;
constexpr colour dark_text = 0;
constexpr colour lit_back = 255;
constexpr colour lit_text = 65535;

// The figures of 1 to 8 that hold a trail of this value.
struct hold_odds {
    int up_to; // trail value
    int first, last;
};
constexpr hold_odds odds[] = {{4, 1, 4}, {6, 4, 5}, {8, 3, 3}};

bool holds(int value, int figure) {
    for (const hold_odds& o : odds)
        if (value >= 1 && value <= o.up_to)
            return figure >= o.first && figure <= o.last;
    return false;
}

element label(int n) { return nth(element::numberone, n); }
bool on_trail(int n) { return n >= 1 && n <= lamps; }

} // namespace

bool lamp_lit(const game& g, int n) { return on_trail(n) && back(g.p, label(n)) == lit_back; }

void light_lamp(game& g, int n) {
    if (!on_trail(n))
        return;
    set_back(g.p, label(n), lit_back);
    set_fore(g.p, label(n), lit_text);
}

void dark_lamp(game& g, int n) {
    if (!on_trail(n))
        return;
    set_back(g.p, label(n), dark_back);
    set_fore(g.p, label(n), dark_text);
}

void light_lamps_to(game& g, int n) {
    for (int lamp = 1; lamp <= std::min(n, lamps); ++lamp)
        light_lamp(g, lamp);
}

void dark_lamps_to(game& g, int n) {
    for (int lamp = 1; lamp <= std::min(n, lamps); ++lamp)
        dark_lamp(g, lamp);
}

int lowest_dark(const game& g, int first, int last) {
    for (int lamp = first; lamp <= last; ++lamp)
        if (!lamp_lit(g, lamp))
            return lamp;
    return 0;
}

void traillit(game& g) { light_lamps_to(g, lamps); }
void traildark(game& g) { dark_lamps_to(g, lamps); }

void trailholdchance(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    if (is_running(p, timer::numberrun))
        return;
    const int figure = draw(g, 8);
    if (m.win != 0 || m.credits <= 0.25F || m.nudges != 0 || !holds(m.trailvalue, figure)) {
        hide(p, element::trailheld);
        return;
    }
    show(p, element::trailheld);
    play(g, sound::trailhld);
    start_timer(p, timer::trail_flash);
}

void trail_flash(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    if (m.flashcount >= 10) {
        light_lamps_to(g, m.trailvalue);
        stop_timer(p, timer::trail_flash);
        m.flashcount = 0;
        show(p, element::trailheld);
        return;
    }
    if (lamp_lit(g, 1)) {
        dark_lamps_to(g, m.trailvalue);
    } else {
        show(p, element::trailheld);
        light_lamps_to(g, m.trailvalue);
    }
    ++m.flashcount;
}

void init_trail_timer(game& g) {
    machine& m = g.m;
    dark_lamp(g, lamps + 1 - m.walkstep);
    ++m.walkstep;
    if (m.walkstep <= lamps)
        return;
    m.walkstep = 1;
    m.nudgemode = 1;
    stop_timer(g.p, timer::init_trail_timer);
}

} // namespace hustle
