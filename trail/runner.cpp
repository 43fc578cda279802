// The Number Runner: three times all reels move one stop down and their numbers join the trail.
#include "core/bank.h"
#include "core/reels.h"
#include "trail/trail.h"

namespace hustle {

namespace {

void finish(game& g) {
    g.m.runnersteps = 0;
    stop_timer(g.p, timer::numberrun);
    figuresline(g);
}

void step_all_reels(game& g) {
    machine& m = g.m;
    for (int which = 1; which <= 3; ++which)
        set_stop(g, which, before_of(reel(m, which).pos, 16));
    m.trailvalue += numbers_shown(m);
}

} // namespace

void numberrun(game& g) {
    machine& m = g.m;
    if (m.runnersteps == 3) {
        enable(g.p, element::start);
        finish(g);
        return;
    }
    // A full trail: its run goes on to the board.
    if (m.trailvalue >= 9 || m.trailtarget >= 9) {
        finish(g);
        return;
    }
    step_all_reels(g);
    play(g, sound::addnudge);
    starttrailrun(g);
    ++m.runnersteps;
}

} // namespace hustle
