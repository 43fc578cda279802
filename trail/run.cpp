// The trail run: it walks the lamps up to the value that the numbers have reached.
#include "core/bank.h"
#include "core/play.h"
#include "trail/bonus.h"
#include "trail/trail.h"

namespace hustle {

void starttrailrun(game& g) {
    machine& m = g.m;
    const bool first = reel(m, 1).num > 0 && m.linepromised == truth::is_not;
    if (first || reel(m, 2).num > 0 || reel(m, 3).num > 0) {
        m.trailtarget = m.trailvalue;
        start_timer(g.p, timer::numbers2);
    } else {
        hide(g.p, element::trailheld);
    }
}

void fulltrail(game& g) {
    // A line that a nudge made while the trail was walking keeps its prize.
    if (g.m.win < 1)
        g.m.win = 1;
    start_timer(g.p, timer::feature_start);
}

namespace {

// The run to BONUS has found all lamps lit, and no Bonus comes of it. An award that left Start to
// the Bonus would leave the player without it: the attract mode can light the lamps beneath one.
void nowhere(game& g) {
    if (is_enabled(g.p, element::start) || g.m.credits <= 0.1f || g.m.nudges != 0 || machine_busy(g))
        return;
    enable(g.p, element::start);
    figuresline(g);
}

} // namespace

void numbers2(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    const int target = m.trailtarget;
    if (target <= 0) {
        hide(p, element::trailheld);
        stop_timer(p, timer::numbers2);
        return;
    }
    if (m.nudges == 0)
        play(g, sound::addtrail);

    const bool full = target >= 9;
    const int lamp = lowest_dark(g, 1, full ? 8 : target);
    light_lamp(g, lamp);
    if (full) {
        if (lamp != 0)
            return;
        light_lamp(g, 9);
        fulltrail(g);
    } else if (lamp == target) {
        if (target == 4)
            bonuschance(g);
        else
            trailholdchance(g);
    } else if (lamp != 0) {
        return;
    }
    stop_timer(p, timer::numbers2);
    if (lamp == 0 && target == 4)
        nowhere(g);
}

} // namespace hustle
