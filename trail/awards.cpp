#include "trail/awards.h"

#include "core/bands.h"
#include "core/bank.h"
#include "core/reels.h"
#include "trail/bonus.h"
#include "trail/trail.h"

#include <array>

namespace hustle {

namespace {

using enum element;

// A boost of these many lamps with no draw deciding.
constexpr band sure_boost[] = {{edge::below, 1, 0}, {edge::upto, 75, 5}};
// Five nudges in the first band; the reach of a draw in the others.
constexpr single five_nudges_to = 70;
constexpr band nudge_reach[] = {
    {edge::below, 0, 0}, {edge::upto, five_nudges_to, 5}, {edge::upto, 85, 5}, {edge::upto, 99999, 3}};

void text(game& g) { line(g, wheel_texts[static_cast<std::size_t>(g.m.bonuspick - 1)]); }

// The trail is taken down and nothing works on the lamps beneath the game that follows.
void still_trail(game& g) {
    stop_timer(g.p, timer::numbers2);
    stop_timer(g.p, timer::trail_flash);
}

void begin_game(game& g, timer what) {
    start_timer(g.p, what);
    enable(g.p, stopper);
}

void take_trailskill(game& g) {
    g.m.trailvalue = 0;
    text(g);
    traildark(g);
    still_trail(g);
    begin_game(g, timer::trailskill);
}

void take_selector(game& g) {
    g.m.trailvalue = 0;
    text(g);
    traildark(g);
    begin_game(g, timer::selector);
}

void take_trailclimb(game& g) {
    g.m.trailvalue = 0;
    text(g);
    still_trail(g);
    traildark(g);
    begin_game(g, timer::trailclimb);
}

void take_respin(game& g) {
    machine& m = g.m;
    text(g);
    for (reel_state& r : m.reels)
        r.num = 0;
    start_timer(g.p, timer::reelspin1);
}

void take_trailboost(game& g) {
    machine& m = g.m;
    text(g);
    m.boostcount = draw(g, 5);
    if (const count sure = band_figure(m.pcent, sure_boost); sure != 0)
        m.boostcount = sure;
    m.trailvalue += m.boostcount;
    start_timer(g.p, timer::bonusnumbers);
}

void take_superboost(game& g) {
    text(g);
    g.m.boostcount = 5;
    g.m.trailvalue = 9;
    start_timer(g.p, timer::bonusnumbers);
}

void take_nudges(game& g) {
    machine& m = g.m;
    m.nudges = 0;
    text(g);
    if (const count reach = band_figure(m.pcent, nudge_reach); reach != 0)
        m.nudges = m.pcent <= five_nudges_to ? reach : draw(g, reach);
    start_timer(g.p, timer::addnudges);
}

void take_addagain(game& g) {
    machine& m = g.m;
    m.trailvalue += numbers_shown(m);
    starttrailrun(g);
    disable(g.p, stopper);
    figuresline(g);
    enable(g.p, start);
}

void take_spinawin(game& g) {
    machine& m = g.m;
    m.nudges = 0;
    text(g);
    m.winspinsleft = 1;
    m.award = award::winspins;
    start_timer(g.p, timer::start_winspins);
    disable(g.p, stopper);
}

void take_trailstopper(game& g) {
    text(g);
    begin_game(g, timer::trailstopper);
}

void take_numberrun(game& g) {
    g.m.nudges = 0;
    text(g);
    still_trail(g);
    start_timer(g.p, timer::numberrun);
    disable(g.p, stopper);
    set_picture(g.p, stopper, art::stoppicdark);
}

constexpr std::array<handler, 11> actions = {
    take_trailskill, take_selector, take_trailclimb, take_respin,       take_trailboost, take_superboost,
    take_nudges,     take_addagain, take_spinawin,   take_trailstopper, take_numberrun,
};

} // namespace

void takebonus(game& g) {
    const int pick = g.m.bonuspick;
    if (pick >= 1 && pick <= static_cast<int>(actions.size()))
        actions[static_cast<std::size_t>(pick - 1)](g);
}

} // namespace hustle
