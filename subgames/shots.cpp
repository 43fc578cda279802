// The shots game: each shot in hand is one draw from the cash ladder.
#include "board/board.h"
#include "subgames/common.h"
#include "subgames/subgames.h"

namespace hustle {

namespace {

using enum element;

element rung(int n) { return nth(feature_m1, n); }

void flash_lines(game& g, bool on) {
    set_lineflash(g.p, feature_displayline, on);
    set_lineflash(g.p, feature_shotbox, on);
}

void shots_message(game& g) {
    const bool one = g.b.shots < 2;
    board_line(g, short_text(one ? "    YOU HAVE " : "   YOU HAVE ")
                      .add(plain(static_cast<int>(g.b.shots)))
                      .add(one ? " SHOT LEFT" : " SHOTS LEFT"));
}

// Every second rung lit, beginning with the first or the second; a rung given up keeps its look.
void light_every_second(game& g, int first) {
    for (int n = 1; n <= 10; ++n) {
        if (!is_enabled(g.p, rung(n)))
            continue;
        if (n % 2 == first % 2)
            light_cash(g, n);
        else
            dark_cash(g, n);
    }
}

// Gives up the rung of the prize on offer.
void removerung(game& g) {
    if (g.b.shockpos >= 1 && g.b.shockpos <= 10)
        disable(g.p, rung(g.b.shockpos));
}

bool prize_left(const game& g) {
    if (g.b.shotsatstart > 10)
        return true;
    for (int n = 1; n <= g.b.shotsatstart; ++n)
        if (is_enabled(g.p, rung(n)))
            return true;
    return false;
}

void fire(game& g) {
    g.b.shotstate = shooting::on_offer;
    stop_timer(g.p, timer::feature_shots_timer);
    enable(g.p, feature_collect);
    --g.b.shots;
    set_caption(g.p, feature_shotbox, short_text("  ").add(plain(static_cast<int>(g.b.shots))));
    clearcashladder(g);
    drawshotprize(g);
    board_line(g, short_text("         TAKE ").add(fixed(g.m.win)).add(" ?"));
}

void give_up(game& g) {
    g.b.shotstate = shooting::given_up;
    clearcashladder(g);
    start_timer(g.p, timer::feature_shots_timer);
    play(g, sound::fastcash);
    shots_message(g);
    disable(g.p, feature_collect);
    removerung(g);
}

// The last shot's prize must be taken.
void end_shots(game& g) {
    if (g.m.win == jackpot_win) {
        jackpotrepeater(g);
        return;
    }
    g.b.shotstate = shooting::idle;
    disable(g.p, feature_stopfeature);
    won_line(g);
    start_timer(g.p, timer::feature_exittimer);
}

void shots_live(game& g) {
    g.b.readystep = 1;
    shots_message(g);
    enable(g.p, feature_stopfeature);
    stop_timer(g.p, timer::feature_start_shots);
    start_timer(g.p, timer::feature_shots_timer);
    g.b.shotsatstart = g.b.shots;
    midi(g, tune::stop);
    play(g, sound::fastcash);
}

} // namespace

void feature_start_shots(game& g) {
    const int step = g.b.readystep;
    if (step >= 20) {
        shots_live(g);
        return;
    }
    if (step >= 10) {
        const bool lit = step % 2 == 0;
        flash_lines(g, lit);
        if (lit) {
            board_line(g, "      ** GET READY **");
            for (int n = 1; n <= 10; ++n)
                light_cash(g, n);
        } else {
            clearcashladder(g);
        }
    }
    ++g.b.readystep;
}

void feature_shots_timer(game& g) {
    if (g.b.shotflash == 1) {
        shots_message(g);
        flash_lines(g, false);
        light_every_second(g, 1);
    } else if (g.b.shotflash == 2) {
        flash_lines(g, true);
        light_every_second(g, 2);
    }
    g.b.shotflash = next_of(g.b.shotflash, 2);
}

void shot(game& g) {
    flash_lines(g, false);
    if (g.b.shotstate == shooting::on_offer)
        give_up(g);
    else
        fire(g);
    if (g.b.shots == 0)
        end_shots(g);
}

void drawshotprize(game& g) {
    if (!prize_left(g))
        return;
    count n = 0;
    do {
        n = draw(g, g.b.shotsatstart);
        g.b.shockpos = n;
    } while (n <= 10 && !is_enabled(g.p, rung(n)));
    if (n > 10)
        return; // no rung: what stood on offer before stands again
    light_cash(g, n);
    g.m.win = cash_value(n);
}

} // namespace hustle
