#include "art/bank.h"

#include <tuple>

namespace hustle {

namespace {

// A cube seen from above, half as wide as 37, on (0, 0).
void cube(pen& p) {
    box(p, -38, -36, 76, 78, 15, {.fill = "#3a0208"});
    box(p, -38, -39, 76, 76, 15,
        {.fill =
             ball(p, {{0, "#ff6a58"}, {0.45, "#e0182c"}, {0.85, "#a00a1c"}, {1, "#6a0210"}}, 0.4, 0.32, 0.85),
         .stroke = "#4a020a",
         .width = 1.5});
    box(p, -33, -34, 66, 66, 20,
        {.fill = ball(p, {{0, "#ff5a4c", 0.7}, {0.7, "#ff3c3c", 0.25}, {1, "#ff3c3c", 0}}, 0.45, 0.4, 0.6)});
    box(p, -36, -37, 72, 72, 13, {.stroke = "#ffb0a0", .width = 1.2, .stroke_opacity = 0.55});
}

void gloss(pen& p) {
    path(p,
         "M-30,-34 L24,-34 C30,-34 32,-30 30,-24 C10,-22 -18,-14 -31,4 C-34,6 -34,-4 -34,-12 L-34,-26 "
         "C-34,-32 -34,-34 -30,-34 Z",
         {.fill = ramp(p, {{0, ink::white, 0.5}, {1, ink::white, 0.04}}, -20, -36, 4, 0)});
}

void pip(pen& p, double x, double y) {
    disc(p, x, y + 1, 8.2, {.fill = "#5a0410"});
    disc(p, x, y, 7.8,
         {.fill = ball(p, {{0, "#ffffff"}, {0.7, "#fff6e6"}, {1, "#d8c0a8"}}, 0.42, 0.36, 0.62)});
}

} // namespace

void draw_die(pen& p, int face) {
    // Pips on a grid of nine, bit 0 top left, row by row.
    constexpr unsigned faces[] = {0b000010000, 0b001000100, 0b001010100,
                                  0b101000101, 0b101010101, 0b101101101};
    glow(p, 48.5, 52, 48, 46, "#000000", 0.6);
    const moved here(p, p.width / 2.0, p.height / 2.0, 1.05);
    cube(p);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            if ((faces[face - 1] >> (3 * row + column) & 1U) != 0)
                pip(p, (column - 1) * 21, (row - 1) * 21 - 1);
    gloss(p);
}

void draw_spinning_die(pen& p, int phase) {
    const double turn = phase * 22.5 - 12;
    glow(p, 48.5, 52, 48, 46, "#000000", 0.5);
    const moved here(p, 48.5, 48.5);
    for (int i = 3; i >= 1; --i) {
        const moved trail(p, 0, 0, 0.86 + 0.02 * i, turn - i * 9);
        box(p, -38, -38, 76, 76, 18, {.fill = "#ff3c3c", .fill_opacity = 0.1 + 0.04 * (3 - i)});
    }
    {
        const moved turned(p, 0, 0, 0.86, turn);
        cube(p);
        for (const auto& [x, y] :
             {point(-20, -20), point(20, -20), point(-20, 20), point(20, 20), point(0, 0)}) {
            if (x == 0 && phase % 2 == 0)
                continue;
            const moved streak(p, x, y, 1, x * y > 0 ? 135 : 45);
            oval(p, 0, 0, x == 0 ? 7 : 11, 6, {.fill = ink::ivory, .fill_opacity = 0.8});
        }
        gloss(p);
    }
    for (int i = 0; i < 4; ++i) {
        const moved around(p, 0, 0, 1, turn * 1.4 + i * 90);
        path(p, "M-10,-44 A45,45 0 0 1 20,-40.5",
             {.stroke = ink::white, .width = 2.6, .stroke_opacity = 0.65});
        path(p, "M-22,-39.5 A45,45 0 0 1 -10,-44",
             {.stroke = ink::white, .width = 1.6, .stroke_opacity = 0.3});
    }
}

} // namespace hustle
