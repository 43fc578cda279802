#include "core/bank.h"

#include "core/play.h"
#include "core/reels.h"
#include "core/upward.h"
#include "core/wins.h"
#include "panel/text.h"

#include <cmath>

namespace hustle {

namespace {

using enum element;

constexpr std::string_view nothing_title = "Nothing in Bank..";

// One step of 20p from `win` to `bank`. The charge goes to the win bank, unless that is empty and
// the streak bank is not.
void money_step(game& g) {
    machine& m = g.m;
    play(g, sound::win2bank);
    add(m.win, -0.2);
    add(m.bank, 0.2);
    add(m.hopper, -0.2);
    add(m.moneyout, 0.2);
    add(m.winbank <= 0 && m.streakbank > 0 ? m.streakbank : m.winbank, -0.2);
    payline(g);
    refresh_pcent(m);
}

void pay_tick(game& g) {
    machine& m = g.m;
    if (m.paystep == 1) {
        m.lastwin = m.win;
        play(g, sound::win);
    } else if (m.paystep == 10) {
        money_step(g);
    } else if (m.paystep % 2 == 1) {
        line(g, "");
    }
    if (m.paystep != 10)
        ++m.paystep;
    refresh_pcent_guarded(m);
}

void end_payout(game& g) {
    machine& m = g.m;
    m.paystep = 1;
    m.payendstep = 0;
    stop_timer(g.p, timer::wintobank);
    figuresline(g);
    if (m.credits > 0.1f)
        enable(g.p, start);
    if (m.award == award::winstreak || m.award == award::jackpot) {
        start_timer(g.p, timer::start_repeatchance);
        disable(g.p, start);
    }
}

void closing_flash(game& g) {
    machine& m = g.m;
    if (m.payendstep == 9) {
        end_payout(g);
        return;
    }
    if (m.payendstep == 0)
        play(g, sound::win);
    else if (m.payendstep % 2 == 1)
        line(g, "");
    else
        figuresline(g);
    ++m.payendstep;
}

} // namespace

void figuresline(game& g) {
    const short_text bank = fixed(g.m.bank);
    short_text text(" ");
    text.add(bank).blanks(22 - static_cast<int>(bank.length)).add(plain(g.m.credits));
    line(g, text);
}

void payline(game& g) {
    const short_text bank = fixed(g.m.bank);
    const short_text win = fixed(g.m.win);
    const int filler = 22 - static_cast<int>(bank.length) - static_cast<int>(win.length);
    short_text text(" ");
    text.add(bank).blanks(static_cast<int>(std::nearbyint(filler / 2.0))).add(win);
    text.blanks(23 - static_cast<int>(text.length)).add(plain(g.m.credits));
    line(g, text);
}

void wintobank(game& g) {
    line(g, short_text("           ").add(fixed(g.m.win)));
    if (g.m.win > 0.15f)
        pay_tick(g);
    else
        closing_flash(g);
}

void transferpress(game& g) {
    if (g.m.bank > 0.1f) {
        start_timer(g.p, timer::banktocredits);
        enable(g.p, start);
        return;
    }
    const std::string_view text = g.m.credits > 0 ? "You have no credits to insert!  Continue your game!"
                                                  : "You have no credits to insert!  Start a new game!";
    g.w.box({nothing_title, text, message::mark::warning});
}

// One pound: four credits, in six ticks of which the first only counts.
void banktocredits(game& g) {
    machine& m = g.m;
    if (m.transferstep == 5) {
        stop_timer(g.p, timer::banktocredits);
        m.transferstep = 0;
        return;
    }
    if (m.transferstep >= 1) {
        play(g, sound::win2bank);
        add(m.bank, -0.25);
        add(m.credits, 1);
        figuresline(g);
    }
    ++m.transferstep;
}

void newgamepress(game& g) {
    const bool empty = g.m.bank <= 0 && g.m.credits <= 0;
    if (empty || g.w.box({"Begin New Game", "Are you sure?", message::mark::question, true}))
        startnewgame(g);
}

void startnewgame(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    m.bank = 0;
    m.win = 0;
    m.credits = 20;
    stop_timer(p, timer::scrolltimer);
    stop_timer(p, timer::flashtimer);
    figuresline(g);
    m.linepromised = truth::is_not;
    darkbuttons(g);
    traildark(g);
    set_picture(p, nudgenow, art::nudgenowpicdark);
    set_picture(p, picture1, art::nudge0);
    start_timer(p, timer::butflash);
    m.nudges = 0;
    stop_timer(p, timer::attracthold);
    set_picture(p, toplogo, art::title);
    hide(p, trailheld);
    release_reels(m);
    offerholds(g);
    enable(p, start);
    unload_screen(g, screen::feature); // an open board closes with nothing
}

bool score_counts(const game& g) { return g.m.bank >= 1 && g.m.bank > g.m.hiscore[9]; }

void endgame(game& g) {
    struct dark_row {
        element button;
        art look;
    };
    constexpr dark_row dark[] = {{start, art::startpicdark},
                                 {cancelbutton, art::cancelpicdark},
                                 {hold1, art::holdpicdark},
                                 {hold2, art::holdpicdark},
                                 {hold3, art::holdpicdark}};
    machine& m = g.m;
    m.newscore = m.bank;
    m.credits = 0;
    m.bank = 0;
    figuresline(g);
    for (const dark_row& row : dark) {
        disable(g.p, row.button);
        set_picture(g.p, row.button, row.look);
    }
    load_screen(g, screen::Entername);
}

} // namespace hustle
