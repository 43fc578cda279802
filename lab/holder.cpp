// The holder: waits for the trail, holds pairs, obeys the machine's words, and nudges for lines.
#include "core/wins.h"
#include "lab/policies.h"

namespace hustle::lab {

namespace {

using enum element;

constexpr std::int64_t trail_ms = 250; // a walking trail moves sooner
constexpr std::int64_t lamp_ms = 700;  // hold lamps that are on offer flash sooner

struct pair {
    int first, second;
};
constexpr pair pairs[] = {{1, 2}, {1, 3}, {2, 3}};

// The pair that is worth most as a line; the reels as bits, 0 where there is none.
int best_pair(const sight& s) {
    int held = 0;
    single best = 0;
    for (const pair& p : pairs) {
        const word a = symbol_at(s.stop(p.first));
        const word b = symbol_at(s.stop(p.second));
        if (a.empty() || b.empty() || !forms_pair(a, b))
            continue;
        const single prize = line_prize(a, b, a);
        if (prize > best) {
            best = prize;
            held = 1 << p.first | 1 << p.second;
        }
    }
    return held;
}

bool told_to_spin(const sight& s) {
    return s.line().starts_with("       DONT") || s.line().starts_with("       LET ");
}

void watch_trail(const sight& s, memory& m) {
    int lamps = 0;
    for (int n = 1; n <= 9; ++n)
        lamps |= s.trail_lamp(n) << n;
    if (lamps == m.lamps)
        return;
    m.lamps = lamps;
    m.lamps_at = s.now();
}

// Start has just been lit, or it is still lit.
void watch_rest(const sight& s, memory& m) {
    watch_trail(s, m);
    if (m.rest < 0) {
        m.rest = m.lamps_at = s.now();
        m.held = 0;
        m.offered = m.promised = false;
    }
    m.promised |= told_to_spin(s);
    m.offered |= s.hold_lamp(1) || s.hold_lamp(2) || s.hold_lamp(3);
}

element hold_or_start(const sight& s, memory& m) {
    const int wanted = m.promised ? 0 : best_pair(s);
    if (wanted != 0 && m.offered)
        for (int reel = 1; reel <= 3; ++reel)
            if ((wanted & ~m.held & 1 << reel) != 0) {
                m.held |= 1 << reel;
                return nth(hold1, reel);
            }
    if (wanted != 0 && !m.offered && s.now() - m.rest < lamp_ms)
        return no_press;
    if (!s.visible(trailheld) && s.now() - m.lamps_at < trail_ms)
        return no_press;
    return start;
}

} // namespace

element play_reels(const sight& s, memory& m) {
    if (!s.live(start) || s.live(stopper) || s.reels_turn()) {
        m.rest = -1;
        return no_press;
    }
    watch_rest(s, m);
    if (s.last_credit() && s.money_in_bank() && m.last != transfer)
        return transfer;
    return hold_or_start(s, m);
}

element use_nudges(const sight& s, memory& m) {
    if (!s.nudge_lamps() || s.live(start)) {
        m.nudges = 0;
        return no_press;
    }
    if (m.nudges == 0)
        m.nudges = s.line().starts_with("   ** ADDING") ? 0 : s.nudge_ladder();
    if (m.nudges == 0)
        return no_press;
    int reel = 1;
    single best = 0;
    const auto down = [&](int which, int steps) { return symbol_at((s.stop(which) + 15 - steps) % 16 + 1); };
    for (int total = 1; total <= m.nudges; ++total) // fewer nudges first
        for (int a = 0; a <= total; ++a)
            for (int b = 0; a + b <= total; ++b) {
                const int c = total - a - b;
                const single prize = line_prize(down(1, a), down(2, b), down(3, c));
                if (prize <= best)
                    continue;
                best = prize;
                reel = a > 0 ? 1 : b > 0 ? 2 : 3;
            }
    --m.nudges;
    return nth(hold1, reel);
}

element play_main(const sight& s, memory& m) {
    if (out_of_patience(s, m))
        return get_on(s, m);
    if (const element nudge = use_nudges(s, m); nudge != no_press)
        return nudge;
    if (const element press = play_reels(s, m); press != no_press)
        return press;
    const bool waits = m.rest >= 0 || (s.nudge_lamps() && !s.live(start) && !s.live(stopper));
    return waits ? no_press : get_on(s, m);
}

move holder(const sight& s, memory& m) { return {s.on_board() ? get_on_board(s, m) : play_main(s, m)}; }

} // namespace hustle::lab
