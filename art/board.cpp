#include "art/bank.h"
#include "art/lamps.h"

#include <tuple>

namespace hustle {

namespace {

// A sunken place on which a label or a bomb stands.
void recess(pen& p, area a, double round) {
    const auto& [x, y, w, h] = a;
    box(p, x, y, w, h, round,
        {.fill = "#070210", .fill_opacity = 0.62, .stroke = "#d8a03c", .width = 1.1, .stroke_opacity = 0.75});
    box(p, x + 1.2, y + 1.2, w - 2.4, h - 2.4, round - 1,
        {.stroke = ink::black, .width = 1, .stroke_opacity = 0.6});
}

void lamp_sign(pen& p, std::string_view words, const ink::jewel& j) {
    cap(p, {4, 4, 113, 25}, 8, j, true, 4);
    cap_words(p, words, 60.5, 16.5, 14, 96, j, true);
}

} // namespace

void draw_ring_centre(pen& p, int) {
    const auto vault = halo(p, {{0, "#5a2a80"}, {0.5, "#2c1050"}, {1, "#0e0424"}}, 160, 130, 210);
    box(p, 0, 0, 320, 279, 10, {.fill = gold(p), .stroke = "#1a0a04", .width = 1});
    box(p, 4, 4, 312, 271, 7, {.fill = vault, .stroke = "#1a0a04", .width = 1.5});
    for (const double r : {78.0, 100.0, 122.0})
        disc(p, 160, 130, r, {.stroke = "#ffc45a", .width = 1, .stroke_opacity = 0.14});
    for (int i = 0; i < 12; ++i) {
        const moved ray(p, 160, 130, 1, i * 30);
        path(p, polygon({{0, 0}, {-14, -124}, {14, -124}}),
             {.fill = halo(p, {{0, "#ffc83c", 0.5}, {1, "#ffc83c", 0}}, 0, 0, 126)});
    }
    {
        const moved here(p, 161, 184, 0.98);
        chest(p);
    }
    write(p, "TREASURE", 160, 13, 19,
          {.fill = gold(p, 13, 32),
           .edge = "#2a0a02",
           .edge_width = 2.4,
           .shape = {.weight = 0.2, .stretch = 1.15}});
    for (const area& a :
         {area{14, 46, 77, 29}, area{14, 94, 77, 29}, area{14, 142, 53, 45}, area{14, 190, 77, 29},
          area{230, 46, 77, 29}, area{246, 94, 61, 29}, area{238, 142, 69, 29}, area{238, 190, 69, 29}})
        recess(p, a, 6);
    moulding(p, {77, 222.5, 160, 44.5}, 2.5, 5);
    box(p, 77, 222.5, 160, 44.5, 5, {.fill = down(p, {{0, "#1c0610"}, {1, "#4a0c14"}})});
    for (const double x : {128.5, 184.5})
        line(p, x, 225, x, 263, {.stroke = "#d8a03c", .width = 1, .stroke_opacity = 0.6});
    for (const double x : {32.0, 288.0}) {
        const moved here(p, x, 248, 0.75);
        gem(p, x < 160 ? ink::ruby : ink::emerald);
    }
}

void draw_bomb(pen& p, int which) {
    const moved here(p, 19.5, 27.5, 1.06);
    bomb(p, which >= lit);
}

void draw_shotspanel(pen& p, int) {
    plate(p, {0, 0, 123, 100}, 9);
    for (const auto& [r, colour] :
         {std::pair(15.0, "#fff4e0"), std::pair(12.0, "#e8142c"), std::pair(9.0, "#fff4e0"),
          std::pair(6.0, "#e8142c"), std::pair(3.0, "#ffe27a")})
        disc(p, 26, 25, r, {.fill = colour, .stroke = "#3a0208", .width = 0.7});
    write(p, "SHOTS", 79, 15, 20,
          {.fill = gold(p, 15, 35),
           .edge = ink::black,
           .edge_width = 2,
           .shape = {.weight = 0.21, .stretch = 1, .most = 68}});
    moulding(p, {23, 47, 83, 33}, 5, 3);
    box(p, 23, 47, 83, 33, 3, {.fill = "#050204"});
    for (const double x : {30.0, 61.5, 93.0})
        path(p, star(x, 91, 4.5, 1.8, 5), {.fill = gold(p)});
}

void draw_dicepanel(pen& p, int) {
    plate(p, {0, 0, 121, 161}, 9);
    box(p, 6, 6, 109, 149, 6,
        {.fill = halo(p, {{0, "#1a8a4a"}, {0.6, "#0a5a2e"}, {1, "#03301a"}}, 60, 60, 105),
         .stroke = "#021a0c",
         .width = 1.5});
    box(p, 8.5, 8.5, 104, 144, 5, {.stroke = "#ffd47a", .width = 0.9, .stroke_opacity = 0.55});
}

void draw_extralife(pen& p, int) { lamp_sign(p, "EXTRA LIFE", ink::emerald); }
void draw_lose(pen& p, int) { lamp_sign(p, "LOSE", ink::ruby); }

} // namespace hustle
