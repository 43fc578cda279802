#include "core/reelskill.h"

#include "core/reels.h"
#include "core/wins.h"

namespace hustle {

namespace {

using enum element;

constexpr std::string_view skill_text = "      * REEL SKILL *";
constexpr std::string_view nudge_text = "    * NUDGE REEL 2 *";

int one_down(int position) { return position <= 1 ? 16 : position - 1; }

// A reel walks down the strip by one stop: its position stands one behind the stop shown, and the
// text flashes with it.
void walk(game& g, int which, std::string_view text) {
    count& position = reel(g, which).pos;
    show_stop(g, which, one_down(position));
    line(g, position % 2 != 0 ? text : "");
    set(position, one_down(position));
}

} // namespace

void start_reelskill(game& g) {
    machine& m = g.m;
    disable(g.p, start);
    if (m.awardwait == 1)
        line(g, skill_text);
    if (m.awardwait != 8) {
        ++m.awardwait;
        return;
    }
    play(g, sound::fastcash);
    m.awardwait = 1;
    stop_timer(g.p, timer::start_reelskill);
    start_timer(g.p, timer::reelskill);
    disable(g.p, stopper);
}

// Reel 1 in a blur: nothing on it tells where it stands.
void reelskill(game& g) {
    machine& m = g.m;
    disable(g.p, start);
    disable(g.p, stopper);
    if (m.spinstep >= 1 && m.spinstep <= 4) {
        set_picture(g.p, reel1, nth(art::effect1, m.spinstep));
        line(g, m.spinstep % 2 == 1 ? "" : skill_text);
    }
    set(m.reel1pos, one_down(m.reel1pos));
    set(m.spinstep, m.spinstep == 4 ? 1 : m.spinstep + 1);
}

void reelskill_stop1(game& g) {
    set_picture(g.p, hold1, art::holdpicdark);
    show_stop(g, 1, g.m.reel1pos >= 16 ? 1 : g.m.reel1pos + 1);
    stop_timer(g.p, timer::reelskill);
    start_timer(g.p, timer::reelskill2);
}

void reelskill2(game& g) {
    play(g, sound::dong);
    walk(g, 3, skill_text);
}

void reelskill_stop3(game& g) {
    stop_timer(g.p, timer::reelskill2);
    set_picture(g.p, hold3, art::holdpicdark);
    if (g.m.reel3sym == g.m.reel1sym)
        start_timer(g.p, timer::reelskill3);
    else
        enable(g.p, start);
}

// Reel 2 walks by itself until it matches.
void reelskill3(game& g) {
    play(g, sound::dong);
    walk(g, 2, nudge_text);
    if (g.m.reel3sym != g.m.reel2sym)
        return;
    checkline(g);
    stop_timer(g.p, timer::reelskill3);
}

} // namespace hustle
