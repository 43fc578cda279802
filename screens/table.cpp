// The table of the ten best scores.

#include "core/files.h"
#include "core/upward.h"
#include "panel/text.h"
#include "screens/sidescreens.h"

namespace hustle {

namespace {

using enum element;

constexpr int last_row = 10;

constexpr std::string_view prefixes[last_row] = {"1.  ", "2.  ", "3.  ", "4.  ", "5.  ",
                                                 "6.  ", "7.  ", "8.  ", "9.  ", "10. "};
constexpr std::string_view blank_name = "               ";

constexpr colour flash_dark = 0x808000;
constexpr colour flash_light = 0xFFFF00;

single& score(machine& m, int row) { return m.hiscore[static_cast<std::size_t>(row - 1)]; }
std::string& name(machine& m, int row) { return m.hiname[static_cast<std::size_t>(row - 1)]; }
element line_of(int row) { return nth(Highscore_one, row); }

// The entry of a row changes places with the one above.
void move_up(game& g, int row) {
    machine& m = g.m;
    table_fields& t = g.t;
    t.swapscore = score(m, row - 1);
    t.swapname = name(m, row - 1);
    score(m, row - 1) = score(m, row);
    name(m, row - 1) = name(m, row);
    score(m, row) = t.swapscore;
    name(m, row) = t.swapname;
}

} // namespace

void Highscore_load(game& g) {
    if (g.m.exiting == 1) {
        show(g.p, Highscore_Picture1);
        hide(g.p, Highscore_Picture2);
        hide(g.p, Highscore_Picture3);
    }
    sorttable(g);
    showtable(g);
}

// One bubble pass from the bottom: only the tenth entry can be out of place. A tie stays below.
void sorttable(game& g) {
    count row = last_row;
    for (; row > 1 && score(g.m, row) > score(g.m, row - 1); --row)
        move_up(g, row);
    g.t.flashrow = row;
    start_timer(g.p, timer::Highscore_flashscore);
}

void showtable(game& g) {
    for (int row = 1; row <= last_row; ++row) {
        std::string text(prefixes[row - 1]);
        text += name(g.m, row);
        text += g.w.currency(score(g.m, row));
        set_caption(g.p, line_of(row), text);
    }
}

void Highscore_flashscore(game& g) {
    table_fields& t = g.t;
    if (t.rowflash == 1)
        set_activecolor(g.p, line_of(t.flashrow), flash_dark);
    if (t.rowflash == 2)
        set_activecolor(g.p, line_of(t.flashrow), flash_light);
    t.rowflash = t.rowflash == 1 ? 2 : 1;
}

void Highscore_Timer1(game& g) {
    const bool light = g.t.buttonflash != 0;
    set_picture(g.p, Highscore_Picture2, light ? art::returnlight : art::returndark);
    set_picture(g.p, Highscore_Picture1, light ? art::exitlight : art::exitdark);
    set_picture(g.p, Highscore_Picture3, light ? art::resetdark : art::resetlight);
    g.t.buttonflash = light ? 0 : 1;
}

void Highscore_return(game& g) { unload_screen(g, screen::Highscore); }

void Highscore_reset(game& g) {
    stop_timer(g.p, timer::Highscore_flashscore);
    for (int row = 1; row <= last_row; ++row) {
        score(g.m, row) = 0;
        name(g.m, row) = blank_name;
        show(g.p, line_of(row));
    }
    showtable(g);
}

void Highscore_exit(game& g) {
    if (is_loaded(g.p, screen::Entername)) // a score that waits for its name is not lost
        Entername_submit(g);
    savetable(g);
    g.w.exit();
    g.p.over = true;
}

} // namespace hustle
