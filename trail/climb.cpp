// The Trail Climber: pairs of lamps flash, one after the other, until one is missed.
#include "core/bank.h"
#include "trail/bonus.h"
#include "trail/stopper.h"
#include "trail/trail.h"

namespace hustle {

namespace {

using enum element;

constexpr int last_pair = 5;

int lower_lamp(int pair) { return 2 * pair - 1; }
int upper_lamp(int pair) { return pair == last_pair ? 9 : 2 * pair; }

void caught(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    if (m.climbpair != last_pair) {
        ++m.climbpair;
        return;
    }
    disable(p, stopper);
    stop_timer(p, timer::trailclimb);
    m.climbpair = 1;
    m.trailvalue = 9;
    fulltrail(g);
}

void missed(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    const int below = lower_lamp(m.climbpair) - 1;
    const bool bonus = below == 4;
    if (!bonus) {
        disable(p, stopper);
        enable(p, start);
        figuresline(g);
    }
    m.climbpair = 1;
    stop_timer(p, timer::trailclimb);
    m.trailvalue = static_cast<count>(below);
    if (bonus)
        bonuschance(g);
    else if (below > 0)
        trailholdchance(g);
}

} // namespace

void trailclimb(game& g) {
    const int lower = lower_lamp(g.m.climbpair);
    const int upper = upper_lamp(g.m.climbpair);
    const bool light = !lamp_lit(g, lower);
    if (light)
        play(g, sound::addtrail);
    set_picture(g.p, stopper, light ? art::stoppiclight : art::stoppicdark);
    for (int lamp = lower; lamp <= upper; ++lamp)
        light ? light_lamp(g, lamp) : dark_lamp(g, lamp);
}

void climb_stop(game& g) {
    if (lamp_lit(g, upper_lamp(g.m.climbpair)))
        caught(g);
    else
        missed(g);
}

} // namespace hustle
