// The board says GET READY, closes with nothing in `win`, and an award on the reels takes over.
#include "board/reelawards.h"

#include "core/upward.h"

namespace hustle {

namespace {

constexpr int last_ready_step = 22;

// What the machine is told at the hand-over, beside `win`.
void tell_luckysevens(game& g) { g.m.award = award::luckysevens; }
void tell_pickawin(game& g) {
    g.m.pickstopped = flag::no;
    g.m.award = award::pickawin;
    g.m.pickspins = 8;
}
void tell_winspins(game& g) {
    g.m.winspinsleft = 3;
    g.m.award = award::winspins;
    disable(g.p, element::start);
}
void tell_winstreak(game& g) { g.m.award = award::winstreak; }
void tell_nothing(game&) {}
void tell_letsspin(game& g) { enable(g.p, element::stopper); }

struct handover_row {
    std::string_view title; // at step 1
    std::string_view text;  // at the hand-over
    handler tell;
    timer here, there; // the timer of the board and that of main
};
constexpr handover_row sevenspinner = {"      * SEVEN SPINNER *", "      * SEVEN SPINNER *", tell_luckysevens,
                                       timer::feature_start_sevenspinner, timer::start_luckysevens};
constexpr handover_row on_the_run = {"       * ON THE RUN *", "       * ON THE RUN *", tell_pickawin,
                                     timer::feature_start_pickawin, timer::start_pickawin};
constexpr handover_row win_spins = {"        * WIN SPINS *", "        * WINSPINS *", tell_winspins,
                                    timer::feature_start_winspins, timer::start_winspins};
constexpr handover_row run_for_it = {"       * RUN FOR IT *", "       * RUN FOR IT *", tell_winstreak,
                                     timer::feature_start_winstreak, timer::start_winstreak};
constexpr handover_row reel_skill = {"       * REEL SKILL *", "       * REEL SKILL *", tell_nothing,
                                     timer::feature_start_reelskill, timer::start_reelskill};
constexpr handover_row in_a_spin = {"       * IN A SPIN *", "       * IN A SPIN *", tell_letsspin,
                                    timer::feature_start_letsspin, timer::rollem};

void ready_tick(game& g, const handover_row& row) {
    count& step = g.b.readystep;
    if (step < last_ready_step) {
        if (step == 1)
            board_line(g, row.title);
        get_ready_line(g, step);
        ++step;
        return;
    }
    step = 0;
    board_line(g, row.text);
    g.m.win = 0;
    row.tell(g);
    stop_timer(g.p, row.here);
    start_timer(g.p, row.there);
    unload_screen(g, screen::feature);
}

} // namespace

void get_ready_line(game& g, int step) {
    constexpr std::string_view frames[] = {
        "     >    GET READY    <",
        "      >   GET READY   <",
        "       >  GET READY  <",
        "        > GET READY <",
    };
    if (step >= 10 && step < last_ready_step)
        board_line(g, frames[(step - 10) % 4]);
}

void feature_start_sevenspinner(game& g) { ready_tick(g, sevenspinner); }
void feature_start_pickawin(game& g) { ready_tick(g, on_the_run); }
void feature_start_winspins(game& g) { ready_tick(g, win_spins); }
void feature_start_winstreak(game& g) { ready_tick(g, run_for_it); }
void feature_start_reelskill(game& g) { ready_tick(g, reel_skill); }
void feature_start_letsspin(game& g) { ready_tick(g, in_a_spin); }

} // namespace hustle
