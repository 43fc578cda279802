// The hi-lo gamble: the call, its judgement, and what flashes while the board waits for one.
#include "board/board.h"
#include "board/boardlamps.h"
#include "board/checks.h"

namespace hustle {

namespace {

using enum element;

constexpr element closed_by_call[] = {feature_featurebutton, feature_cashbutton, feature_shotbutton,
                                      feature_exchangebutton, feature_collect};

void call(game& g, word called) {
    panel& p = g.p;
    stop_timer(p, timer::feature_hitimer);
    stop_timer(p, timer::feature_win_timer);
    for (const element button : closed_by_call)
        shut(g, button);
    stop_timer(p, timer::feature_gambletimer);
    shut(g, feature_hibutton);
    shut(g, feature_lobutton);
    show_lit(g, called == choice::hi ? feature_hibutton : feature_lobutton);
    g.b.hilochoice = called;
    board_line(g, "        * SPINNING *");
    g.b.lastdice = g.b.dice;
    play(g, sound::reelspin);
    start_timer(p, timer::feature_spin_dice);
}

void win_gamble(game& g) {
    panel& p = g.p;
    play(g, sound::win);
    start_timer(p, timer::feature_hitimer);
    start_timer(p, timer::feature_win_timer);
    start_timer(p, timer::feature_gambletimer);
    board_line(g, "       *** WINNER ***");
    hide(p, feature_losegamble);
    ++g.b.cashrung;
    gamblewin(g);
    play(g, sound::hilo);
    enable(p, feature_collect);
    enable(p, feature_exchangebutton);
    start_timer(p, timer::feature_exchange_timer);
}

void lose_gamble(game& g) {
    panel& p = g.p;
    stop_timer(p, timer::feature_exchange_timer);
    lightallsquares(g);
    disable(p, feature_lobutton);
    disable(p, feature_hibutton);
    clearcashladder(g);
    playgameover(g);
    show(p, feature_losegamble);
    g.m.win = 0;
    start_timer(p, timer::feature_exittimer);
}

// The words of the waiting board, each following the one that the line shows; another text stays.
constexpr std::string_view blank = "";
constexpr std::string_view higher = "           HIGHER";
constexpr std::string_view or_lower = "          OR LOWER";
constexpr std::string_view or_exchange = "        OR EXCHANGE ?";
constexpr std::string_view or_word = "             OR";
constexpr std::string_view lower = "           LOWER";

struct following {
    std::string_view now, next;
};
constexpr following with_exchange[] = {
    {blank, higher}, {higher, or_lower}, {or_lower, or_exchange}, {or_exchange, blank}};
constexpr following without_exchange[] = {
    {blank, higher}, {higher, or_word}, {or_word, lower}, {lower, blank}};

} // namespace

void hipress(game& g) { call(g, choice::hi); }
void lopress(game& g) { call(g, choice::lo); }

void judgegamble(game& g) {
    if (call_wins(g.b))
        win_gamble(g);
    else
        lose_gamble(g);
}

// The two buttons flash in turn, and hurry after the first four of each ten steps.
void feature_hitimer(game& g) {
    const int step = g.b.hilostep;
    g.b.hilostep = next_of(g.b.hilostep, 10);
    if (step == 0)
        return;
    const bool hi = step % 2 == 1;
    const element turn = hi ? feature_hibutton : feature_lobutton;
    if (is_enabled(g.p, turn))
        show_lit(g, turn);
    show_dark(g, hi ? feature_lobutton : feature_hibutton);
    if (hi)
        set_interval(g.p, timer::feature_hitimer, step <= 3 ? 200 : 100);
}

// The next rung flashes against the lose lamp.
void feature_win_timer(game& g) {
    const int rung = rung_of(g.m.win);
    if (g.m.featuremode != mode::hilo || rung == 0)
        return;
    const bool lights = cash_is_dark(g, rung + 1);
    if (lights)
        light_cash(g, rung + 1);
    else
        dark_cash(g, rung + 1);
    set_visible(g.p, feature_losegamble, !lights);
}

void feature_gambletimer(game& g) {
    if (g.m.win == jackpot_win) {
        board_line(g, "      JACKPOT REPEATER");
        return;
    }
    if (g.m.featuremode != mode::hilo)
        return;
    const auto& words = is_enabled(g.p, feature_exchangebutton) ? with_exchange : without_exchange;
    for (const following& f : words)
        if (caption(g.p, feature_displayline) == f.now) {
            board_line(g, f.next);
            return;
        }
}

} // namespace hustle
