// The jackpot repeater: five seconds of flashing, then 15.00 to the bank.
#include "board/board.h"
#include "board/boardlamps.h"

#include "core/upward.h"

namespace hustle {

namespace {

using enum element;

constexpr element closed[] = {feature_startbutton, feature_featurebutton, feature_cashbutton,
                              feature_shotbutton,  feature_collect,       feature_hibutton,
                              feature_lobutton};
constexpr element flashing[] = {feature_featurebutton, feature_cashbutton,     feature_shotbutton,
                                feature_startbutton,   feature_exchangebutton, feature_collect,
                                feature_stopfeature};
constexpr timer silenced[] = {timer::feature_exchange_timer, timer::feature_gambletimer,
                              timer::feature_win_timer, timer::feature_hitimer};

constexpr int flash_ticks = 50;

// Every other square lights: the even ones first.
void flash_squares(game& g, int phase) {
    if (phase == 0)
        return;
    for (int n = 1; n <= 24; ++n)
        if ((n % 2 == 0) == (phase == 1))
            light_square(g, n);
        else
            dark_square(g, n);
}

void flash_buttons(game& g, void (*look)(game&, element)) {
    for (const element button : flashing)
        if (is_visible(g.p, button))
            look(g, button);
}

void flash_ladders(game& g, int phase) {
    if (phase == 1) {
        lightladders(g);
        set_picture(g.p, feature_toplogo, art::title);
        flash_buttons(g, show_dark);
    } else if (phase == 2) {
        clearfeatureladder(g);
        clearcashladder(g);
        set_picture(g.p, feature_toplogo, art::title2);
        flash_buttons(g, show_lit);
    }
}

} // namespace

void jackpotrepeater(game& g) {
    panel& p = g.p;
    g.m.win = jackpot_win;
    for (const timer t : silenced)
        stop_timer(p, t);
    clearfeatureladder(g);
    clearcashladder(g);
    darkallsquares(g);
    for (const element button : closed)
        shut(g, button);
    stop_timer(p, timer::feature_butflash);
    g.m.award = award::jackpot;
    board_line(g, "    * JACKPOT REPEATER *");
    play(g, sound::jackpot);
    midi(g, tune::stop);
    start_timer(p, timer::feature_flashing_lights);
}

void feature_flashing_lights(game& g) {
    board& b = g.b;
    flash_squares(g, b.lightphase);
    b.lightphase = next_of(b.lightphase, 2);
    flash_ladders(g, b.logophase);
    b.logophase = next_of(b.logophase, 4);
    ++b.lightticks;
    if (b.lightticks < flash_ticks)
        return;
    b.lightticks = 0;
    start_timer(g.p, timer::wintobank);
    unload_screen(g, screen::feature);
}

} // namespace hustle
