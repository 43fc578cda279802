// The run-up from main to the board: a little under two seconds of flashing panel and messages.
#include "core/play.h"
#include "panel/prizes.h"
#include "panel/text.h"
#include "trail/trail.h"

namespace hustle {

namespace {

using enum element;

constexpr int last_step = 29;

void nothing_to_play(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    disable(p, start);
    set_picture(p, start, art::startpicdark);
    m.nudges = 0;
    set_picture(p, nudgenow, art::nudgenowpicdark);
    set_picture(p, picture1, art::nudge0);
    set_picture(p, cancelbutton, art::cancelpicdark);
    m.pairholds = 0;
    m.linepromised = truth::is_not;
    clearholds(g);
}

// What has been won. A line above £1 with a value of exactly 9 leaves the text as it is.
void tell_win(game& g) {
    const machine& m = g.m;
    play(g, sound::back);
    if (m.win == jackpot_win)
        line(g, "      J A C K P O T");
    else if (m.trailvalue != 9)
        line(g, short_text("     YOU HAVE WON ").add(fixed(m.win)));
    else if (m.win == 1)
        line(g, "      * FULL TRAIL *");
}

void flash_panel(game& g) {
    panel& p = g.p;
    const int phase = g.m.lampphase;
    if (phase != 1 && phase != 3)
        return;
    const bool light = phase == 1;
    if (light)
        traillit(g);
    else
        traildark(g);
    set_visible(p, trailheld, !light);
    set_picture(p, toplogo, light ? art::title2 : art::title);
    set_picture(p, picture1, light ? art::nudge12345 : art::nudge0);
    set_picture(p, nudgenow, light ? art::nudgenowpiclight : art::nudgenowpicdark);
}

struct chase_lamp {
    element button;
    art look;
};
// By the step's remainder on division by 4.
constexpr chase_lamp chase[4][4] = {
    {{hold2, art::holdpicdark},
     {hold3, art::holdpicdark},
     {hold1, art::holdpiclight},
     {stopper, art::stoppiclight}},
    {{hold1, art::holdpicdark},
     {stopper, art::stoppicdark},
     {start, art::startpiclight},
     {cancelbutton, art::cancelpiclight}},
    {{start, art::startpicdark},
     {cancelbutton, art::cancelpicdark},
     {hold1, art::holdpiclight},
     {stopper, art::stoppiclight}},
    {{hold1, art::holdpicdark},
     {stopper, art::stoppicdark},
     {hold2, art::holdpiclight},
     {hold3, art::holdpiclight}},
};

void chase_buttons(game& g) {
    const int step = g.m.awardwait;
    if (step < 1 || step >= last_step)
        return;
    for (const chase_lamp& lamp : chase[step % 4])
        set_picture(g.p, lamp.button, lamp.look);
}

void open_board(game& g) {
    machine& m = g.m;
    stop_timer(g.p, timer::feature_start);
    m.awardwait = 0;
    m.lampphase = 0;
    m.featuremode = m.win == 1 && m.trailvalue >= 9 ? mode::feature : mode::hilo;
    load_screen(g, screen::feature);
}

} // namespace

void feature_start(game& g) {
    machine& m = g.m;
    nothing_to_play(g);
    if (m.awardwait == 2)
        tell_win(g);
    else if (m.awardwait == 15)
        line(g, m.win == jackpot_win ? "     R E P E A T E R" : "   STARTING HOARD HUSTLE");
    else if (m.awardwait >= last_step) {
        open_board(g);
        return;
    }
    flash_panel(g);
    chase_buttons(g);
    ++m.awardwait;
    m.lampphase = next_of(m.lampphase, 4);
}

} // namespace hustle
