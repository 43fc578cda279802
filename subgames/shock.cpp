// The electric shock: a light runs over eight labels in the middle of the ring.
#include "board/board.h"
#include "subgames/common.h"
#include "subgames/subgames.h"

#include <array>

namespace hustle {

namespace {

using enum element;

constexpr colour lit_label = 0x0000FF;
constexpr int extra_life = 6;
constexpr int take_prize = 7;

struct place {
    element label;
    std::string_view fast; // the line in the fast form of the run
    std::string_view slow; // and in the slow one
};

constexpr std::array<place, 8> places = {{
    {feature_gameoverlabel, "     *** GAME OVER ***", "     *** GAME OVER ***"},
    {feature_loselabel, "          * LOSE *", "          * LOSE *"},
    {feature_continuelabel, "       * XTRA BOMB *", "       * XTRA BOMB *"},
    {feature_skilldecidelabel, "      * SKILL DECIDE *", "      * SKILL DECIDE *"},
    {feature_bankruptlabel, "        * BANKRUPT *", "        * BANKRUPT *"},
    {feature_xtralifelabel, "       * EXTRA LIFE *", "       * EXTRA LIFE *"},
    {feature_takeprizelabel, "       * TAKE PRIZE *", "       * TAKE PRIZE *"},
    {feature_boostlabel, "          * BOOST *", "         * BOOST *"},
}};

// An extra life is on offer while none is held and the machine has not paid too much; otherwise
// its place gives way to the next.
void give_way(game& g) {
    if (g.b.shockpos == extra_life && (is_visible(g.p, feature_el) || !(g.m.pcent < 85.0f)))
        g.b.shockpos = take_prize;
}

void show_place(game& g, std::string_view place::*text) {
    give_way(g);
    const place& here = places[static_cast<std::size_t>(g.b.shockpos - 1)];
    set_fore(g.p, here.label, lit_label);
    board_line(g, here.*text);
}

void lightboardlabels(game& g) {
    for (const place& each : places)
        set_fore(g.p, each.label, lit_label);
}

// The guarded run can be read and chosen; otherwise the light is too fast.
void shock_live(game& g) {
    if (g.m.invincible == flag::yes) {
        start_timer(g.p, timer::feature_shock_trueskill);
        stop_timer(g.p, timer::feature_shock_timer);
    } else {
        start_timer(g.p, timer::feature_shock_timer);
    }
    g.b.shockpos = 1;
    offer_stop(g);
    stop_timer(g.p, timer::feature_start_shock);
}

} // namespace

void feature_start_shock(game& g) {
    const int step = g.b.shockpos;
    if (step == 10) {
        shock_live(g);
        return;
    }
    if (step % 2 == 0)
        lightboardlabels(g);
    else
        resetboardlabels(g);
    ++g.b.shockpos;
}

void feature_shock_timer(game& g) {
    resetboardlabels(g);
    do
        g.b.shockpos = draw(g, 8);
    while (g.b.shockpos == g.b.lastshock);
    show_place(g, &place::fast);
    g.b.lastshock = g.b.shockpos;
    play(g, sound::ping);
}

void feature_shock_trueskill(game& g) {
    g.b.shockpos = next_of(g.b.shockpos, 8);
    resetboardlabels(g);
    show_place(g, &place::slow);
    play(g, sound::ping);
}

} // namespace hustle
