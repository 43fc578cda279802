// What a player sees of the machine: lamps, lines, reels, ladders, which buttons answer, and the
// money that the line tells. A policy gets this and nothing else.
#pragma once

#include "core/game.h"

#include <cstdint>
#include <string_view>

namespace hustle::lab {

class sight {
public:
    explicit sight(const game& machine) : g(machine) {}

    std::int64_t now() const { return g.p.now; } // ms on the player's watch

    // Money, as the line tells it between plays.
    bool has_credit() const { return g.m.credits > 0.1F; }
    bool last_credit() const { return g.m.credits < 2; }
    bool money_in_bank() const { return g.m.bank > 0.1F; }

    bool on_board() const { return is_loaded(g.p, screen::feature); }
    // A button that takes a press, visible and live: the window tells it by the hand under the mouse, the
    // keys that reach it, and mostly by its lamp.
    bool live(element e) const { return is_enabled(g.p, e) && is_visible(g.p, e); }
    bool shows(element e, art a) const { return hustle::shows(g.p, e, a); }
    art picture(element e) const { return at(g.p, e).picture; }
    bool visible(element e) const { return is_visible(g.p, e); }
    std::string_view line() const { return caption(g.p, element::displayline); }
    std::string_view board_line() const { return caption(g.p, element::feature_displayline); }

    // The stop of the strip on the win line of a reel (1 to 3): 1 to 16; 0 while it is a blur.
    int stop(int reel) const;
    bool reels_turn() const { return stop(1) == 0 || stop(2) == 0 || stop(3) == 0; }
    bool hold_lamp(int reel) const { return shows(nth(element::hold1, reel), art::holdpiclight); }
    // The hold buttons have become nudge buttons.
    bool nudge_lamps() const {
        return shows(element::hold1, art::nudgepiclight) || shows(element::hold1, art::nudgepicdark);
    }

    // Of the trail, 1 to 9.
    bool trail_lamp(int n) const { return back(g.p, nth(element::numberone, n)) == 255; }
    // Of the nudge ladder: the figure of `nudge1` to `nudge5`; 0 for anything else.
    int nudge_figure() const;
    int nudge_ladder() const; // the height that it shows, 0 to 5

    // The board: rungs of cash and of features 1 to 10, squares 1 to 24.
    bool cash_lit(int rung) const { return back(g.p, nth(element::feature_m1, rung)) == 0x0000FF; }
    bool feature_lit(int rung) const { return back(g.p, nth(element::feature_f1, rung)) == 0xFF8080; }
    bool square_lit(int n) const { return shows(nth(element::feature_square1, n), nth(art::boxlight1, n)); }
    int die() const;   // 1 to 6; 0 while it turns
    int shots() const; // in hand, as the small line tells
    int bombs() const; // lit, 0 to 3
    // The rungs that are lit without a gap from the bottom.
    int cash_height() const;
    int feature_height() const;
    // The lowest lit rung: where a gamble stands. 0 for none.
    int gamble_rung() const;

private:
    const game& g;
};

// The word on the win line where a reel shows a stop (1 to 16) of the strip.
word symbol_at(int stop);

} // namespace hustle::lab
