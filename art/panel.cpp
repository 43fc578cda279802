#include "art/bank.h"
#include "art/lamps.h"
#include "art/symbols.h"

#include <cmath>
#include <numbers>
#include <tuple>

namespace hustle {

namespace {

// A fan of rays from a point, every other one of `n` drawn. Each is a shape of its own: one path
// of all takes renderers ten times as long.
void rays(pen& p, double cx, double cy, double r, int n, const paint& how) {
    const double step = 2 * std::numbers::pi / n;
    for (int i = 0; i < n; i += 2) {
        const double a = step * i, b = step * (i + 1);
        path(p,
             polygon({{cx, cy},
                      {cx + r * std::cos(a), cy + r * std::sin(a)},
                      {cx + r * std::cos(b), cy + r * std::sin(b)}}),
             how);
    }
}

void end_jewel(pen& p, double x, double y, const ink::jewel& j, bool on) {
    if (on)
        glow(p, x, y, 34, 30, j.lit, 0.8);
    const moved here(p, x, y);
    disc(p, 0, 0, 21, {.fill = gold(p), .stroke = "#3a1a02", .width = 1.4});
    disc(p, 0, 0, 17, {.fill = "#1a0408"});
    const moved cut(p, 0, -0.5, 0.72);
    gem(p, j);
}

} // namespace

void draw_title(pen& p, int which) {
    const bool neon = which == 2;
    box(p, 0, 0, 795, 58, 10, {.fill = gold(p), .stroke = "#2a0c02", .width = 1});
    box(p, 3, 3, 789, 52, 8,
        {.fill = neon ? down(p, {{0, "#0a0430"}, {0.5, "#1c0a58"}, {1, "#080220"}})
                      : down(p, {{0, "#5a0414"}, {0.45, "#a00c22"}, {1, "#38020c"}}),
         .stroke = "#1a0204",
         .width = 1.5});
    const auto fan = halo(p,
                          {{0, neon ? "#b04cff" : "#ffb050", 0.34},
                           {0.5, neon ? "#5a2cff" : "#ff5a2c", 0.14},
                           {1, ink::white, 0}},
                          397, 29, 400);
    box(p, 4, 4, 787, 50, 7, {.fill = fan});
    end_jewel(p, 34, 29, neon ? ink::emerald : ink::ruby, neon);
    end_jewel(p, 735, 29, neon ? ink::emerald : ink::ruby, neon);
    for (const double x : {60.0, 640.0})
        for (int i = 0; i < 3; ++i) {
            const double cx = x + 14 + i * 20;
            if (neon)
                glow(p, cx, 29, 12, 12, "#ffd83c", 0.9);
            path(p, star(cx, 29, i == 1 ? 9 : 6, i == 1 ? 3.6 : 2.4, 5),
                 {.fill = neon ? std::string("#fffbd0") : gold(p)});
        }
    const face shape{.weight = 0.22, .stretch = 1.08, .most = 478, .slabs = true};
    const double x = 380, y = 9, height = 40;
    if (neon) {
        write(p, "HOARD HUSTLE", x, y, height,
              {.fill = "#ff2ca0", .edge = "#ff2ca0", .edge_width = 5, .edge_opacity = 0.18, .shape = shape});
        write(p, "HOARD HUSTLE", x, y, height,
              {.fill = "#ff5cc0", .edge = "#ff2ca0", .edge_width = 2.4, .edge_opacity = 0.5, .shape = shape});
        face core = shape;
        core.weight = 0.22;
        const auto d =
            text_path("HOARD HUSTLE", x - words_width("HOARD HUSTLE", height, core) / 2, y, height, core);
        path(p, d, {.stroke = "#ffd8f2", .width = height * 0.15});
        path(p, d, {.stroke = ink::white, .width = height * 0.08});
    } else {
        write(p, "HOARD HUSTLE", x, y + 2.5, height,
              {.fill = "#1a0004", .edge = "#1a0004", .edge_width = 2.5, .edge_opacity = 0.8, .shape = shape});
        write(p, "HOARD HUSTLE", x, y, height,
              {.fill = gold(p, y, y + height), .edge = "#4a1a02", .edge_width = 2, .shape = shape});
        const auto d = text_path("HOARD HUSTLE", x - words_width("HOARD HUSTLE", height, shape) / 2, y - 1.2,
                                 height, shape);
        path(p, d, {.stroke = ink::white, .width = 1.3, .stroke_opacity = 0.55});
    }
    box(p, 5, 4.5, 785, 17, 6, {.fill = down(p, {{0, ink::white, 0.22}, {1, ink::white, 0.02}})});
}

void draw_back(pen& p, int) {
    box(p, 0, 0, 800, 521, 0,
        {.fill =
             halo(p, {{0, "#6a1440"}, {0.45, "#3a0a3a"}, {0.8, "#1c0628"}, {1, "#0e0318"}}, 400, 270, 520)});
    rays(p, 400, 285, 500, 48, {.fill = "#ff9a48", .fill_opacity = 0.085});
    for (const double r : {250.0, 330.0, 410.0})
        disc(p, 400, 285, r, {.stroke = "#ffc45a", .width = 1, .stroke_opacity = 0.16});
    // soft lights behind the glass
    for (const auto& [x, y, r, colour] :
         {std::tuple(60.0, 110.0, 120.0, "#d83c8a"), std::tuple(740.0, 430.0, 150.0, "#d8662c"),
          std::tuple(740.0, 100.0, 120.0, "#8a3cd8"), std::tuple(60.0, 440.0, 140.0, "#5a2cc8")})
        glow(p, x, y, r, r, colour, 0.34);
    for (const auto& [x, y, r] :
         {std::tuple(22.0, 84.0, 6.0), std::tuple(114.0, 62.0, 4.5), std::tuple(118.0, 430.0, 5.0),
          std::tuple(604.0, 74.0, 5.5), std::tuple(650.0, 128.0, 4.0), std::tuple(628.0, 205.0, 4.5),
          std::tuple(655.0, 284.0, 4.0), std::tuple(612.0, 360.0, 5.0), std::tuple(654.0, 440.0, 5.5),
          std::tuple(20.0, 420.0, 6.0), std::tuple(166.0, 250.0, 4.0), std::tuple(646.0, 72.0, 3.6),
          std::tuple(170.0, 470.0, 4.0), std::tuple(795.0, 240.0, 5.0), std::tuple(4.0, 260.0, 5.0),
          std::tuple(60.0, 416.0, 3.5)})
        sparkle(p, x, y, r * 1.3, 0.6);
    for (const double x : {0.0, 796.0})
        box(p, x, 0, 4, 521, 0, {.fill = across(p, {{0, "#8a5208"}, {0.45, "#ffe79a"}, {1, "#7a4606"}})});
    for (const double x : {5.5, 793.0})
        box(p, x, 0, 1.2, 521, 0, {.fill = "#ffd47a", .fill_opacity = 0.4});
    box(p, 0, 0, 800, 130, 0, {.fill = down(p, {{0, ink::white, 0.1}, {1, ink::white, 0}})});
}

void draw_buttonbar(pen& p, int) {
    box(p, 0, 0, 800, 98, 0,
        {.fill = down(
             p, {{0, "#5c4a58"}, {0.08, "#3e2e40"}, {0.5, "#2a1c2e"}, {0.9, "#1a0f1e"}, {1, "#08040a"}})});
    // the brushing
    unsigned grain = 7;
    std::string light, dark;
    for (int y = 6; y < 96; y += 2) {
        grain = grain * 1103515245U + 12345U;
        const double x = (grain >> 16) % 700;
        const auto stroke = joined("M", x, ",", y + 0.5, "h", static_cast<double>(100 + (grain >> 8) % 500));
        ((grain >> 20) % 2 == 0 ? light : dark) += stroke;
    }
    path(p, light, {.stroke = ink::white, .width = 0.8, .stroke_opacity = 0.05, .round = false});
    path(p, dark, {.stroke = ink::black, .width = 0.8, .stroke_opacity = 0.14, .round = false});
    box(p, 0, 0, 800, 98, 0,
        {.fill = across(p, {{0, ink::black, 0.45},
                            {0.18, ink::white, 0.05},
                            {0.35, ink::black, 0.05},
                            {0.6, ink::white, 0.08},
                            {0.8, ink::black, 0.08},
                            {1, ink::black, 0.45}})});
    box(p, 0, 0, 800, 5, 0, {.fill = gold(p)});
    box(p, 0, 5, 800, 5, 0, {.fill = down(p, {{0, ink::black, 0.6}, {1, ink::black, 0}})});
    box(p, 0, 94, 800, 4, 0, {.fill = gold(p)});
    for (const double x : {11.0, 789.0})
        for (const double y : {18.0, 84.0}) {
            disc(p, x, y, 4.5, {.fill = gold(p), .stroke = "#1a0c04", .width = 1});
            line(p, x - 2.4, y - 1.6, x + 2.4, y + 1.6, {.stroke = "#4a2402", .width = 1.2});
        }
}

void draw_reelframe(pen& p, int) {
    moulding(p, {8, 8, 449, 312}, 8, 2);
    for (const double x : {152.0, 304.0}) {
        box(p, x, 8, 8, 312, 0,
            {.fill = across(p, {{0, "#1a0a04"},
                                {0.14, "#8a5208"},
                                {0.42, "#fff2b8"},
                                {0.6, "#d89a28"},
                                {0.86, "#6a3a04"},
                                {1, "#1a0a04"}})});
    }
    for (const double x : {1.0, 464.0}) { // the win line
        const double in = x < 100 ? 8.5 : -8.5;
        path(p, polygon({{x, 136}, {x + in, 164}, {x, 192}}),
             {.fill = down(p, {{0, "#ff8a5a"}, {0.5, "#ff1c34"}, {1, "#a00418"}}),
              .stroke = "#fff2b8",
              .width = 1.2});
    }
}

void draw_lineframe(pen& p, int) {
    box(p, 0, 0, 474, 50, 8, {.fill = gold(p), .stroke = "#1a0a04", .width = 1});
    box(p, 2.5, 3, 469, 44.5, 6,
        {.fill = down(p, {{0, "#7a1228"}, {0.25, "#4a0818"}, {1, "#1c0208"}}),
         .stroke = "#2a0c02",
         .width = 1});
    for (int i = 0; i < 31; ++i)
        disc(p, 12 + i * 15, 7.6, 2, {.fill = ball(p, {{0, "#fffbe0"}, {0.5, "#ffd04a"}, {1, "#8a5208"}})});
    box(p, 3.5, 11.5, 467.5, 36, 3, {.fill = "#050204", .stroke = "#c98a1e", .width = 1});
}

void draw_still(pen& p, int which) {
    plate(p, {0, 0, 70, 55}, 8);
    glow(p, 35, 29, 30, 22, which == 1 ? "#ffb43c" : which == 2 ? "#ff3c6a" : "#3cb4ff", 0.5);
    if (which == 1) {
        const moved here(p, 35, 49, 0.37);
        chest(p);
    } else if (which == 2) {
        for (const auto& [x, y, j] :
             {std::tuple(22.0, 33.0, &ink::emerald), std::tuple(49.0, 33.0, &ink::sapphire),
              std::tuple(35.5, 25.0, &ink::ruby)}) {
            const moved here(p, x, y, 0.72);
            gem(p, *j);
        }
        sparkle(p, 27, 16, 7);
    } else {
        const moved here(p, 35, 28, 1, -38);
        const auto metal = gold(p);
        const paint brass{.fill = metal, .stroke = "#4a2402", .width = 1.1};
        path(p, boxpath(-8, -2.6, 34, 5.2, 2) + "M16,2 L16,10 L20,10 L20,7 L22,7 L22,10 L26,10 L26,2 Z",
             brass);
        path(p, "M-27,0 A11,11 0 1 1 -5,0 A11,11 0 1 1 -27,0 Z M-21,0 A5,5 0 1 0 -11,0 A5,5 0 1 0 -21,0 Z",
             {.fill = gold(p), .stroke = "#4a2402", .width = 1.1, .hollow = true});
        sparkle(p, -20, -6, 7);
    }
}

void draw_transfer(pen& p, int) {
    box(p, 0.5, 0.5, 18, 39, 5, {.fill = silver(p), .stroke = "#1a0a04", .width = 1});
    box(p, 3, 3, 13, 34, 3.5,
        {.fill = down(p, {{0, "#14080c"}, {1, "#3a1a22"}}), .stroke = "#000000", .width = 0.8});
    box(p, 8, 5, 3, 30, 1.5, {.fill = "#000000"});
    disc(p, 9.5, 12, 6, {.fill = gold(p), .stroke = "#4a2402", .width = 0.9});
    write(p, p.dollars ? "$" : "£", 9.5, 8.6, 7, {.fill = "#5a2c02", .shape = {.weight = 0.2}});
    path(p, polygon({{9.5, 34}, {4.5, 26}, {14.5, 26}}),
         {.fill = "#ff5a3c", .stroke = "#4a0a04", .width = 0.8});
    path(p, polygon({{9.5, 29}, {6.2, 22.5}, {12.8, 22.5}}),
         {.fill = "#ffb43c", .stroke = "#4a0a04", .width = 0.6});
}

void draw_trailheld(pen& p, int) {
    cap(p, {4, 4, 62, 47}, 9, ink::emerald, true, 4);
    cap_words(p, "TRAIL", 35, 18.5, 13, 48, ink::emerald, true);
    cap_words(p, "HELD", 35, 36.5, 13, 48, ink::emerald, true);
}

} // namespace hustle
