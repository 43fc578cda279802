#include "trail/awards.h"

#include "core/bank.h"
#include "trail/bonus.h"
#include "trail/trail.h"

#include <array>

namespace hustle {

namespace {

using enum element;

// Boosts and nudges are given by bands of the payout percentage.
constexpr single full_boost_from = 1, full_boost_to = 75;
constexpr single five_nudges_to = 70, many_nudges_to = 85, few_nudges_to = 99999;

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
    set(g.m.trailvalue, 0);
    text(g);
    traildark(g);
    still_trail(g);
    begin_game(g, timer::trailskill);
}

void take_selector(game& g) {
    set(g.m.trailvalue, 0);
    text(g);
    traildark(g);
    begin_game(g, timer::selector);
}

void take_trailclimb(game& g) {
    set(g.m.trailvalue, 0);
    text(g);
    still_trail(g);
    traildark(g);
    begin_game(g, timer::trailclimb);
}

void take_respin(game& g) {
    machine& m = g.m;
    text(g);
    m.reel1num = m.reel2num = m.reel3num = 0;
    start_timer(g.p, timer::reelspin1);
}

void take_trailboost(game& g) {
    machine& m = g.m;
    text(g);
    set(m.boostcount, draw(g, 5));
    if (m.pcent >= full_boost_from && m.pcent <= full_boost_to)
        set(m.boostcount, 5);
    set(m.trailvalue, m.trailvalue + m.boostcount);
    start_timer(g.p, timer::bonusnumbers);
}

void take_superboost(game& g) {
    text(g);
    set(g.m.boostcount, 5);
    set(g.m.trailvalue, 9);
    start_timer(g.p, timer::bonusnumbers);
}

void take_nudges(game& g) {
    machine& m = g.m;
    set(m.nudges, 0);
    text(g);
    if (m.pcent >= 0 && m.pcent <= five_nudges_to)
        set(m.nudges, 5);
    else if (m.pcent > five_nudges_to && m.pcent <= many_nudges_to)
        set(m.nudges, draw(g, 5));
    else if (m.pcent > many_nudges_to && m.pcent <= few_nudges_to)
        set(m.nudges, draw(g, 3));
    start_timer(g.p, timer::addnudges);
}

void take_addagain(game& g) {
    machine& m = g.m;
    set(m.trailvalue, m.trailvalue + m.reel1num + m.reel2num + m.reel3num);
    starttrailrun(g);
    disable(g.p, stopper);
    figuresline(g);
    enable(g.p, start);
}

void take_spinawin(game& g) {
    machine& m = g.m;
    set(m.nudges, 0);
    text(g);
    set(m.winspinsleft, 1);
    m.award = award::winspins;
    start_timer(g.p, timer::start_winspins);
    disable(g.p, stopper);
}

void take_trailstopper(game& g) {
    text(g);
    begin_game(g, timer::trailstopper);
}

void take_numberrun(game& g) {
    set(g.m.nudges, 0);
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
