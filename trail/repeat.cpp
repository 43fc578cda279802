// The repeat chance: after a jackpot, or a spin of the streak, does it happen again?
#include "core/bank.h"
#include "panel/prizes.h"
#include "trail/bonus.h"

namespace hustle {

namespace {

using enum element;

enum class answer { no = 1, yes = 2, either }; // as `repeatphase` counts

constexpr single streak_limit = 10;
constexpr single low_band = 75, middle_band = 100; // of pcent
constexpr int repeats_in_low_band = 3;
constexpr int intro_end = 10;

// What the money has settled before the press. Only the middle band is left to the player's timing.
answer settled(const machine& m) {
    if (m.award == award::winstreak)
        return m.streaktotal <= streak_limit ? answer::yes : answer::no;
    if (m.pcent <= low_band)
        return m.repeatcount < repeats_in_low_band ? answer::yes : answer::no;
    return m.pcent <= middle_band ? answer::either : answer::no;
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
    set(m.repeatcount, m.repeatcount + 1);
}

void answer_no(game& g) {
    machine& m = g.m;
    figuresline(g);
    disable(g.p, stopper);
    enable(g.p, start);
    if (m.award == award::jackpot)
        set(m.repeatcount, 0);
}

} // namespace

void start_repeatchance(game& g) {
    machine& m = g.m;
    if (m.repeatintro >= intro_end) {
        start_timer(g.p, timer::yes_no);
        enable(g.p, stopper);
        stop_timer(g.p, timer::start_repeatchance);
        set(m.repeatintro, 0);
        return;
    }
    if (m.repeatintro == 0)
        play(g, sound::lucky2);
    const bool text = m.repeatintro == 0 || m.repeatintro % 2 == 1;
    line(g, text ? "       REPEAT CHANCE" : "");
    set(m.repeatintro, m.repeatintro + 1);
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
    set(m.repeatphase, yes ? 2 : 1);
    play(g, yes ? sound::yes : sound::no);
    m.repeatanswer = yes ? flag::yes : flag::no;
    line(g, yes ? "YES    REPEAT CHANCE" : "       REPEAT CHANCE     NO");
}

} // namespace hustle
