// What each square of the ring does when the token comes to rest on it.
#include "board/board.h"
#include "panel/ring.h"

namespace hustle {

namespace {

using enum element;

// `n`: rungs or shots to add.
void nothing(game&, count) {}

void add_cash(game& g, count n) {
    g.b.cashrun = 10;
    g.b.cashsteps = n;
    start_timer(g.p, timer::feature_cashadd);
}

void add_features(game& g, count n) {
    g.b.featurerun = 10;
    g.b.featuresteps = n;
    start_timer(g.p, timer::feature_featureadd);
}

void add_shots(game& g, count n) {
    g.b.shotsteps = n;
    start_timer(g.p, timer::feature_shotadd);
}

void multi_add(game& g, count n) {
    add_features(g, n);
    add_cash(g, n);
    add_shots(g, n);
}

void mystery(game& g, count) { mysterysquare(g); }

void extra_life(game& g, count) {
    show(g.p, feature_el);
    play(g, sound::ext_life);
}

void boost(game& g, count) {
    play(g, sound::boost);
    disable(g.p, feature_stopfeature);
    disable(g.p, feature_startbutton);
    start_timer(g.p, timer::feature_start_boost);
}

void game_over(game& g, count) {
    machine& m = g.m;
    disable(g.p, feature_startbutton);
    if (!is_visible(g.p, feature_el)) {
        playgameover(g);
        m.win = 0;
        start_timer(g.p, timer::feature_exittimer);
        return;
    }
    if (g.b.boardpos == 24)
        m.award = award::nothing;
    start_timer(g.p, timer::feature_savedbyextra);
}

void skill_stop(game& g, count) {
    play(g, sound::skillstop);
    g.m.award = award::skillstop;
    start_timer(g.p, timer::feature_start_skillstop);
}

void random_stop(game& g, count) {
    play(g, sound::skillstop);
    g.m.award = award::randomstop;
    start_timer(g.p, timer::feature_start_randomstop);
}

void bomb(game& g, count) { lightbomb(g); }

struct landing {
    std::string_view line;
    void (*act)(game&, count);
    count n = 0;
};
// clang-format off
constexpr landing landings[] = { // by square
    {"      * PRESS START *",     nothing},
    {"       * MULTI ADD *",      multi_add,    1},
    {"      * ADDING CASH *",     add_cash,     1},
    {"      * ADDING CASH *",     add_cash,     2},
    {"      * ADDING SHOTS *",    add_shots,    1},
    {"      * ADDING SHOTS *",    add_shots,    2},
    {"    * ADDING FEATURES *",   add_features, 1},
    {"    * ADDING FEATURES *",   add_features, 2},
    {"      *** MYSTERY ***",     mystery},
    {"       * EXTRA LIFE *",     extra_life},
    {"         * BOOST *",        boost},
    {"     *** GAME OVER ***",    game_over},
    {"       * SKILL STOP *",     skill_stop},
    {"      * RANDOM STOP *",     random_stop},
    {"       * EXTRA BOMB *",     bomb},
};
static_assert(std::size(landings) == square_kinds);
// clang-format on

} // namespace

void landsquare(game& g) {
    if (g.b.boardpos < 1 || g.b.boardpos > 24)
        return;
    const square resting = ring[static_cast<std::size_t>(g.b.boardpos - 1)];
    const landing& here = landings[static_cast<std::size_t>(resting)];
    board_line(g, here.line);
    here.act(g, here.n);
}

void landed(game& g) {
    if (g.m.award == award::electricshock || is_running(g.p, timer::feature_cashadd) ||
        is_running(g.p, timer::feature_featureadd))
        return;
    feature_enablebuttons(g);
}

void mysterysquare(game& g) {
    g.m.award = award::electricshock;
    board_line(g, "      *** MYSTERY ***");
    play(g, sound::question);
    g.b.shockpos = 0;
    feature_darkbuttons(g);
    start_timer(g.p, timer::feature_start_shock);
}

// Three bombs blow the safe.
void lightbomb(game& g) {
    panel& p = g.p;
    const element next = shows(p, feature_bomb1, art::bombicondark)   ? feature_bomb1
                         : shows(p, feature_bomb2, art::bombicondark) ? feature_bomb2
                                                                      : feature_bomb3;
    set_picture(p, next, art::bombiconlight);
    play(g, sound::explode);
    if (next != feature_bomb3)
        return;
    feature_darkbuttons(g);
    start_timer(p, timer::feature_start_bombfeature);
}

// The draw is made even in silence.
void playgameover(game& g) { play(g, nth(sound::gameover, draw(g, 5))); }

} // namespace hustle
