// The die: the start press, its turning, and the draw with its checks in both modes.
#include "board/board.h"
#include "board/boardlamps.h"
#include "board/checks.h"

namespace hustle {

namespace {

using enum element;

constexpr int last_try = 30; // the counted draw that stands whatever it is

void draw_die(game& g) {
    board& b = g.b;
    const bool hilo = g.m.featuremode == mode::hilo;
    for (;;) {
        b.dice = draw(g, 6);
        if (hilo && b.dice == b.lastdice)
            continue; // a tie cannot happen, and is not counted
        set_picture(g.p, feature_dicepic, nth(art::dice1pic, b.dice));
        ++b.rolltries;
        if (b.rolltries == last_try || !(hilo ? call_is_refused(g) : roll_is_refused(g)))
            break;
    }
    b.rolltries = 1;
}

void begin_walk(game& g) {
    board& b = g.b;
    b.boardpos += b.dice;
    if (b.boardpos > 24)
        b.boardpos -= 24;
    b.movepos = next_of(b.movepos, 24);
    board_line(g, "         * MOVING *");
    start_timer(g.p, timer::feature_movetimer);
}

} // namespace

void feature_startpress(game& g) {
    if (board_chain_runs(g))
        return;
    feature_darkbuttons(g);
    resetboardlabels(g);
    show_lit(g, feature_startbutton);
    beginmove(g);
}

void beginmove(game& g) {
    board_line(g, "        * SPINNING *");
    g.b.movepos = g.b.boardpos;
    g.b.lastdice = g.b.dice;
    play(g, sound::reelspin);
    start_timer(g.p, timer::feature_spin_dice);
}

void feature_spin_dice(game& g) {
    count& step = g.b.dicestep;
    if (step > 12) {
        stop_timer(g.p, timer::feature_spin_dice);
        step = 1;
        rolldice(g);
        return;
    }
    if (step >= 1)
        set_picture(g.p, feature_dicepic, nth(art::spineffect1, (step - 1) % 4 + 1));
    ++step;
}

void rolldice(game& g) {
    draw_die(g);
    if (g.m.featuremode != mode::hilo) {
        begin_walk(g);
        return;
    }
    if (g.b.dice != 6)
        enable(g.p, feature_hibutton);
    if (g.b.dice != 1)
        enable(g.p, feature_lobutton);
    judgegamble(g);
}

void feature_movetimer(game& g) {
    board& b = g.b;
    play(g, sound::move);
    dark_square(g, b.movepos == 1 ? 24 : b.movepos - 1);
    light_square(g, b.movepos);
    if (b.movepos != b.boardpos) {
        b.movepos = next_of(b.movepos, 24);
        return;
    }
    landsquare(g);
    stop_timer(g.p, timer::feature_movetimer);
    landed(g);
}

} // namespace hustle
