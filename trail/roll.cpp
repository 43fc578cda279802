// In a Spin: the three reels roll down the strip as one, and the stop button takes what they show.
#include "core/reels.h"
#include "trail/stopper.h"

namespace hustle {

namespace {

constexpr int stops = 16;

// The prizes of the roll are its own, not those of a line.
struct prize_row {
    word symbol;
    single pounds;
};
constexpr prize_row prizes[] = {
    {"bell", 15}, {"rseven", 8}, {"bar", 5}, {"bseven", 4}, {"melon", 3}, {"cherry", 2}, {"pound", 1},
};

single prize(word symbol) {
    for (const prize_row& r : prizes)
        if (r.symbol == symbol)
            return r.pounds;
    return 0;
}

void show_step(game& g, int step) {
    machine& m = g.m;
    for (int which = 1; which <= 3; ++which)
        show_stop(g, which, stops + 1 - step);
    m.win = prize(reel(m, 1).sym);
    line(g, step % 2 == 1 ? "      * IN A SPIN *" : "");
}

} // namespace

void rollem(game& g) {
    machine& m = g.m;
    play(g, sound::dong);
    // Before the first roll since the program started there is no step to show.
    if (m.rollstep >= 1 && m.rollstep <= stops)
        show_step(g, m.rollstep);
    m.rollstep = next_of(m.rollstep, stops);
}

void roll_stop(game& g) {
    disable(g.p, element::stopper);
    start_timer(g.p, timer::wintobank);
    stop_timer(g.p, timer::rollem);
}

} // namespace hustle
