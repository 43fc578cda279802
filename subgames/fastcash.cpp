// Fast Cash: a light walks the cash ladder at random, too fast to read, until it is stopped.
#include "board/board.h"
#include "board/reelawards.h"
#include "subgames/common.h"
#include "subgames/subgames.h"

namespace hustle {

namespace {

void fastcash_live(game& g) {
    board_line(g, "       * FAST CASH *");
    g.m.award = award::fastcash;
    enable(g.p, element::feature_stopfeature);
    g.m.win = 0;
    g.b.readystep = 1;
    clearcashladder(g);
    start_timer(g.p, timer::feature_fastcash);
    midi(g, tune::stop);
    play(g, sound::fastcash);
    stop_timer(g.p, timer::feature_start_fastcash);
}

} // namespace

void feature_start_fastcash(game& g) {
    const int step = g.b.readystep;
    if (step >= 22) {
        fastcash_live(g);
        return;
    }
    if (step == 1)
        board_line(g, "       * FAST CASH *");
    get_ready_line(g, step);
    ++g.b.readystep;
}

// `readystep` is the rung that the next move acts on. Below 1 the light is out of sight; rung 4 is
// passed in the direction of approach.
void feature_fastcash(game& g) {
    const bool low_toss = draw(g, 4) <= 2;
    const int rung = g.b.readystep;
    if (rung != 4)
        g.m.fastcashway = low_toss == (rung < 4) ? way::down : way::up;
    if (g.m.fastcashway == way::up) {
        if (rung >= 1 && rung <= 10) {
            light_cash(g, rung);
            g.m.win = cash_value(rung);
        }
        if (rung != 10)
            ++g.b.readystep;
    } else if (g.m.fastcashway == way::down) {
        if (rung >= 2 && rung <= 10) {
            dark_cash(g, rung);
            g.m.win = cash_value(rung - 1);
        }
        if (rung != 2)
            --g.b.readystep;
    }
}

} // namespace hustle
