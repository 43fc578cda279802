// Adding to the ladders. A light falls from the top of a ladder, one rung a tick, until it meets
// the first rung above the filled bar; there it stays, and the next light starts from the top.
#include "board/board.h"

#include "panel/text.h"

namespace hustle {

namespace {

using enum element;

constexpr count top_rung = 10;
constexpr std::string_view your_turn = "    CONTINUE OR COLLECT";

struct ladder {
    count& rung;
    count& run;   // the rung of the falling light
    count& steps; // rungs still to add
    timer ticks;
    void (*light)(game&, int);
    void (*dark)(game&, int);
};

// The light at the top: on the last free rung it is the jackpot, whatever steps are left.
bool start_fall(game& g, ladder& l) {
    play(g, sound::add);
    l.light(g, top_rung);
    if (l.rung != top_rung - 1)
        return false;
    l.rung = top_rung;
    l.steps = 0;
    stop_timer(g.p, l.ticks);
    jackpotrepeater(g);
    return true;
}

// The light on a lower rung; true when it has come to rest on the bar.
bool fall(game& g, ladder& l) {
    const count r = l.run;
    if (r < 1)
        return false;
    l.dark(g, r + 1);
    l.light(g, r);
    if (r < 2 || l.rung != r - 1)
        return false;
    l.run = top_rung;
    l.rung = r;
    --l.steps;
    return true;
}

// `rival` is the rung of the other ladder: at the top it has won the jackpot already.
void add_tick(game& g, ladder l, int rival) {
    if (rival == top_rung) {
        stop_timer(g.p, l.ticks);
        return;
    }
    if (l.steps == 0) {
        board_line(g, your_turn);
        stop_timer(g.p, l.ticks);
        l.run = 0;
        feature_enablebuttons(g);
        return;
    }
    if (l.run == top_rung ? start_fall(g, l) : fall(g, l))
        return;
    l.run = before_of(l.run, top_rung);
}

} // namespace

void feature_cashadd(game& g) {
    board& b = g.b;
    add_tick(g, {b.cashrung, b.cashrun, b.cashsteps, timer::feature_cashadd, light_cash, dark_cash},
             b.featurerung);
}

void feature_featureadd(game& g) {
    board& b = g.b;
    add_tick(
        g,
        {b.featurerung, b.featurerun, b.featuresteps, timer::feature_featureadd, light_feature, dark_feature},
        b.cashrung);
}

void feature_shotadd(game& g) {
    board& b = g.b;
    play(g, sound::add);
    ++b.shots;
    --b.shotsteps;
    set_caption(g.p, feature_shotbox, plain(b.shots).add("  "));
    if (b.shotsteps > 0)
        return;
    stop_timer(g.p, timer::feature_shotadd);
    board_line(g, your_turn);
}

} // namespace hustle
