#include "core/start.h"
#include "core/files.h"

#include "core/bank.h"
#include "core/menuticks.h"
#include "core/play.h"
#include "core/reels.h"
#include "core/upward.h"
#include "panel/text.h"

namespace hustle {

namespace {

using enum element;

struct look_row {
    element what;
    art look;
};
constexpr look_row looks_at_load[] = {
    {toplogo, art::title},      {reel1, art::cbp},
    {reel2, art::msp},          {reel3, art::bsm},
    {picture1, art::nudge0},    {nudgenow, art::nudgenowpicdark},
    {background, art::back},    {cancelbutton, art::cancelpicdark},
    {hold1, art::holdpicdark},  {hold2, art::holdpicdark},
    {hold3, art::holdpicdark},  {stopper, art::stoppicdark},
    {start, art::startpicdark},
};

// A saved position shows as the stop one higher on the strip, and stays as it was saved.
void show_saved_reel(game& g, int which) {
    reel_state& r = reel(g.m, which);
    const int next = next_of(r.pos, 16);
    show_stop(g, which, next);
    r.num = strip_stop(next).number;
}

void end_program(game& g) {
    g.p.over = true;
    g.w.exit();
}

} // namespace

void reset_game(game& g, std::int64_t clock) {
    g.m = machine{};
    g.b = board{};
    g.t = table_fields{};
    g.p.clock_at_start = clock;
    reset_panel(g.p);
}

void software_load(game& g) {
    readfiles(g);
    // The tune stays open for the whole run; this one command passes no gate.
    g.w.midi(tune::open);
}

void software_Timer1(game& g) {
    if (++g.m.splashticks < 35)
        return;
    unload_screen(g, screen::software);
    g.m.version = version_text;
    load_screen(g, screen::main);
}

void main_load(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    for (const look_row& row : looks_at_load)
        set_picture(p, row.what, row.look);
    set_title(p, screen::main, short_text("Hoard Hustle v").add(m.version));
    p.dollars = m.currency == setting::usd;
    tickoptions(g);
    if (const colour lit = led_colour(m.ledcolour); lit != 0)
        set_activecolor(p, displayline, lit);
    refresh_pcent_guarded(m);
    m.holdsbarred = truth::is_not;
    m.credits = 20;
    m.pausesecs = 1;
    release_reels(m);
    for (int which = 1; which <= 3; ++which)
        show_saved_reel(g, which);
    figuresline(g);
}

void main_focus(game& g) {
    g.m.awardwait = 0;
    g.m.lampphase = 0;
    set_picture(g.p, toplogo, art::title);
    figuresline(g);
}

void exitroutine(game& g) {
    if (g.m.exiting == 1 && close_score_screen(g))
        return;
    midi(g, tune::close);
    g.m.exiting = 1;
    savegame(g);
    if (score_counts(g))
        endgame(g); // the program ends from the table of scores
    else
        end_program(g);
}

colour led_colour(int ledcolour) {
    constexpr colour colours[] = {0x0000FF, 0xFF80FF, 0x8080FF, 0xFFFF00, 0x00FFFF, 0x80FF80};
    return ledcolour >= 1 && ledcolour <= 6 ? colours[ledcolour - 1] : 0;
}

} // namespace hustle
