// The awards on the reels: the wait before each spin, the draw of a prize, and what the last reel
// ends. The rows and the reels' stops stand in awardspin.cpp.
#include "board/reelawards.h"

#include "core/bands.h"

namespace hustle {

namespace {

using enum element;

// How far into its table a draw may reach. A reach of 0 draws nothing, and the row of the last spin
// stands.
constexpr band seven_reach[] = {
    {edge::upto, 75, 3}, {edge::below, 76, 0}, {edge::upto, 85, 2}, {edge::upto, no_limit, 1}};
constexpr band pick_reach[] = {{edge::upto, 70, 8},  {edge::below, 71, 0},     {edge::upto, 75, 7},
                               {edge::below, 76, 0}, {edge::upto, 80, 6},      {edge::below, 81, 0},
                               {edge::upto, 90, 4},  {edge::upto, no_limit, 3}};
constexpr band win_reach[] = {{edge::below, 70, 8},    {edge::below, 70.1F, 0},  {edge::upto, 80, 6},
                              {edge::upto, 82, 4},     {edge::below, 82.1F, 0},  {edge::upto, 90, 3},
                              {edge::below, 90.1F, 0}, {edge::upto, no_limit, 2}};

void draw_row(game& g, count& row, int reach) {
    if (reach > 0)
        row = draw(g, reach);
}

void start_spin(game& g) { start_timer(g.p, timer::spinreel1); }

// The eighth tick of a wait spins; every one before it counts.
bool wait_is_over(game& g, timer wait) {
    count& ticks = g.m.awardwait;
    if (still_waiting(ticks, 8))
        return false;
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
    row = draw(g, 3);
    const int reach = band_figure(g.m.pcent, seven_reach);
    if (reach == 1)
        row = 1;
    else
        draw_row(g, row, reach);
    start_spin(g);
}

void pickspin(game& g) {
    disable(g.p, start);
    draw_row(g, g.m.pickdraw, band_figure(g.m.pcent, pick_reach));
    --g.m.pickspins;
    start_spin(g);
}

void winspin(game& g) {
    disable(g.p, start);
    g.m.holdsoffered = truth::is_not;
    draw_row(g, g.m.awarddraw, band_figure(g.m.pcent, win_reach));
    start_spin(g);
}

void streakspin(game& g) {
    disable(g.p, start);
    g.m.awarddraw = draw(g, 7);
    start_spin(g);
}

} // namespace hustle
