#include "trail/stopper.h"

#include "trail/awards.h"

namespace hustle {

namespace {

using enum element;

void bonus_stop(game& g) {
    play(g, sound::yeah);
    stop_timer(g.p, timer::bonus_timer);
    disable(g.p, stopper);
    set_picture(g.p, stopper, art::stoppicdark);
    takebonus(g);
}

void repeat_stop(game& g) {
    g.m.repeatpressed = flag::yes;
    set_picture(g.p, stopper, art::stoppicdark);
    disable(g.p, stopper);
}

// The running figure of a nudge event is taken.
template <timer figure> void nudge_stop(game& g) {
    play(g, sound::yeah);
    stop_timer(g.p, figure);
    disable(g.p, stopper);
    start_timer(g.p, timer::addnudges);
}

struct stop_row {
    timer running;
    handler act;
};
constexpr stop_row nudge_stops[] = {
    {timer::skill_nudges, nudge_stop<timer::skill_nudges>},
    {timer::pseudo_nudges, nudge_stop<timer::pseudo_nudges>},
};
constexpr stop_row game_stops[] = {
    {timer::rollem, roll_stop},
    {timer::selector, selector_stop},
    {timer::trailstopper, trailstopper_stop},
    {timer::trailskill, trailskill_stop},
    {timer::trailclimb, climb_stop},
};

template <std::size_t n> void stop_running(game& g, const stop_row (&rows)[n]) {
    for (const stop_row& r : rows)
        if (is_running(g.p, r.running))
            r.act(g);
}

} // namespace

void stopperpress(game& g) {
    machine& m = g.m;
    set_interval(g.p, timer::bonus_timer, 150);
    if (is_running(g.p, timer::bonus_timer)) {
        bonus_stop(g);
        return;
    }
    if (is_running(g.p, timer::yes_no)) {
        repeat_stop(g);
        return;
    }
    stop_running(g, nudge_stops);
    if (m.award == award::pickawin) {
        play(g, sound::yeah);
        m.pickstopped = flag::yes;
    }
    stop_running(g, game_stops);
}

} // namespace hustle
