// After a gamble win a light runs up the cash ladder from the old rung to the top and falls back
// to the new rung; only there does the money change.
#include "board/board.h"

namespace hustle {

namespace {

constexpr int step_at_top = 10;
constexpr int last_step = 18;

void climb_to_jackpot(game& g) {
    g.m.win = jackpot_win;
    stop_timer(g.p, timer::feature_win_timer);
    stop_timer(g.p, timer::feature_gambletimer);
    stop_timer(g.p, timer::feature_cashwin_effect);
    jackpotrepeater(g);
}

void rest_on(game& g, int rung) {
    dark_cash(g, rung - 1);
    g.m.win = cash_value(rung);
    start_timer(g.p, timer::feature_win_timer);
    start_timer(g.p, timer::feature_gambletimer);
    board_line(g, "");
    stop_timer(g.p, timer::feature_cashwin_effect);
}

} // namespace

void gamblewin(game& g) {
    stop_timer(g.p, timer::feature_win_timer);
    g.b.climbstep = rung_of(g.m.win);
    start_timer(g.p, timer::feature_cashwin_effect);
}

void feature_cashwin_effect(game& g) {
    const int k = g.b.climbstep;
    if (k > last_step) { // money that is on no rung has nowhere to rest
        stop_timer(g.p, timer::feature_cashwin_effect);
        return;
    }
    const int old_rung = rung_of(g.m.win);
    if (k >= 1 && k < step_at_top)
        light_cash(g, k + 1);
    if (k == step_at_top && old_rung == 9) {
        climb_to_jackpot(g);
        return;
    }
    if (k > step_at_top) {
        dark_cash(g, 21 - k);
        if (old_rung != 0 && 20 - k == old_rung + 1) {
            rest_on(g, old_rung + 1);
            return;
        }
    }
    ++g.b.climbstep;
}

} // namespace hustle
