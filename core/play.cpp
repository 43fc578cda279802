#include "core/play.h"

#include "core/bank.h"
#include "core/nudges.h"
#include "core/reels.h"
#include "core/typedtexts.h"
#include "core/upward.h"
#include "core/wins.h"
#include "panel/sheet.h"

namespace hustle {

namespace {

using enum element;

// The line is promised: no stake, and the reels go to it after a short tune of words.
void free_respin(game& g) {
    machine& m = g.m;
    m.holdsoffered = flag::no;
    cut_typed_texts(g);
    play(g, sound::like_it);
    start_timer(g.p, timer::ilikeit);
    m.spinwait = 0;
    start_timer(g.p, timer::start_spin_in);
}

// The stake of 25p: 4p, 16p and 5p into the banks, and the coin into the hopper or the cash box.
void paid_play(game& g) {
    machine& m = g.m;
    m.badholdmade = truth::is_not;
    m.holdsbarred = truth::is_not;
    play(g, sound::start);
    m.linepromised = truth::is_not;
    add(m.credits, -1);
    add(m.streakbank, 0.04);
    add(m.winbank, 0.16);
    add(m.housecut, 0.05);
    figuresline(g);
    add(m.hopper < 125 ? m.hopper : m.cashbox, 0.25);
    resetplay(g);
    darkbuttons(g);
    if (!is_visible(g.p, trailheld))
        start_timer(g.p, timer::init_trail_timer);
    start_timer(g.p, timer::reelspin1);
}

} // namespace

bool machine_busy(const game& g) {
    const panel& p = g.p;
    if (is_loaded(p, screen::feature))
        return true;
    if (chain_runs(p, chain::machine))
        return true;
    // Under a held trail a run may still end in a Bonus or a full trail.
    if (is_running(p, timer::numbers2) && is_visible(p, trailheld))
        return true;
    // The first credit of a transfer has not arrived yet.
    return is_running(p, timer::banktocredits) && g.m.credits <= 0.1f;
}

void startpress(game& g) {
    if (machine_busy(g))
        return;
    machine& m = g.m;
    disable(g.p, start);
    set_picture(g.p, start, art::startpiclight);
    if (held_reels(m) != 2)
        m.pairholds = 0;
    if (!(m.credits > 0.1f))
        return;
    if (m.linepromised == truth::is)
        free_respin(g);
    else
        paid_play(g);
}

void resetplay(game& g) {
    machine& m = g.m;
    m.win = 0;
    m.trailbusy = flag::no;
    m.award = award::none;
    m.featuremode = mode::hilo;
    m.holdsoffered = flag::no;
    m.streaktotal = 0;
    if (!is_visible(g.p, trailheld)) {
        m.trailvalue = 0;
        m.trailtarget = 0;
    }
    for (int which = 1; which <= 3; ++which)
        if (!is_held(reel(g.m, which)))
            reel(m, which).num = 0;
}

void darkbuttons(game& g) {
    set_picture(g.p, cancelbutton, art::cancelpicdark);
    for (int which = 1; which <= 3; ++which)
        if (!is_held(reel(g.m, which)))
            set_picture(g.p, hold_button(which), art::holdpicdark);
}

void clearholds(game& g) {
    machine& m = g.m;
    release_reels(m);
    m.holdsoffered = flag::no;
    for (const element lamp : {hold1, hold2, hold3})
        set_picture(g.p, lamp, art::holdpicdark);
}

void refresh_pcent(machine& m) {
    m.pcent = static_cast<single>(static_cast<double>(m.moneyout) / static_cast<double>(m.moneyin) * 100);
}

void refresh_pcent_guarded(machine& m) {
    if (m.moneyin > 0 && m.moneyout > 0)
        refresh_pcent(m);
}

void afterreels(game& g) {
    machine& m = g.m;
    figuresline(g);
    checkline(g);
    add(m.moneyin, 0.25);
    refresh_pcent(m);
    if (m.win == 0)
        starttrailrun(g);
    clearholds(g);
    if (m.credits > 0) {
        offerholds(g);
        offernudges(g);
    }
    if (m.credits == 0 && m.bank == 0 && m.win == 0)
        start_timer(g.p, timer::startattract);
    if (m.credits > 0 && m.nudges == 0)
        enable(g.p, start);
    else
        set_picture(g.p, start, art::startpicdark);
}

void start_spin_in(game& g) {
    if (still_waiting(g.m.spinwait, 3))
        return;
    stop_timer(g.p, timer::start_spin_in);
    g.m.nudgemode = 1;
    spinforcedline(g);
}

void hold_the_machine(game& g, int seconds) {
    const std::int64_t clock = g.p.clock_at_start + g.p.now;
    const auto ms = static_cast<int>(std::int64_t{seconds} * 1000 - clock % 1000);
    if (ms <= 0)
        return;
    g.w.wait(ms);
    g.p.now += ms;
}

} // namespace hustle
