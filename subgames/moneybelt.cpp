// Creepy Cash and Super Creepy: a belt of prices runs across the line; where it stops, the three
// that stand in the window are the win.
#include "subgames/belts.h"
#include "subgames/common.h"
#include "subgames/subgames.h"

#include <algorithm>
#include <array>

namespace hustle {

namespace {

using enum element;

constexpr int halfway_step = 130;
constexpr int last_step = 221; // the belt stops by itself on its last three prices
constexpr std::size_t window_cells = 26;

void step_on(game& g) { ++g.b.beltstep; }

bool creepy(const game& g) { return g.m.award == award::moneybelt; }

void belt_live(game& g) {
    const int row = draw(g, belts_each);
    g.b.beltstrip = creepy(g) ? creepy_belt(row) : super_belt(row);
    g.b.beltstep = 1;
    g.b.beltphase = 1;
    enable(g.p, feature_stopfeature);
    midi(g, tune::stop);
    play(g, sound::fastcash);
}

void announce(game& g) {
    const int step = g.b.beltstep;
    if (step == 20) {
        belt_live(g);
        return;
    }
    if (step == 1)
        board_line(g, creepy(g) ? "  * TAKEN CREEPY CASH *" : "   * SUPER CREEPY CASH *");
    flash_line(g, step, 10, 19, "       * GET READY *");
    step_on(g);
}

// The window moves to `beltstep` characters off the left end; the line shows what fits.
void move_belt(game& g) {
    const auto off = static_cast<std::size_t>(g.b.beltstep);
    g.b.beltwindow = off < g.b.beltstrip.size() ? g.b.beltstrip.substr(off) : word{};
    board_line(g, g.b.beltwindow);
}

void run_belt(game& g) {
    move_belt(g);
    if (g.b.beltstep == halfway_step)
        play(g, sound::fastcash);
    if (g.b.beltstep == last_step) {
        disable(g.p, feature_stopfeature);
        g.b.beltphase = 2;
        play(g, sound::collect);
    }
    step_on(g);
}

void run_on(game& g) {
    if (g.b.beltwindow.starts_with("  ")) {
        g.b.beltphase = 3;
        return;
    }
    move_belt(g);
    step_on(g);
}

// Takes the blanks in front off the window and reads the price that stands there.
single next_price(word& window) {
    window.remove_prefix(std::min(window.find_first_not_of(' '), window.size()));
    word rest;
    return number_at(window.substr(0, 4), rest).value_or(0.0F);
}

void skip_price(word& window) { window.remove_prefix(std::min<std::size_t>(4, window.size())); }

void take_prices(game& g) {
    board& b = g.b;
    b.beltwindow = b.beltwindow.substr(0, window_cells);
    b.beltprize1 = next_price(b.beltwindow);
    skip_price(b.beltwindow);
    b.beltprize2 = next_price(b.beltwindow);
    skip_price(b.beltwindow);
    b.beltprize3 = next_price(b.beltwindow);
    board_line(g, short_text("   ")
                      .add(fixed(b.beltprize1))
                      .add("  +  ")
                      .add(fixed(b.beltprize2))
                      .add("  +  ")
                      .add(fixed(b.beltprize3)));
    g.m.win = static_cast<single>(static_cast<double>(b.beltprize1) + b.beltprize2 + b.beltprize3);
    b.beltprize1 = b.beltprize2 = b.beltprize3 = 0;
    b.beltstep = 0;
    b.beltphase = 4;
}

// Three whole prices stand in the window when two blanks are left before the first.
void align(game& g) {
    const word window = g.b.beltwindow;
    if (window.size() > 2 && window[2] != ' ') {
        take_prices(g);
        return;
    }
    move_belt(g);
    step_on(g);
}

void show_result(game& g) {
    const int step = g.b.beltstep;
    if (step == 21) {
        g.b.beltphase = 0;
        g.b.beltstep = 0;
        stop_timer(g.p, timer::feature_moneybelttimer);
        start_timer(g.p, timer::feature_exittimer);
        return;
    }
    if (step == 5)
        board_line(g, "           EQUALS");
    flash_line(g, step, 10, 20, short_text("           ").add(fixed(g.m.win)));
    if (step == 10)
        play(g, sound::win);
    step_on(g);
}

constexpr std::array<handler, 5> phases = {announce, run_belt, run_on, align, show_result};

} // namespace

void feature_moneybelttimer(game& g) {
    if (g.b.beltphase >= 0 && g.b.beltphase < static_cast<int>(phases.size()))
        phases[static_cast<std::size_t>(g.b.beltphase)](g);
}

} // namespace hustle
