// The repeat chance: after a jackpot, or a spin of the streak, does it happen again?
#include "core/bands.h"
#include "core/bank.h"
#include "panel/prizes.h"

namespace hustle {

namespace {

using enum element;

enum class answer { no = 1, yes = 2, either }; // as `repeatphase` counts

constexpr single streak_limit = 10;
// What a jackpot's repeat is left to: the count of those given, or the player's timing.
constexpr count by_count = 1, by_timing = 2;
constexpr band jackpot_repeats[] = {{edge::upto, 75, by_count}, {edge::upto, 100, by_timing}};
constexpr int repeats_by_count = 3;
constexpr int intro_end = 10;

// What the money has settled before the press. Only the middle band is left to the player's timing.
answer settled(const machine& m) {
    if (m.award == award::winstreak)
        return m.streaktotal <= streak_limit ? answer::yes : answer::no;
    const count left_to = band_figure(m.pcent, jackpot_repeats);
    if (left_to == by_count)
        return m.repeatcount < repeats_by_count ? answer::yes : answer::no;
    return left_to == by_timing ? answer::either : answer::no;
}

void answer_yes(game& g) {
    machine& m = g.m;
    if (m.award == award::winstreak) {
        start_timer(g.p, timer::start_winstreak);
        return;
    }
    add(m.credits, -1);
    m.win = jackpot_win;
    start_timer(g.p, timer::wintobank);
    ++m.repeatcount;
}

void answer_no(game& g) {
    machine& m = g.m;
    figuresline(g);
    disable(g.p, stopper);
    enable(g.p, start);
    if (m.award == award::jackpot)
        m.repeatcount = 0;
}

} // namespace

void start_repeatchance(game& g) {
    machine& m = g.m;
    if (m.repeatintro >= intro_end) {
        start_timer(g.p, timer::yes_no);
        enable(g.p, stopper);
        stop_timer(g.p, timer::start_repeatchance);
        m.repeatintro = 0;
        return;
    }
    if (m.repeatintro == 0)
        play(g, sound::lucky2);
    const bool text = m.repeatintro == 0 || m.repeatintro % 2 == 1;
    line(g, text ? "       REPEAT CHANCE" : "");
    ++m.repeatintro;
}

void yes_no(game& g) {
    machine& m = g.m;
    if (m.repeatpressed == flag::yes) {
        const answer due = settled(m);
        if (due == answer::either || static_cast<int>(due) == m.repeatphase) {
            stop_timer(g.p, timer::yes_no);
            if (m.repeatphase == 2)
                answer_yes(g);
            else
                answer_no(g);
            hold_the_machine(g, m.pausesecs);
            m.repeatpressed = flag::no;
            return;
        }
    }
    const bool yes = m.repeatphase == 1;
    m.repeatphase = next_of(m.repeatphase, 2);
    play(g, yes ? sound::yes : sound::no);
    m.repeatanswer = yes ? flag::yes : flag::no;
    line(g, yes ? "YES    REPEAT CHANCE" : "       REPEAT CHANCE     NO");
}

} // namespace hustle
