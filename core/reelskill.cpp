#include "core/reelskill.h"

#include "core/reels.h"
#include "core/wins.h"

namespace hustle {

namespace {

using enum element;

constexpr std::string_view skill_text = "      * REEL SKILL *";
constexpr std::string_view nudge_text = "    * NUDGE REEL 2 *";

constexpr int stops = 16;

// A reel walks down the strip by one stop: its position stands one behind the stop shown, and the
// text flashes with it.
void walk(game& g, int which, std::string_view text) {
    count& position = reel(g.m, which).pos;
    show_stop(g, which, before_of(position, stops));
    line(g, position % 2 != 0 ? text : "");
    position = before_of(position, stops);
}

} // namespace

void start_reelskill(game& g) {
    machine& m = g.m;
    disable(g.p, start);
    if (m.awardwait == 1)
        line(g, skill_text);
    if (still_waiting(m.awardwait, 8))
        return;
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
    reel(m, 1).pos = before_of(reel(m, 1).pos, stops);
    m.spinstep = static_cast<count>(m.spinstep == 4 ? 1 : m.spinstep + 1); // shared: may stand past 4
}

void reelskill_stop1(game& g) {
    set_picture(g.p, hold1, art::holdpicdark);
    show_stop(g, 1, next_of(reel(g.m, 1).pos, stops));
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
    if (reel(g.m, 3).sym == reel(g.m, 1).sym)
        start_timer(g.p, timer::reelskill3);
    else
        enable(g.p, start);
}

// Reel 2 walks by itself until it matches.
void reelskill3(game& g) {
    play(g, sound::dong);
    walk(g, 2, nudge_text);
    if (reel(g.m, 3).sym != reel(g.m, 2).sym)
        return;
    checkline(g);
    stop_timer(g.p, timer::reelskill3);
}

} // namespace hustle
