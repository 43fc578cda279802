// The Selector: ten jumps of the trail to a new height; the stop button takes the height on show.
#include "core/bank.h"
#include "trail/bonus.h"
#include "trail/stopper.h"
#include "trail/trail.h"

namespace hustle {

namespace {

using enum element;

constexpr int jumps = 10;

void jump(game& g) {
    machine& m = g.m;
    m.selectorlast = m.trailvalue;
    dark_lamps_to(g, m.trailvalue);
    do
        m.trailvalue = draw(g, 9);
    while (m.trailvalue == m.selectorlast);
    // A machine that has paid its share lets nobody onto the board this way.
    if (m.pcent >= 90 && m.trailvalue == 9)
        m.trailvalue = 8;
    light_lamps_to(g, m.trailvalue);
    play(g, sound::select);
}

} // namespace

void selector(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    jump(g);
    ++m.selectorticks;
    if (m.selectorticks < jumps)
        return;
    figuresline(g);
    enable(p, start);
    m.selectorticks = 0;
    disable(p, stopper);
    stop_timer(p, timer::selector);
    if (lamp_lit(g, 9))
        fulltrail(g);
    else if (lamp_lit(g, 4) && !lamp_lit(g, 5))
        bonuschance(g);
}

void selector_stop(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    m.selectorticks = 0;
    disable(p, stopper);
    set_picture(p, stopper, art::stoppicdark);
    stop_timer(p, timer::selector);
    if (m.trailvalue == 4) {
        bonuschance(g);
    } else if (m.trailvalue == 9) {
        fulltrail(g);
    } else {
        enable(p, start);
        figuresline(g);
    }
}

} // namespace hustle
