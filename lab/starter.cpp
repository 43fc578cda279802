// The starter, and what every player needs to get on.
#include "lab/policies.h"

#include "panel/splitmix.h"

namespace hustle::lab {

namespace {

using enum element;

constexpr std::int64_t quiet_ms = 3000; // no chain of the machine pauses for longer

bool looks_busy(const sight& s) {
    return s.on_board() || s.live(stopper) || s.nudge_lamps() || s.reels_turn();
}

constexpr int shortest_pause = 250, pauses = 1500; // ms before a stop button is pressed without aim

// Two buttons may answer at once where only one leads on: they are taken in turn.
template <std::size_t n> element in_turn(const sight& s, const memory& m, const element (&buttons)[n]) {
    element found = no_press;
    for (const element b : buttons)
        if (s.live(b)) {
            if (b != m.last)
                return b;
            found = b;
        }
    return found;
}

// No lamp tells what to do. Under the attract mode the stops of Reel Skill do not flash; and a promise whose
// pair was nudged away ends with a dark Start, which only a new game brings back.
element press_anything(const sight& s, memory& m) {
    constexpr int most_lost = 57;       // minutes: an hour is the patience that a run has unless told
    constexpr std::int64_t row = 75000; // ms: one such press after another
    m.lost = m.last != start && s.now() - m.lost_at < row ? m.lost + 1 : 1;
    m.lost_at = s.now();
    return m.lost <= most_lost ? nth(hold1, splitmix_draw(m.dice, 3)) : newgame;
}

} // namespace

element find_money(const sight& s, memory& m) {
    if (s.money_in_bank())
        return transfer;
    if (s.has_credit())
        return no_press;
    if (looks_busy(s))
        m.busy = s.now();
    return s.now() - m.busy >= quiet_ms ? newgame : no_press;
}

bool stop_without_aim(const sight& s, memory& m, element button) {
    if (!s.live(button)) {
        m.stop_at = -1;
        return false;
    }
    if (m.stop_at < 0)
        m.stop_at = s.now() + shortest_pause + splitmix_draw(m.dice, pauses);
    if (s.now() < m.stop_at)
        return false;
    m.stop_at = -1;
    return true;
}

element get_on_board(const sight& s, memory& m) {
    const bool stop = stop_without_aim(s, m, feature_stopfeature);
    constexpr element with_stop[] = {feature_collect, feature_stopfeature, feature_startbutton};
    constexpr element without[] = {feature_collect, feature_startbutton};
    return stop ? in_turn(s, m, with_stop) : in_turn(s, m, without);
}

element get_on(const sight& s, memory& m) {
    if (s.on_board())
        return get_on_board(s, m);
    const bool can_start = s.live(start);
    if (stop_without_aim(s, m, stopper))
        return stopper;
    if (can_start && (!s.live(stopper) || m.last != start)) {
        if (s.last_credit() && s.money_in_bank() && m.last != transfer)
            return transfer;
        return start;
    }
    if (s.nudge_lamps() || s.shows(hold1, art::stoppiclight))
        return hold1;
    if (s.shows(hold3, art::stoppiclight))
        return hold3;
    if (!s.has_credit())
        return find_money(s, m);
    return out_of_patience(s, m) ? press_anything(s, m) : no_press;
}

move starter(const sight& s, memory& m) { return {get_on(s, m)}; }

} // namespace hustle::lab
