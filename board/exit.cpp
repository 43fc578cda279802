// Every visit ends in a result in `win`: it flashes, is lifted to whole pounds, and goes to main.
#include "board/board.h"
#include "board/boardlamps.h"

#include "core/upward.h"
#include "panel/text.h"

namespace hustle {

namespace {

using enum element;

constexpr std::string_view game_over = "     *** GAME OVER ***";

short_text you_have_won(single win) { return short_text("     YOU HAVE WON ").add(fixed(win)); }

constexpr element closed_at_exit[] = {feature_exchangebutton, feature_stopfeature, feature_startbutton,
                                      feature_featurebutton,  feature_cashbutton,  feature_shotbutton};

// The pence of an amount, 0 to 99, as its text shows them.
int pence_of(single amount) {
    const short_text text = fixed(amount);
    const std::string_view digits = text;
    return (digits[digits.size() - 2] - '0') * 10 + (digits[digits.size() - 1] - '0');
}

// Tens of pence up to the next whole pound; what is left at the end of odd pence goes in one.
void begin_bonus(game& g, int pence) {
    machine& m = g.m;
    g.b.exitstep = 1;
    m.bonuspence = static_cast<single>(pence);
    while (m.bonuspence < 100) {
        const double step = m.bonuspence > 90 ? 100.0 - m.bonuspence : 10.0;
        add(m.bonuswin, step / 100.0);
        add(m.bonuspence, step);
    }
    stop_timer(g.p, timer::feature_exittimer);
    start_timer(g.p, timer::feature_bonus_win);
}

void close_board(game& g) {
    if (g.m.win > 0)
        start_timer(g.p, timer::wintobank);
    unload_screen(g, screen::feature);
}

void bonus_sum(game& g) {
    const machine& m = g.m;
    play(g, sound::win);
    single sum = m.win;
    add(sum, m.bonuswin);
    board_line(
        g,
        short_text("     ").add(fixed(m.win)).add(" + ").add(fixed(m.bonuswin)).add(" = ").add(fixed(sum)));
}

void end_bonus(game& g) {
    machine& m = g.m;
    add(m.win, m.bonuswin);
    m.bonuswin = 0;
    g.b.exitstep = 1;
    start_timer(g.p, timer::feature_exittimer);
    stop_timer(g.p, timer::feature_bonus_win);
}

} // namespace

void collectpress(game& g) {
    if (board_chain_runs(g))
        return;
    panel& p = g.p;
    disable(p, feature_exchangebutton);
    if (g.m.featuremode == mode::feature) {
        if (g.m.win == jackpot_win) {
            jackpotrepeater(g);
            return;
        }
        play(g, sound::win);
        start_timer(p, timer::feature_exittimer);
        return;
    }
    play(g, sound::win);
    board_line(g, you_have_won(g.m.win));
    stop_timer(p, timer::feature_hitimer);
    stop_timer(p, timer::feature_win_timer);
    stop_timer(p, timer::feature_gambletimer);
    disable(p, feature_hibutton);
    disable(p, feature_lobutton);
    clearfeatureladder(g);
    stop_timer(p, timer::feature_exchange_timer);
    lightallsquares(g);
    lightcashvalue(g);
    start_timer(p, timer::feature_exittimer);
}

void feature_exittimer(game& g) {
    disable(g.p, feature_collect);
    for (const element button : closed_at_exit)
        shut(g, button);
    if (const int pence = pence_of(g.m.win); pence != 0) {
        begin_bonus(g, pence);
        return;
    }
    const int step = g.b.exitstep;
    ++g.b.exitstep;
    if (step >= 15)
        close_board(g);
    else if (step % 2 == 1)
        board_line(g, "");
    else if (step >= 2)
        board_line(g, g.m.win > 0 ? you_have_won(g.m.win) : short_text(game_over));
}

void feature_bonus_win(game& g) {
    const int step = g.b.exitstep;
    ++g.b.exitstep;
    switch (step) {
    case 1: board_line(g, you_have_won(g.m.win)); break;
    case 4:
        board_line(g, "       * BONUS WIN *");
        play(g, sound::yeah);
        break;
    case 8:
        board_line(g, short_text("          * ").add(fixed(g.m.bonuswin)).add(" *"));
        play(g, sound::win);
        break;
    case 12: bonus_sum(g); break;
    case 16: end_bonus(g); break;
    default: break;
    }
}

void feature_unload(game& g) {
    panel& p = g.p;
    midi(g, tune::stop);
    hide(p, trailheld);
    stop_timer(p, timer::trail_flash);
    stop_timer(p, timer::feature_flashing_lights);
    traildark(g);
    if (g.m.win == 0)
        enable(p, start);
}

} // namespace hustle
