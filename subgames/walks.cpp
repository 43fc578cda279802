// The two lights that run over the ring until the stop button lands the token under them.
#include "board/board.h"
#include "subgames/common.h"
#include "subgames/subgames.h"

#include <array>

namespace hustle {

namespace {

constexpr int wait_ticks = 10;

// One swing of the skill stop: the square that lights at each step. The one that goes out is the
// one before, the last square at step 1.
constexpr std::array<count, 24> swing = {20, 21, 22, 23, 24, 1,  24, 23, 22, 21, 20, 19,
                                         18, 17, 16, 15, 14, 13, 14, 15, 16, 17, 18, 19};

} // namespace

void feature_start_skillstop(game& g) {
    hold_buttons(g);
    if (still_waiting(g.b.skillwait, wait_ticks))
        return;
    g.b.skillwait = 0;
    offer_stop(g);
    start_timer(g.p, timer::feature_skillstoptimer);
    stop_timer(g.p, timer::feature_start_skillstop);
}

void feature_skillstoptimer(game& g) {
    play(g, sound::pick);
    const int step = g.b.skillstep;
    if (step >= 1 && step <= 24) {
        const auto at = static_cast<std::size_t>(step - 1);
        dark_square(g, swing[(at + 23) % 24]);
        light_square(g, swing[at]);
        g.b.boardpos = swing[at];
    }
    g.b.skillstep = next_of(g.b.skillstep, 24);
}

void feature_start_randomstop(game& g) {
    hold_buttons(g);
    if (still_waiting(g.b.randomwait, wait_ticks))
        return;
    darkallsquares(g);
    offer_stop(g);
    g.b.randomwait = 0;
    start_timer(g.p, timer::feature_randomstop);
    stop_timer(g.p, timer::feature_start_randomstop);
}

void feature_randomstop(game& g) {
    play(g, sound::pick);
    dark_square(g, g.b.boardpos);
    g.b.boardpos = draw(g, 24);
    light_square(g, g.b.boardpos);
}

} // namespace hustle
