#include "core/wins.h"

#include "core/bands.h"
#include "core/reels.h"
#include "panel/prizes.h"

#include <algorithm>

namespace hustle {

namespace {

// How many of six figures promise a pair.
constexpr band promise_chances[] = {
    {edge::below, 0, 0}, {edge::upto, 85, 2}, {edge::below, 85.1f, 0}, {edge::upto, 9999, 1}};

bool is_seven(word symbol) { return symbol == "rseven" || symbol == "bseven"; }

bool any_two_show(const machine& m, word symbol) {
    return std::count_if(m.reels.begin(), m.reels.end(),
                         [symbol](const reel_state& r) { return r.sym == symbol; }) >= 2;
}

bool any_pair(const machine& m) { return pair_beside(m, 1) || pair_beside(m, 2) || pair_beside(m, 3); }

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

bool pair_beside(const machine& m, int which) {
    const auto at = static_cast<std::size_t>(which - 1);
    return forms_pair(m.reels[(at + 1) % 3].sym, m.reels[(at + 2) % 3].sym);
}

single line_prize(const machine& m) { return line_prize(m.reels[0].sym, m.reels[1].sym, m.reels[2].sym); }

void checkline(game& g) {
    machine& m = g.m;
    if (const single prize = line_prize(m); prize > 0)
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
    // Outside the bands a pair is promised with no draw deciding.
    if (const count chances = band_figure(m.pcent, promise_chances); chances != 0) {
        m.holdsoffered = r <= chances ? flag::yes : flag::no;
        if (r > chances)
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
        release_reels(m);
    for (int which = 1; which <= 3; ++which) {
        if (reel(m, which).held != flag::no || !pair_beside(m, which))
            continue;
        reel(m, which).sym = reel(m, which == 1 ? 2 : 1).sym;
        start_timer(g.p, all_spin ? timer::reelspin1 : nth(timer::reelspin1, which));
        return;
    }
    if (all_spin)
        start_timer(g.p, timer::reelspin1);
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
