// The small awards of the board: thin ice, Pick a Ladder, boost, three bombs, the extra life spent,
// and the logo of the guarded run.
#include "board/board.h"
#include "subgames/common.h"
#include "subgames/subgames.h"

namespace hustle {

namespace {

using enum element;

constexpr int wait_ticks = 10;

} // namespace

void feature_start_thin_ice(game& g) {
    if (still_waiting(g.b.shortwait, wait_ticks))
        return;
    g.b.yesnoanswer = {}; // no answer before the first tick
    start_timer(g.p, timer::feature_yesorno);
    g.b.shortwait = 1;
    enable(g.p, feature_stopfeature);
    stop_timer(g.p, timer::feature_start_thin_ice);
}

void feature_yesorno(game& g) {
    set_interval(g.p, timer::feature_yesorno, g.m.invincible == flag::yes ? 500 : 100);
    if (g.b.yesnostep == 0)
        g.b.yesnostep = 1;
    const bool yes = g.b.yesnostep == 2;
    play(g, yes ? sound::yes : sound::no);
    g.b.yesnoanswer = yes ? flag::yes : flag::no;
    board_line(g, yes ? " YES      CONTINUE" : "          CONTINUE      NO");
    g.b.yesnostep = next_of(g.b.yesnostep, 2);
}

void feature_pickaladder(game& g) {
    if (g.b.ladderpick == 0)
        g.b.ladderpick = 1;
    play(g, sound::ping);
    clearfeatureladder(g);
    clearcashladder(g);
    if (g.b.ladderpick == 1) {
        board_line(g, "       * FEATURES *");
        for (int n = 1; n <= g.b.featurerung && n <= 10; ++n)
            light_feature(g, n);
    } else {
        board_line(g, "         * CASH *");
        fillcashladder(g);
    }
    g.b.ladderpick = next_of(g.b.ladderpick, 2);
}

void feature_start_boost(game& g) {
    hold_buttons(g);
    if (still_waiting(g.b.shortwait, wait_ticks))
        return;
    g.b.shortwait = 0;
    beginmove(g);
    stop_timer(g.p, timer::feature_start_boost);
}

void feature_start_bombfeature(game& g) {
    const int step = g.b.readystep;
    if (step >= 20) {
        g.b.readystep = 0;
        jackpotrepeater(g);
        stop_timer(g.p, timer::feature_start_bombfeature);
        return;
    }
    if (step == 1)
        board_line(g, "     * BLOW THE SAFE *");
    flash_line(g, step, 10, 19, "        HOARD HUSTLE");
    ++g.b.readystep;
}

void feature_savedbyextra(game& g) {
    const int step = g.b.readystep;
    if (step == 1) {
        playgameover(g);
        board_line(g, "     *** GAME OVER ***");
        for (element button : {feature_stopfeature, feature_startbutton, feature_featurebutton,
                               feature_cashbutton, feature_shotbutton})
            disable(g.p, button);
    } else if (step == 10) {
        play(g, sound::lucky2);
        board_line(g, "     *** EXTRA LIFE ***");
    } else if (step >= 12 && step <= 24) {
        set_visible(g.p, feature_el, step % 2 != 0);
    } else if (step == 25) {
        board_line(g, "    *** PRESS START ***");
        hide(g.p, feature_el);
        feature_enablebuttons(g);
        stop_timer(g.p, timer::feature_savedbyextra);
    }
    g.b.readystep = static_cast<count>(step == 25 ? 1 : step + 1); // left past it by another game it runs on
}

void feature_invincibletimer(game& g) {
    set_picture(g.p, feature_toplogo, shows(g.p, feature_toplogo, art::title) ? art::title2 : art::title);
}

} // namespace hustle
