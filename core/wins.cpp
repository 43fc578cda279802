#include "core/wins.h"

#include "core/reels.h"
#include "panel/prizes.h"

namespace hustle {

namespace {

bool is_seven(word symbol) { return symbol == "rseven" || symbol == "bseven"; }

bool any_two_show(const machine& m, word symbol) {
    return (m.reel1sym == symbol) + (m.reel2sym == symbol) + (m.reel3sym == symbol) >= 2;
}

bool any_pair(const machine& m) {
    return forms_pair(m.reel2sym, m.reel3sym) || forms_pair(m.reel1sym, m.reel3sym) ||
           forms_pair(m.reel1sym, m.reel2sym);
}

} // namespace

single line_prize(word a, word b, word c) {
    if (a == b && b == c) {
        for (const line_row& row : line_rows)
            if (row.symbol == a)
                return row.prize;
        return 0;
    }
    return is_seven(a) && is_seven(b) && is_seven(c) ? mixed_sevens_prize : 0;
}

bool forms_pair(word a, word b) {
    const auto tail = [](word w) { return w.substr(w.size() > 3 ? w.size() - 3 : 0); };
    return tail(a) == tail(b);
}

single line_prize(const machine& m) {
    if (m.reel1sym == m.reel2sym && m.reel2sym == m.reel3sym) {
        for (const line_row& row : line_rows)
            if (row.symbol == m.reel1sym)
                return row.prize;
        return 0;
    }
    return is_seven(m.reel1sym) && is_seven(m.reel2sym) && is_seven(m.reel3sym) ? mixed_sevens_prize : 0;
}

void checkline(game& g) {
    machine& m = g.m;
    if (const single prize = line_prize(m.reel1sym, m.reel2sym, m.reel3sym); prize > 0)
        m.win = prize;
    if (m.win < 1)
        return;
    m.pairholds = 0;
    m.featuremode = mode::hilo;
    start_timer(g.p, timer::feature_start);
}

void offerholds(game& g) {
    machine& m = g.m;
    if (is_running(g.p, timer::numberrun) || m.win != 0 || m.trailvalue == 4 || m.credits <= 0.25f)
        return;
    const int r = draw(g, 6);
    if (r <= (m.pcent > 90 ? 1 : 3))
        m.holdsoffered = flag::yes;
    // A pair that the player has begun to hold is kept going.
    if ((m.pairholds == 1 || m.pairholds == 2) && any_two_show(m, "pound"))
        m.holdsoffered = flag::yes;
    if (m.pairholds == 1 && (any_two_show(m, "cherry") || any_two_show(m, "melon")))
        m.holdsoffered = flag::yes;
}

void offerdontholdany(game& g) {
    machine& m = g.m;
    if (m.win != 0 || m.trailvalue == 4)
        return;
    const int r = draw(g, 6);
    const bool low = m.pcent >= 0 && m.pcent <= 85;
    const bool high = m.pcent >= 85.1f && m.pcent <= 9999;
    if (low || high) { // between the bands a pair is promised with no draw deciding
        const bool offered = r == 1 || (low && r == 2);
        m.holdsoffered = offered ? flag::yes : flag::no;
        if (!offered)
            return;
    }
    if (!any_pair(m))
        return;
    m.holdsbarred = truth::is;
    m.nudges = 0;
    m.holdsoffered = flag::yes;
    start_timer(g.p, timer::dontholdany);
    play(g, sound::okeydoke);
    m.linepromised = truth::is;
}

void spinforcedline(game& g) {
    machine& m = g.m;
    const bool all_spin = m.holdsbarred == truth::is;
    if (all_spin)
        m.reel1held = m.reel2held = m.reel3held = flag::no;
    const auto spin_from = [&](timer first) { start_timer(g.p, all_spin ? timer::reelspin1 : first); };
    if (m.reel1held == flag::no && forms_pair(m.reel2sym, m.reel3sym)) {
        m.reel1sym = m.reel2sym;
        spin_from(timer::reelspin1);
    } else if (m.reel2held == flag::no && forms_pair(m.reel1sym, m.reel3sym)) {
        m.reel2sym = m.reel1sym;
        spin_from(timer::reelspin2);
    } else if (m.reel3held == flag::no && forms_pair(m.reel1sym, m.reel2sym)) {
        m.reel3sym = m.reel1sym;
        spin_from(timer::reelspin3);
    } else if (all_spin) {
        start_timer(g.p, timer::reelspin1);
    }
}

void forcedstep1(game& g) {
    showforced1(g);
    if (g.m.holdsbarred == truth::is)
        start_timer(g.p, timer::reelspin2);
    else
        checkline(g);
}

void forcedstep2(game& g) {
    showforced2(g);
    if (g.m.holdsbarred == truth::is)
        start_timer(g.p, timer::reelspin3);
    else
        checkline(g);
}

void forcedstep3(game& g) {
    showforced3(g);
    g.m.holdsbarred = truth::is_not;
    checkline(g);
}

} // namespace hustle
