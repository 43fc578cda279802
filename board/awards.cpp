// The awards on the reels: the wait before each spin, the draw of a prize, and what the last reel
// ends. The rows and the reels' stops stand in awardspin.cpp.
#include "board/reelawards.h"

#include <limits>
#include <span>

namespace hustle {

namespace {

using enum element;

constexpr single no_end = std::numeric_limits<single>::infinity();

// How far into its table a draw may reach at a payout percentage; the first row whose limit is not
// passed decides. A reach of 0 draws nothing, and the row of the last spin stands.
enum class limit { below, upto };
struct reach_row {
    limit kind;
    single pcent;
    int reach;
};
constexpr reach_row seven_reach[] = {
    {limit::upto, 75, 3}, {limit::below, 76, 0}, {limit::upto, 85, 2}, {limit::upto, no_end, 1}};
constexpr reach_row pick_reach[] = {{limit::upto, 70, 8},  {limit::below, 71, 0},   {limit::upto, 75, 7},
                                    {limit::below, 76, 0}, {limit::upto, 80, 6},    {limit::below, 81, 0},
                                    {limit::upto, 90, 4},  {limit::upto, no_end, 3}};
constexpr reach_row win_reach[] = {{limit::below, 70, 8},    {limit::below, 70.1F, 0}, {limit::upto, 80, 6},
                                   {limit::upto, 82, 4},     {limit::below, 82.1F, 0}, {limit::upto, 90, 3},
                                   {limit::below, 90.1F, 0}, {limit::upto, no_end, 2}};

int reach_of(const game& g, std::span<const reach_row> rows) {
    for (const reach_row& r : rows)
        if (r.kind == limit::below ? g.m.pcent < r.pcent : g.m.pcent <= r.pcent)
            return r.reach;
    return 0;
}

void draw_row(game& g, count& row, int reach) {
    if (reach > 0)
        set(row, draw(g, reach));
}

void start_spin(game& g) { start_timer(g.p, timer::spinreel1); }

// The eighth tick of a wait spins; every one before it counts.
bool wait_is_over(game& g, timer wait) {
    count& ticks = g.m.awardwait;
    if (ticks != 8) {
        set(ticks, ticks + 1);
        return false;
    }
    ticks = 1;
    stop_timer(g.p, wait);
    return true;
}

void wait_and_spin(game& g, timer wait, handler spin) {
    if (!wait_is_over(g, wait))
        return;
    spin(g);
    disable(g.p, stopper);
}

} // namespace

void start_luckysevens(game& g) {
    disable(g.p, start);
    wait_and_spin(g, timer::start_luckysevens, sevenspin);
}

void start_winstreak(game& g) {
    disable(g.p, start);
    wait_and_spin(g, timer::start_winstreak, streakspin);
}

void start_winspins(game& g) {
    disable(g.p, start);
    if (g.m.awardwait == 0 || g.m.awardwait == 1)
        line(g, "       * WIN SPINS *");
    wait_and_spin(g, timer::start_winspins, winspin);
}

void start_pickawin(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    disable(p, start);
    if (m.awardwait >= 1 && m.awardwait <= 7) {
        line(g, "      * ON THE RUN *");
        if (m.pickstopped == flag::yes || m.pickspins == 0) {
            take_pick(g);
            stop_timer(p, timer::start_pickawin);
            m.awardwait = 1;
            return;
        }
    }
    if (!wait_is_over(g, timer::start_pickawin))
        return;
    pickspin(g);
    enable(p, stopper);
}

void take_pick(game& g) {
    enable(g.p, start);
    disable(g.p, stopper);
    start_timer(g.p, timer::wintobank);
    g.m.pickstopped = flag::no;
}

// The first draw is always made; above 85 the lowest row needs none.
void sevenspin(game& g) {
    disable(g.p, start);
    count& row = g.m.awarddraw;
    set(row, draw(g, 3));
    const int reach = reach_of(g, seven_reach);
    if (reach == 1)
        row = 1;
    else
        draw_row(g, row, reach);
    start_spin(g);
}

void pickspin(game& g) {
    disable(g.p, start);
    draw_row(g, g.m.pickdraw, reach_of(g, pick_reach));
    set(g.m.pickspins, g.m.pickspins - 1);
    start_spin(g);
}

void winspin(game& g) {
    disable(g.p, start);
    g.m.holdsoffered = truth::is_not;
    draw_row(g, g.m.awarddraw, reach_of(g, win_reach));
    start_spin(g);
}

void streakspin(game& g) {
    disable(g.p, start);
    set(g.m.awarddraw, draw(g, 7));
    start_spin(g);
}

} // namespace hustle
