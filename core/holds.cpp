#include "core/holds.h"

#include "core/bank.h"
#include "core/nudges.h"
#include "core/reels.h"
#include "core/reelskill.h"
#include "core/wins.h"

#include <algorithm>
#include <iterator>

namespace hustle {

namespace {

constexpr std::string_view bad_hold_text = "     *** BAD HOLD ***";

// Pressed while no credits are left, these six hold buttons begin a new game unasked.
constexpr int hidden_sequence[] = {1, 2, 3, 3, 2, 1};

void count_sequence(game& g, int which) {
    machine& m = g.m;
    const bool may_count = which != 1 || m.credits == 0;
    const auto place = static_cast<std::size_t>(m.holdsequence) % std::size(hidden_sequence);
    if (may_count && hidden_sequence[place] == which) {
        if (++m.holdsequence < static_cast<count>(std::size(hidden_sequence)))
            return;
        m.holdsequence = 0;
        startnewgame(g);
        return;
    }
    m.holdsequence = may_count && which == 1 ? 1 : 0;
}

// The promise is lost, unless the hold is cancelled.
void bad_hold(game& g, int which) {
    machine& m = g.m;
    reel(m, which).held = flag::yes;
    set_picture(g.p, hold_button(which), art::holdpiclight);
    m.holdsbarred = truth::spoilt; // neither a test for "true" nor one for "false" passes
    m.badholdmade = truth::is;
    m.linepromised = truth::is_not;
    line(g, bad_hold_text);
    play(g, sound::badhold);
}

void holdpress(game& g, int which) {
    constexpr handler nudge[] = {nudgereel1, nudgereel2, nudgereel3};
    machine& m = g.m;
    const bool offered = m.holdsoffered == flag::yes;
    if (offered && (m.holdsbarred == truth::is || m.badholdmade == truth::is)) {
        bad_hold(g, which);
        return;
    }
    if (m.nudges >= 1) {
        nudge[which - 1](g);
        return;
    }
    if (which == 1 && is_running(g.p, timer::reelskill)) {
        reelskill_stop1(g);
    } else if (which == 3 && is_running(g.p, timer::reelskill2)) {
        reelskill_stop3(g);
    } else if (offered && !is_held(reel(m, which))) {
        play(g, nth(sound::hold1, which));
        reel(m, which).held = flag::yes;
        set_picture(g.p, hold_button(which), art::holdpiclight);
        pairhold(g);
    }
    count_sequence(g, which);
}

// Exactly two reels are held, and they form a pair.
bool pair_is_held(const machine& m) {
    if (held_reels(m) != 2)
        return false;
    const auto free = std::find_if_not(m.reels.begin(), m.reels.end(), is_held);
    return pair_beside(m, static_cast<int>(free - m.reels.begin()) + 1);
}

} // namespace

void holdpress1(game& g) { holdpress(g, 1); }
void holdpress2(game& g) { holdpress(g, 2); }
void holdpress3(game& g) { holdpress(g, 3); }

void pairhold(game& g) {
    machine& m = g.m;
    if (m.holdsbarred == truth::is || m.pairholds == 3) { // a third reel throws the promise away
        line(g, bad_hold_text);
        play(g, sound::badhold);
        m.linepromised = truth::is_not;
        return;
    }
    if (pair_is_held(m))
        ++m.pairholds;
    if (m.pairholds != 3)
        return;
    m.linepromised = truth::is;
    start_timer(g.p, timer::letemspin);
    m.holdsoffered = flag::yes;
    play(g, sound::okeydoke);
    m.holdsbarred = truth::is_not;
}

void cancelpress(game& g) {
    machine& m = g.m;
    if (is_running(g.p, timer::trailskill)) {
        set_interval(g.p, timer::trailskill, interval(g.p, timer::trailskill) + 30);
        return;
    }
    if (held_reels(m) == 0)
        return;
    set_picture(g.p, element::cancelbutton, art::cancelpicdark);
    play(g, sound::cancel);
    if (m.pairholds > 0) {
        --m.pairholds;
        m.linepromised = truth::is_not;
    }
    if (m.badholdmade == truth::is) { // a bad hold taken back: the promise returns
        m.holdsbarred = truth::is;
        m.linepromised = truth::is;
        m.badholdmade = truth::is_not;
        start_timer(g.p, timer::dontholdany);
        play(g, sound::okeydoke);
    }
    release_reels(m);
}

} // namespace hustle
