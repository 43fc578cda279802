// The one skill button of the board: whatever runs and can be stopped, it stops.
#include "board/board.h"
#include "subgames/common.h"
#include "subgames/subgames.h"

#include <array>

namespace hustle {

namespace {

using enum element;

bool life_held(const game& g) { return is_visible(g.p, feature_el); }

// The choice between the ladders and the YES or NO have no answer before their first tick.
bool nothing_to_stop(const game& g) {
    return (g.m.award == award::pickaladder && g.b.ladderpick == 0) ||
           (g.m.award == award::skilldecide && g.b.yesnoanswer.empty());
}

// The token lands where the light stands.
void land(game& g, timer walk) {
    stop_timer(g.p, walk);
    disable(g.p, feature_stopfeature);
    landsquare(g);
    landed(g);
}

void stop_randomstop(game& g) { land(g, timer::feature_randomstop); }

void stop_skillstop(game& g) {
    g.b.skillstep = 1;
    land(g, timer::feature_skillstoptimer);
}

// `ladderpick` is the phase to come: 1 follows the cash ladder, 2 the features ladder.
void stop_pickaladder(game& g) {
    stop_timer(g.p, timer::feature_pickaladder);
    disable(g.p, feature_stopfeature);
    if (g.b.ladderpick == 1)
        takecash(g);
    else if (g.b.ladderpick == 2)
        takefeature(g);
}

void stop_fastcash(game& g) {
    play(g, sound::shots);
    stop_timer(g.p, timer::feature_fastcash);
    disable(g.p, feature_stopfeature);
    g.b.readystep = 1;
    if (g.m.win == jackpot_win) {
        jackpotrepeater(g);
        return;
    }
    won_line(g);
    start_timer(g.p, timer::feature_exittimer);
}

// The belt's timer goes on and finishes the run.
void stop_moneybelt(game& g) {
    disable(g.p, feature_stopfeature);
    g.m.award = award::moneybelt;
    g.b.beltphase = 2;
    play(g, sound::collect);
}

void answer_yes(game& g) {
    enable(g.p, feature_startbutton);
    g.m.award = award::nothing;
    play(g, sound::excelent);
    board_line(g, "         GOOD SHOT");
}

void answer_no(game& g) {
    if (life_held(g)) {
        g.m.award = award::nothing;
        start_timer(g.p, timer::feature_savedbyextra);
        return;
    }
    disable(g.p, feature_startbutton);
    playgameover(g);
    board_line(g, "     *** GAME OVER ***");
    g.m.win = 0;
    start_timer(g.p, timer::feature_exittimer);
}

void stop_yesorno(game& g) {
    stop_timer(g.p, timer::feature_yesorno);
    disable(g.p, feature_stopfeature);
    hold_the_machine(g, 1);
    if (g.b.yesnoanswer == flag::yes)
        answer_yes(g);
    else if (g.b.yesnoanswer == flag::no)
        answer_no(g);
}

// The shock's places, 1 to 8.

void shock_lost(game& g) {
    if (!life_held(g)) {
        lostboard(g);
        return;
    }
    start_timer(g.p, timer::feature_savedbyextra);
    feature_enablebuttons(g);
}

void shock_gameover(game& g) {
    if (life_held(g))
        g.m.award = award::nothing;
    shock_lost(g);
}

void shock_bomb(game& g) {
    board_line(g, "       * EXTRA BOMB *");
    lightbomb(g);
    disable(g.p, feature_stopfeature);
    feature_enablebuttons(g);
}

void shock_skilldecide(game& g) {
    play(g, sound::thinice);
    g.m.award = award::skilldecide;
    board_line(g, "        * CONTINUE *");
    show(g.p, feature_stopfeature);
    disable(g.p, feature_stopfeature);
    start_timer(g.p, timer::feature_start_thin_ice);
}

void shock_xtralife(game& g) {
    play(g, sound::ext_life);
    hold_the_machine(g, 1);
    show(g.p, feature_el);
    disable(g.p, feature_stopfeature);
    feature_enablebuttons(g);
}

void shock_takeprize(game& g) {
    feature_darkbuttons(g);
    board_line(g, "      *** SCARPER ***");
    g.m.award = award::pickaladder;
    g.b.ladderpick = 0;
    start_timer(g.p, timer::feature_pickaladder);
}

void shock_boost(game& g) {
    play(g, sound::boost);
    disable(g.p, feature_stopfeature);
    start_timer(g.p, timer::feature_start_boost);
}

constexpr std::array<handler, 8> shock_outcomes = {
    shock_gameover,    // 1 Game Over
    shock_lost,        // 2 Caught
    shock_bomb,        // 3 Xtra Bomb
    shock_skilldecide, // 4 Skill Decide
    shock_lost,        // 5 Bankrupt
    shock_xtralife,    // 6 Xtra Life
    shock_takeprize,   // 7 Scarper
    shock_boost,       // 8 Boost
};

void stop_shock(game& g) {
    g.m.award = award::none;
    stop_timer(g.p, timer::feature_shock_timer);
    stop_timer(g.p, timer::feature_shock_trueskill);
    if (g.b.shockpos >= 1 && g.b.shockpos <= 8)
        shock_outcomes[static_cast<std::size_t>(g.b.shockpos - 1)](g);
}

struct stop_row {
    word award;
    handler act;
};

constexpr stop_row stops[] = {
    {award::pickaladder, stop_pickaladder},  {award::randomstop, stop_randomstop},
    {award::skillstop, stop_skillstop},      {award::shots, shot},
    {award::electricshock, stop_shock},      {award::skilldecide, stop_yesorno},
    {award::fastcash, stop_fastcash},        {award::moneybelt, stop_moneybelt},
    {award::supermoneybelt, stop_moneybelt},
};

} // namespace

void stoppress(game& g) {
    if (nothing_to_stop(g))
        return;
    play(g, sound::select);
    for (const stop_row& r : stops) {
        if (r.award != g.m.award)
            continue;
        r.act(g);
        return;
    }
}

void lostboard(game& g) {
    feature_darkbuttons(g);
    playgameover(g);
    g.m.win = 0;
    start_timer(g.p, timer::feature_exittimer);
}

} // namespace hustle
