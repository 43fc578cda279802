// The two ladders beside the ring: what their rungs are worth and how they look.
#include "board/board.h"

namespace hustle {

namespace {

using enum element;

struct look {
    colour back, fore;
};
constexpr look cash_dark = {0x0000C0, 0x000000};
constexpr look cash_lit = {0x0000FF, 0x00FFFF};
constexpr look feature_dark = {0xFF0000, 0x000000};
constexpr look feature_lit = {0xFF8080, 0x00FFFF};

// Pounds, from the bottom rung up.
constexpr single values[] = {1.00F, 1.60F, 2.00F, 3.00F, 3.60F, 4.00F, 5.00F, 6.00F, 8.00F, jackpot_win};

void give(game& g, element label, look l) {
    set_back(g.p, label, l.back);
    set_fore(g.p, label, l.fore);
}

} // namespace

void light_cash(game& g, int rung) { give(g, nth(feature_m1, rung), cash_lit); }
void dark_cash(game& g, int rung) { give(g, nth(feature_m1, rung), cash_dark); }
void light_feature(game& g, int rung) { give(g, nth(feature_f1, rung), feature_lit); }
void dark_feature(game& g, int rung) { give(g, nth(feature_f1, rung), feature_dark); }

bool cash_is_dark(const game& g, int rung) { return back(g.p, nth(feature_m1, rung)) == cash_dark.back; }

single cash_value(int rung) { return rung >= 1 && rung <= 10 ? values[rung - 1] : 0; }

count rung_of(single win) {
    for (count rung = 1; rung <= 9; ++rung)
        if (win == values[rung - 1])
            return rung;
    return 0;
}

void lightcashvalue(game& g) {
    const count rung = rung_of(g.m.win);
    if (rung == 0)
        return;
    g.b.cashrung = rung;
    light_cash(g, rung);
}

void fillcashladder(game& g) {
    for (int rung = 1; rung <= g.b.cashrung && rung <= 10; ++rung)
        light_cash(g, rung);
}

void clearcashladder(game& g) {
    for (int rung = 1; rung <= 10; ++rung)
        dark_cash(g, rung);
    hide(g.p, feature_losegamble);
}

void clearfeatureladder(game& g) {
    for (int rung = 1; rung <= 10; ++rung)
        dark_feature(g, rung);
}

void lightfeaturerung(game& g) {
    if (g.b.featurerung >= 1 && g.b.featurerung <= 9)
        light_feature(g, g.b.featurerung);
}

void lightladders(game& g) {
    for (int rung = 1; rung <= 10; ++rung) {
        light_cash(g, rung);
        light_feature(g, rung);
    }
}

} // namespace hustle
