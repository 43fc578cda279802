// The board opens, and turns from the gamble to the game on the ring.
#include "board/board.h"
#include "board/boardlamps.h"

#include "core/start.h"
#include "panel/text.h"

namespace hustle {

namespace {

using enum element;

constexpr element dark_at_opening[] = {feature_startbutton, feature_featurebutton, feature_cashbutton,
                                       feature_shotbutton,  feature_stopfeature,   feature_hibutton,
                                       feature_lobutton};

constexpr std::string_view pounds[] = {"£1.00", "£1.60", "£2.00", "£2.40", "£3.60",
                                       "£4.00", "£5.00", "£6.00", "£8.00"};
constexpr std::string_view dollars[] = {"$1.00", "$1.60", "$2.00", "$2.40", "$3.60",
                                        "$4.00", "$5.00", "$6.00", "$8.00"};

void write_captions(game& g) {
    set_title(g.p, screen::feature, short_text("Hoard Hustle v").add(g.m.version));
    const bool gbp = g.m.currency == setting::gbp;
    if (!gbp && g.m.currency != setting::usd)
        return;
    for (int rung = 1; rung <= 9; ++rung)
        set_caption(g.p, nth(feature_m1, rung), gbp ? pounds[rung - 1] : dollars[rung - 1]);
}

void colour_lines(game& g) {
    const colour lit = led_colour(g.m.ledcolour);
    if (lit == 0)
        return;
    set_activecolor(g.p, feature_shotbox, lit);
    set_activecolor(g.p, feature_displayline, lit);
}

void copy_art(game& g) {
    panel& p = g.p;
    set_picture(p, feature_buttonbar, at(p, buttonbar).picture);
    set_picture(p, feature_toplogo, art::title);
    set_picture(p, feature_background, art::back);
    for (const element button : dark_at_opening)
        show_dark(g, button);
    for (int bomb = 1; bomb <= 3; ++bomb)
        set_picture(p, nth(feature_bomb1, bomb), art::bombicondark);
}

void first_rungs(game& g) {
    board& b = g.b;
    b.cashrung = 1;
    b.shots = 1;
    set_caption(g.p, feature_shotbox, "1  ");
    b.featurerung = 1;
    light_feature(g, 1);
}

void first_die(game& g) {
    g.b.dice = draw(g, 6);
    set_picture(g.p, feature_dicepic, nth(art::dice1pic, g.b.dice));
    if (g.b.dice == 1)
        disable(g.p, feature_lobutton);
    if (g.b.dice == 6)
        disable(g.p, feature_hibutton);
}

// The guarded run: a visit in which the machine keeps the player from losing.
void draw_guard(game& g) {
    machine& m = g.m;
    const bool drawn = draw(g, 2) == 2;
    m.invincible = flag::no;
    if (!drawn || !(m.pcent < 75) || m.win == jackpot_win || !(m.streakbank > 20))
        return;
    m.invincible = flag::yes;
    set_picture(g.p, feature_toplogo, art::title);
    start_timer(g.p, timer::feature_invincibletimer);
}

void open_gamble(game& g) {
    if (g.m.win != jackpot_win)
        play(g, sound::hilo);
    g.m.featuremode = mode::hilo;
    board_line(g, "           HIGHER");
    start_timer(g.p, timer::feature_gambletimer);
}

} // namespace

void feature_load(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    write_captions(g);
    colour_lines(g);
    copy_art(g);
    first_rungs(g);
    first_die(g);
    g.b.exitstep = 0;
    m.fastcashway = way::up;
    stop_timer(p, timer::numbers2);
    stop_timer(p, timer::feature_start);
    stop_timer(p, timer::feature_flashing_lights);
    if (m.win == 0)
        m.win = 1;
    lightallsquares(g);
    lightcashvalue(g);
    if (m.win == jackpot_win)
        jackpotrepeater(g);
    draw_guard(g);
    if (m.invincible == flag::no && m.win < jackpot_win)
        play(g, sound::feature);
    if (m.featuremode != mode::feature) {
        open_gamble(g);
        return;
    }
    enterfeature(g);
    show(p, feature_stopfeature);
}

void feature_focus(game& g) { stop_timer(g.p, timer::feature_start); }

void enterfeature(game& g) {
    panel& p = g.p;
    g.b.fadestep = 24;
    start_timer(p, timer::feature_exchange_effect);
    stop_timer(p, timer::feature_win_timer);
    stop_timer(p, timer::feature_hitimer);
    g.m.featuremode = mode::feature;
    show(p, feature_startbutton);
    board_line(g, "   * ENTERING FEATURE *");
    shut(g, feature_lobutton);
    shut(g, feature_hibutton);
    hide(p, feature_exchangebutton);
    disable(p, feature_collect);
    g.b.boardpos = 1;
}

void exchangepress(game& g) {
    if (board_chain_runs(g))
        return;
    stop_timer(g.p, timer::feature_exchange_timer);
    lightallsquares(g);
    play(g, sound::exchange);
    g.b.shots = 1;
    g.b.featurerung = 1;
    light_feature(g, 1);
    show(g.p, feature_stopfeature);
    clearcashladder(g);
    fillcashladder(g);
    enterfeature(g);
}

// The whole ring flashes while the exchange is offered.
void feature_exchange_timer(game& g) {
    if (g.b.boardphase == 1)
        darkallsquares(g);
    else if (g.b.boardphase == 2)
        lightallsquares(g);
    g.b.boardphase = next_of(g.b.boardphase, 2);
}

// The ring goes out square by square; with the last one the player's turn begins.
void feature_exchange_effect(game& g) {
    count& n = g.b.fadestep;
    if (n >= 1 && n <= 24)
        dark_square(g, n);
    if (n > 1) {
        --n;
        return;
    }
    midi(g, tune::play);
    board_line(g, "      * HOARD HUSTLE *");
    light_square(g, 1);
    stop_timer(g.p, timer::feature_exchange_effect);
    n = 0;
    feature_enablebuttons(g);
}

} // namespace hustle
