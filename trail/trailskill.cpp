// Trail Skill and Trail Stopper: a single lamp runs or jumps, and the stop button takes it.
#include "core/bank.h"
#include "trail/stopper.h"
#include "trail/trail.h"

namespace hustle {

namespace {

using enum element;

// The run from the lamps that stand up to the lamp that was taken. A full trail and lamp 4 give
// Start back in their own time. Where the run leads nowhere, because no lamp was ever chosen or
// lamp 4 was lit beforehand, Start comes back at once.
void land(game& g) {
    const int target = g.m.trailtarget;
    if (target != 0)
        start_timer(g.p, timer::numbers2);
    if (target >= 9 || (target == 4 && !lamp_lit(g, 4)))
        return;
    enable(g.p, start);
    figuresline(g);
}

} // namespace

void trailskill(game& g) {
    machine& m = g.m;
    play(g, sound::addtrail);
    m.trailtarget = next_of(m.trailtarget, 9);
    m.trailvalue = m.trailtarget;
    dark_lamp(g, before_of(m.trailtarget, 9));
    light_lamp(g, m.trailtarget);
}

void trailskill_stop(game& g) {
    disable(g.p, stopper);
    stop_timer(g.p, timer::trailskill);
    traildark(g);
    land(g);
}

void trailstopper(game& g) {
    machine& m = g.m;
    if (m.trailtarget >= 5)
        dark_lamp(g, m.trailtarget);
    play(g, sound::pick);
    m.trailtarget = draw(g, 5);
    m.trailtarget += 4;
    m.trailvalue = m.trailtarget;
    light_lamp(g, m.trailtarget);
}

void trailstopper_stop(game& g) {
    stop_timer(g.p, timer::trailstopper);
    disable(g.p, stopper);
    set_picture(g.p, stopper, art::stoppicdark);
    land(g);
}

} // namespace hustle
