// The Number Runner: three times all reels move one stop down and their numbers join the trail.
#include "core/bank.h"
#include "core/reels.h"
#include "trail/trail.h"

namespace hustle {

namespace {

void finish(game& g) {
    set(g.m.runnersteps, 0);
    stop_timer(g.p, timer::numberrun);
    figuresline(g);
}

void step_all_reels(game& g) {
    machine& m = g.m;
    for (int which = 1; which <= 3; ++which) {
        const int position = reel(g, which).pos;
        set_stop(g, which, position <= 1 ? 16 : position - 1);
    }
    set(m.trailvalue, m.trailvalue + m.reel1num + m.reel2num + m.reel3num);
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
    set(m.runnersteps, m.runnersteps + 1);
}

} // namespace hustle
