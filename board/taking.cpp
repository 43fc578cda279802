// Taking one of the three ladders: what is on the other two is lost.
#include "board/board.h"
#include "board/boardlamps.h"

namespace hustle {

namespace {

using enum element;

struct prize_row {
    timer starts;
    word award = {}; // where this step names it
};
// Rungs 1 to 9 of the features ladder; rung 10 is the jackpot.
constexpr prize_row prizes[] = {
    {timer::feature_start_sevenspinner},
    {timer::feature_moneybelttimer, award::moneybelt},
    {timer::feature_start_fastcash},
    {timer::feature_start_reelskill},
    {timer::feature_start_pickawin},
    {timer::feature_start_winspins},
    {timer::feature_moneybelttimer, award::supermoneybelt},
    {timer::feature_start_winstreak},
    {timer::feature_start_letsspin},
};

// One press closes all four buttons; only the pressed one stays lit.
void close_turn(game& g, element pressed) {
    feature_darkbuttons(g);
    show_lit(g, pressed);
}

} // namespace

void cashpress(game& g) {
    if (board_chain_runs(g))
        return;
    close_turn(g, feature_cashbutton);
    clearfeatureladder(g);
    takecash(g);
}

void takecash(game& g) {
    play(g, sound::select);
    disable(g.p, feature_startbutton);
    disable(g.p, feature_stopfeature);
    disable(g.p, feature_collect);
    g.m.win = cash_value(g.b.cashrung);
    start_timer(g.p, timer::feature_exittimer);
}

void featurepress(game& g) {
    if (board_chain_runs(g))
        return;
    close_turn(g, feature_featurebutton);
    play(g, sound::select);
    clearcashladder(g);
    clearfeatureladder(g);
    lightfeaturerung(g);
    takefeature(g);
}

void takefeature(game& g) {
    play(g, sound::select);
    const int rung = g.b.featurerung;
    if (rung < 1 || rung > 9) {
        jackpotrepeater(g);
        return;
    }
    const prize_row& row = prizes[rung - 1];
    if (!row.award.empty())
        g.m.award = row.award;
    if (row.starts == timer::feature_moneybelttimer) // a belt that a new game broke off is forgotten
        g.b.beltphase = g.b.beltstep = 0;
    start_timer(g.p, row.starts);
}

void shotpress(game& g) {
    if (board_chain_runs(g))
        return;
    close_turn(g, feature_shotbutton);
    play(g, sound::select);
    board_line(g, "      SHOTS COLLECTED");
    clearfeatureladder(g);
    clearcashladder(g);
    takeshots(g);
}

void takeshots(game& g) {
    panel& p = g.p;
    g.m.award = award::shots;
    g.b.shotstate = shooting::idle;
    disable(p, feature_stopfeature);
    clearcashladder(g);
    hide(p, feature_startbutton);
    show(p, feature_stopfeature);
    disable(p, feature_collect);
    start_timer(p, timer::feature_start_shots);
}

} // namespace hustle
