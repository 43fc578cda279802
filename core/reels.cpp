#include "core/reels.h"

#include "core/play.h"
#include "core/wins.h"

#include <algorithm>
#include <array>

namespace hustle {

namespace {

// A promised symbol is shown by these pictures; position and number stay as they were.
struct forced_row {
    word symbol;
    art pictures[3];
};
// clang-format off
constexpr forced_row forced[] = {
    {"cherry", {art::bcm, art::bcm, art::bcm}},
    {"bell",   {art::cbp, art::cbp, art::cbp}},
    {"rseven", {art::msp, art::psc, art::psc}},
    {"bseven", {art::psb, art::psb, art::bsm}},
    {"pound",  {art::bps, art::bps, art::spc}},
    {"melon",  {art::cmp, art::sms, art::sms}},
    {"bar",    {art::pbs, art::sbc, art::pbs}},
};

// The frames effect1 to effect4 by step 1 to 8, for each chain and each reel that it turns.
constexpr int frames[3][3][8] = {
    {{1, 4, 3, 2, 1, 4, 3, 2}, {2, 1, 4, 3, 2, 1, 4, 3}, {3, 2, 1, 4, 3, 2, 1, 4}},
    {{0, 0, 0, 0, 0, 0, 0, 0}, {1, 3, 2, 4, 1, 3, 2, 4}, {2, 4, 3, 1, 2, 4, 3, 1}},
    {{0, 0, 0, 0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 0, 0, 0}, {1, 2, 3, 4, 1, 2, 3, 4}},
};
// clang-format on

constexpr timer spin_timers[] = {timer::reelspin1, timer::reelspin2, timer::reelspin3};

void draw_stop(game& g, int which) {
    reel(g.m, which).num = 0;
    set_stop(g, which, draw(g, 16));
}

void run_over(game& g) {
    machine& m = g.m;
    m.trailvalue += numbers_shown(m);
    afterreels(g);
}

// A reel of the play has stopped by its draw: the next free one starts, or the run is over.
void next_reel(game& g, int stopped) {
    if (stopped == 1 && reel(g.m, 2).held == flag::no)
        start_timer(g.p, timer::reelspin2);
    else if (stopped <= 2 && reel(g.m, 3).held == flag::no)
        start_timer(g.p, timer::reelspin3);
    else
        run_over(g);
}

void draw_step(game& g, int which) {
    constexpr handler draws[] = {drawreel1, drawreel2, drawreel3};
    draws[which - 1](g);
    next_reel(g, which);
}

void forced_step(game& g, int which) {
    constexpr handler steps[] = {forcedstep1, forcedstep2, forcedstep3};
    steps[which - 1](g);
}

// The end of a reel's frames.
void stop_reel(game& g, int which) {
    machine& m = g.m;
    show_spin_frames(g, which, 8);
    stop_timer(g.p, spin_timers[which - 1]);
    play(g, sound::reelstop);
    m.spinstep = 1;
    if (m.linepromised == truth::is_not) {
        draw_step(g, which);
        return;
    }
    if (m.holdsbarred == truth::is_not)
        m.linepromised = truth::is_not;
    forced_step(g, which);
}

void spin(game& g, int which) {
    count& step = g.m.spinstep;
    show_spin_frames(g, which, step);
    if (step >= 8 || (step == 4 && g.m.reelspeed != 2)) // only the slow reel goes past step 4
        stop_reel(g, which);
    else
        ++step;
}

} // namespace

int held_reels(const machine& m) {
    return static_cast<int>(std::count_if(m.reels.begin(), m.reels.end(), is_held));
}

void release_reels(machine& m) {
    for (reel_state& r : m.reels)
        r.held = flag::no;
}

bool all_alike(const machine& m) {
    return m.reels[0].sym == m.reels[1].sym && m.reels[1].sym == m.reels[2].sym;
}

count numbers_shown(const machine& m) {
    return static_cast<count>(m.reels[0].num + m.reels[1].num + m.reels[2].num);
}

void set_stop(game& g, int which, int position) {
    reel(g.m, which).pos = static_cast<count>(position);
    reel(g.m, which).num = strip_stop(position).number;
    show_stop(g, which, position);
}

void show_stop(game& g, int which, int position) {
    const stop_row& stop = strip_stop(position);
    reel(g.m, which).sym = stop.symbol;
    set_picture(g.p, reel_picture(which), stop.picture);
}

art forced_picture(int which, word symbol) {
    const auto* const row = std::find_if(std::begin(forced), std::end(forced),
                                         [symbol](const forced_row& r) { return r.symbol == symbol; });
    return row == std::end(forced) ? art::none : row->pictures[which - 1];
}

void show_forced(game& g, int which) {
    const art picture = forced_picture(which, reel(g.m, which).sym);
    if (picture != art::none)
        set_picture(g.p, reel_picture(which), picture);
}

void showforced1(game& g) { show_forced(g, 1); }
void showforced2(game& g) { show_forced(g, 2); }
void showforced3(game& g) { show_forced(g, 3); }

void show_spin_frames(game& g, int which, int step) {
    if (step < 1 || step > 8)
        return;
    for (int r = which; r <= 3; ++r)
        if (!is_held(reel(g.m, r)))
            set_picture(g.p, reel_picture(r), nth(art::effect1, frames[which - 1][r - 1][step - 1]));
}

// A pair held on reels 2 and 3 never wins by reel 1's draw.
void drawreel1(game& g) {
    machine& m = g.m;
    if (reel(m, 1).held != flag::no)
        return;
    do {
        draw_stop(g, 1);
    } while (is_held(reel(m, 2)) && is_held(reel(m, 3)) && all_alike(m));
}

void drawreel2(game& g) {
    if (reel(g.m, 2).held == flag::no)
        draw_stop(g, 2);
}

// No free reel 3 falls into three of a kind, unless the pair has been held three plays running.
void drawreel3(game& g) {
    machine& m = g.m;
    if (reel(m, 3).held != flag::no)
        return;
    do {
        draw_stop(g, 3);
    } while (all_alike(m) &&
             (m.pairholds != 3 || (reel(m, 1).held == flag::no && reel(m, 2).held == flag::no)));
}

void reelspin1(game& g) {
    if (reel(g.m, 1).held == flag::no) {
        spin(g, 1);
        return;
    }
    stop_timer(g.p, timer::reelspin1);
    g.m.spinstep = 1;
    draw_step(g, 1);
}

void reelspin2(game& g) { spin(g, 2); }
void reelspin3(game& g) { spin(g, 3); }

} // namespace hustle
