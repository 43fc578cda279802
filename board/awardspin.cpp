// A spin of an award: the reels run one after the other and stop on art that shows the prize that
// was drawn before. No strip, no stake, no holds.
#include "board/reelawards.h"

#include "core/play.h"
#include "core/reels.h"
#include "panel/prizes.h"
#include "panel/text.h"

#include <cmath>
#include <span>

namespace hustle {

namespace {

using enum element;
using enum art;

struct prize_row {
    word symbol[3];
    art picture[3];
    single win; // pounds
};

// clang-format off
constexpr prize_row seven_rows[] = {
    {{"rseven", "rseven", "bseven"}, {psc, msp, psb}, 1.60F},
    {{"bseven", "bseven", "bseven"}, {psb, psb, bsm}, 4.00F},
    {{"rseven", "rseven", "rseven"}, {psc, msp, psc}, 8.00F},
};
// On the Run and Run for It.
constexpr prize_row run_rows[] = {
    {{"pound",  "pound",  "pound"},  {bps, mps, spc}, 1.00F},
    {{"cherry", "cherry", "cherry"}, {bcm, pcb, scp}, 2.00F},
    {{"melon",  "melon",  "melon"},  {cmp, cmp, cmp}, 3.00F},
    {{"bseven", "bseven", "bseven"}, {psb, psb, bsm}, 4.00F},
    {{"bar",    "bar",    "bar"},    {pbs, sbc, pbs}, 5.00F},
    {{"bar",    "bar",    "bar"},    {pbs, sbc, pbs}, 5.00F},
    {{"rseven", "rseven", "rseven"}, {msp, msp, msp}, 8.00F},
};
constexpr prize_row winspin_rows[] = {
    {{"pound",  "pound",  "pound"},  {bps, cpb, mps},  1.00F},
    {{"cherry", "cherry", "cherry"}, {scp, bcm, scp},  2.00F},
    {{"melon",  "melon",  "melon"},  {cmp, sms, cmp},  3.00F},
    {{"bseven", "bseven", "bseven"}, {psb, psb, psb},  6.00F},
    {{"bar",    "bar",    "bar"},    {sbc, sbc, pbs},  5.00F},
    {{"bar",    "bar",    "bar"},    {sbc, sbc, pbs},  5.00F},
    {{"rseven", "rseven", "rseven"}, {psc, psc, psc},  8.00F},
    {{"bell",   "bell",   "bell"},   {cbp, cbp, cbp}, jackpot_win},
};
// clang-format on

void end_luckysevens(game& g) { start_timer(g.p, timer::wintobank); }

void end_winstreak(game& g) {
    add(g.m.streaktotal, g.m.win);
    start_timer(g.p, timer::wintobank);
}

void end_pickawin(game& g) {
    if (g.m.pickstopped != flag::yes && g.m.pickspins != 0)
        start_timer(g.p, timer::start_pickawin);
    else
        take_pick(g);
}

void end_winspins(game& g) {
    machine& m = g.m;
    m.winspintotal = static_cast<count>(std::lrint(m.winspintotal + double{m.win}));
    line(g, short_text("           ").add(fixed(static_cast<single>(m.winspintotal))));
    play(g, sound::win);
    --m.winspinsleft;
    if (m.winspinsleft > 0) {
        start_timer(g.p, timer::start_winspins);
    } else {
        disable(g.p, stopper);
        m.win = static_cast<single>(m.winspintotal);
        m.winspintotal = 0;
        start_timer(g.p, timer::wintobank);
    }
    refresh_pcent_guarded(m);
}

struct award_row {
    word name;
    std::span<const prize_row> rows;
    count machine::*drawn;
    handler end; // after the third reel
};
constexpr award_row awards[] = {
    {award::winstreak, run_rows, &machine::awarddraw, end_winstreak},
    {award::pickawin, run_rows, &machine::pickdraw, end_pickawin},
    {award::winspins, winspin_rows, &machine::awarddraw, end_winspins},
    {award::luckysevens, seven_rows, &machine::awarddraw, end_luckysevens},
};

// The row that was drawn, or none where the table has not got it.
const prize_row* drawn_row(const game& g, const award_row& a) {
    const int n = g.m.*a.drawn;
    return n >= 1 && n <= static_cast<int>(a.rows.size()) ? &a.rows[static_cast<std::size_t>(n - 1)]
                                                          : nullptr;
}

// A reel without a row rests on the symbol that it has.
void stop_reel(game& g, const award_row& a, int which) {
    const prize_row* const row = drawn_row(g, a);
    if (row != nullptr) {
        reel(g.m, which).sym = row->symbol[which - 1];
        set_picture(g.p, reel_picture(which), row->picture[which - 1]);
    } else {
        show_forced(g, which);
    }
    if (which < 3) {
        start_timer(g.p, nth(timer::spinreel1, which + 1));
        return;
    }
    if (row != nullptr)
        g.m.win = row->win;
    a.end(g);
}

void end_frames(game& g, int which) {
    stop_timer(g.p, nth(timer::spinreel1, which));
    play(g, sound::reelstop);
    g.m.spinstep = 1;
    for (const award_row& a : awards)
        if (g.m.award == a.name) {
            stop_reel(g, a, which);
            return;
        }
}

// Fast reels, and one random spin in three, stop at the fourth step.
bool stops_early(game& g) { return g.m.reelspeed == 1 || (g.m.reelspeed == 3 && draw(g, 3) == 3); }

void spin(game& g, int which) {
    count& step = g.m.spinstep;
    if (step <= 8)
        show_spin_frames(g, which, step);
    if (step > 8 || (step == 4 && stops_early(g)))
        end_frames(g, which);
    else
        ++step;
}

} // namespace

void spinreel1(game& g) { spin(g, 1); }
void spinreel2(game& g) { spin(g, 2); }
void spinreel3(game& g) { spin(g, 3); }

} // namespace hustle
