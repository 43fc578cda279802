#include "art/lamps.h"

#include <tuple>

namespace hustle {

void cap(pen& p, area a, double round, const ink::jewel& j, bool on, double spill) {
    const auto& [x, y, w, h] = a;
    if (on)
        for (double out = spill; out > 0.4; out -= spill / 5)
            box(p, x - out, y - out, w + 2 * out, h + 2 * out, round + out,
                {.fill = j.lit, .fill_opacity = 0.1 + 0.16 * (1 - out / spill)});
    else {
        box(p, x - 1.5, y - 0.5, w + 3, h + 4, round + 1.5, {.fill = ink::black, .fill_opacity = 0.5});
    }
    box(p, x, y, w, h, round,
        {.fill =
             on ? gold(p) : down(p, {{0, "#b89a5a"}, {0.35, "#6e5222"}, {0.55, "#3c2a0c"}, {1, "#8a6a30"}}),
         .stroke = "#1a0c04",
         .width = 1});
    const double rim = h > 40 ? 3.2 : 2.4;
    const double gx = x + rim, gy = y + rim, gw = w - 2 * rim, gh = h - 2 * rim, gr = round - rim * 0.7;
    if (on) {
        box(p, gx, gy, gw, gh, gr, {.fill = down(p, {{0, j.lit}, {0.6, j.lit}, {1, j.mid}})});
        box(p, gx, gy, gw, gh, gr,
            {.fill = ball(p, {{0, j.hot, 0.95}, {0.4, j.hot, 0.5}, {0.8, j.hot, 0.08}, {1, j.hot, 0}}, 0.5,
                          0.62, 0.56)});
        box(p, gx + 0.6, gy + 0.6, gw - 1.2, gh - 1.2, gr,
            {.stroke = j.hot, .width = 1.1, .stroke_opacity = 0.85});
    } else {
        box(p, gx, gy, gw, gh, gr, {.fill = down(p, {{0, j.deep}, {0.55, j.mid}, {1, j.deep}})});
        box(p, gx, gy, gw, gh, gr, {.fill = ball(p, {{0, j.lit, 0.2}, {1, j.lit, 0}}, 0.5, 0.85, 0.6)});
        box(p, gx + 0.6, gy + 0.6, gw - 1.2, gh - 1.2, gr,
            {.stroke = ink::black, .width = 1.4, .stroke_opacity = 0.55});
    }
    const double gloss = gh * 0.42;
    box(p, gx + 2, gy + 1.6, gw - 4, gloss, gr * 0.8,
        {.fill = down(p, {{0, ink::white, on ? 0.5 : 0.34}, {1, ink::white, on ? 0.06 : 0.03}})});
}

void cap_words(pen& p, std::string_view words, double x, double y, double height, double most,
               const ink::jewel& j, bool on) {
    // Long words become smaller rather than thin.
    constexpr double thinnest = 0.82;
    const double wide = words_width(words, height, {.weight = 0.2, .stretch = thinnest});
    const double size = wide > most ? height * most / wide : height;
    write(p, words, x, y - size / 2, size,
          {.fill = on ? ink::white : std::string_view("#e0d2b4"),
           .edge = on ? j.deep : ink::black,
           .edge_width = size > 14 ? 2 : 1.5,
           .edge_opacity = on ? 1 : 0.75,
           .shape = {.weight = 0.2, .stretch = 1.05, .most = most}});
}

void plate(pen& p, area a, double round) {
    const auto& [x, y, w, h] = a;
    box(p, x, y, w, h, round, {.fill = gold(p), .stroke = "#1a0c04", .width = 1});
    box(p, x + 2.5, y + 2.5, w - 5, h - 5, round - 1.5,
        {.fill = down(p, {{0, "#1c0a26"}, {0.5, "#2c1040"}, {1, "#140620"}}),
         .stroke = "#0a0210",
         .width = 1.4});
    box(p, x + 4, y + 4, w - 8, (h - 8) * 0.3, round - 2,
        {.fill = down(p, {{0, ink::white, 0.16}, {1, ink::white, 0.01}})});
}

void moulding(pen& p, area hole, double thick, double round) {
    const auto grown = [&](double by) {
        return boxpath(hole.x - by, hole.y - by, hole.w + 2 * by, hole.h + 2 * by, round + by);
    };
    const auto ringed = [&](double outer, double inner) { return grown(outer) + grown(inner); };
    path(p, ringed(thick, 0), {.fill = "#1a0a04", .hollow = true});
    path(p, ringed(thick - 0.8, 1.4), {.fill = gold(p), .hollow = true});
    path(p, ringed(thick - 0.8, thick * 0.6),
         {.fill = ramp(p, {{0, "#fff9d8"}, {0.25, "#f2c552"}, {0.6, "#a86c14"}, {1, "#ffe08a"}}, hole.x,
                       hole.y, hole.x + hole.w, hole.y + hole.h),
          .hollow = true});
    path(p, ringed(thick * 0.6, thick * 0.6 - 1), {.fill = "#5a3206", .fill_opacity = 0.8, .hollow = true});
    path(p, ringed(1.4, 0), {.fill = "#0c0402", .hollow = true});
}

void bomb(pen& p, bool on) {
    if (on) {
        glow(p, 0, 4, 20, 20, "#ff5a1a", 0.9);
        glow(p, 11, -15, 12, 12, "#ffd03c", 1);
    }
    path(p, "M3,-9 C4,-17 9,-18 11,-14", {.stroke = "#1a1008", .width = 4});
    path(p, "M3,-9 C4,-17 9,-18 11,-14", {.stroke = on ? "#f0dca0" : "#7a6a4c", .width = 2.2});
    const auto iron =
        on ? ball(p, {{0, "#ffb070"}, {0.25, "#a83418"}, {0.7, "#3c0c0a"}, {1, "#120404"}}, 0.36, 0.3, 0.75)
           : ball(p, {{0, "#6c7080"}, {0.3, "#34363f"}, {0.75, "#131318"}, {1, "#050506"}}, 0.36, 0.3, 0.75);
    box(p, -1.5, -11.5, 9, 6, 1.5, {.fill = on ? "#8a2a12" : "#30323a", .stroke = ink::black, .width = 1});
    disc(p, 0, 4, 14, {.fill = iron, .stroke = on ? "#ff7a3c" : "#000000", .width = 1.2});
    {
        const moved shine(p, -5, -2.5, 1, -38);
        oval(p, 0, 0, 4, 2.2, {.fill = ink::white, .fill_opacity = on ? 0.85 : 0.4});
    }
    if (on)
        sparkle(p, 11, -15, 9);
}

void gem(pen& p, const ink::jewel& j) {
    path(p, polygon({{-12, -14}, {12, -14}, {20, -4}, {0, 17}, {-20, -4}}),
         {.fill = j.mid, .stroke = j.deep, .width = 2});
    path(p, polygon({{-12, -14}, {0, -14}, {-7, -4}, {-20, -4}}), {.fill = j.hot, .fill_opacity = 0.9});
    path(p, polygon({{0, -14}, {12, -14}, {7, -4}, {-7, -4}}), {.fill = j.lit});
    path(p, polygon({{0, -14}, {7, -4}, {-7, -4}}), {.fill = j.hot, .fill_opacity = 0.75});
    path(p, polygon({{12, -14}, {20, -4}, {7, -4}}), {.fill = j.lit, .fill_opacity = 0.7});
    path(p, polygon({{-20, -4}, {-7, -4}, {0, 17}}), {.fill = j.lit, .fill_opacity = 0.8});
    path(p, polygon({{-7, -4}, {7, -4}, {0, 17}}), {.fill = j.lit});
    path(p, polygon({{-7, -4}, {0, -4}, {0, 17}}), {.fill = j.hot, .fill_opacity = 0.3});
}

namespace {

void coins(pen& p) {
    for (const auto& [x, y] :
         {point(-46, -62), point(-24, -70), point(0, -74), point(25, -70), point(47, -62), point(-36, -58),
          point(-12, -62), point(13, -63), point(36, -57), point(-54, -54), point(-25, -53), point(0, -55),
          point(24, -52), point(53, -53)}) {
        oval(p, x, y + 2.5, 12, 7.5, {.fill = "#7a4606"});
        oval(p, x, y, 12, 7.5, {.fill = gold(p), .stroke = "#7a4606", .width = 0.9});
        oval(p, x, y, 8, 4.6, {.stroke = "#fff6c4", .width = 0.9, .stroke_opacity = 0.8});
    }
}

} // namespace

void chest(pen& p) {
    glow(p, 0, -66, 96, 66, "#ffc83c", 0.85);
    oval(p, 0, 0, 82, 8, {.fill = ink::black, .fill_opacity = 0.4});
    const auto wood = down(p, {{0, "#9a5422"}, {0.5, "#6e3210"}, {1, "#38140a"}});
    // the lid, thrown back
    path(p, "M-68,-58 C-70,-104 -46,-120 0,-120 C46,-120 70,-104 68,-58 Z",
         {.fill = wood, .stroke = "#1e0a04", .width = 2});
    path(p, "M-58,-58 C-60,-96 -40,-108 0,-108 C40,-108 60,-96 58,-58 Z",
         {.fill = down(p, {{0, "#2a0a06"}, {0.6, "#8a3c0a"}, {1, "#ffb83c"}})});
    path(p, "M-68,-58 C-70,-104 -46,-120 0,-120 C46,-120 70,-104 68,-58",
         {.stroke = gold(p, -120, -58), .width = 5});
    path(p, "M-34,-60 C-36,-90 -30,-104 -26,-116 M34,-60 C36,-90 30,-104 26,-116",
         {.stroke = "#5a2a06", .width = 3, .stroke_opacity = 0.5});
    coins(p);
    for (const auto& [x, y, j] :
         {std::tuple(-34.0, -72.0, &ink::ruby), std::tuple(32.0, -74.0, &ink::emerald),
          std::tuple(2.0, -83.0, &ink::sapphire)}) {
        const moved stone(p, x, y, 0.62, x / 3);
        gem(p, *j);
    }
    // the body
    path(p, "M-68,-52 L68,-52 L62,0 L-62,0 Z", {.fill = wood, .stroke = "#1e0a04", .width = 2});
    path(p, "M-66,-35 L66,-35 M-64,-18 L64,-18", {.stroke = "#2a0e04", .width = 1.6, .stroke_opacity = 0.75});
    path(p, "M-69,-54 L69,-54 L68,-45 L-68,-45 Z", {.fill = gold(p), .stroke = "#5a2c02", .width = 1});
    path(p, "M-63,-7 L63,-7 L62,1 L-62,1 Z", {.fill = gold(p), .stroke = "#5a2c02", .width = 1});
    for (const double x : {-44.0, 34.0})
        box(p, x, -46, 10, 40, 1,
            {.fill = across(p, {{0, "#8a5208"}, {0.4, "#ffe79a"}, {1, "#9a5e0c"}}),
             .stroke = "#5a2c02",
             .width = 1});
    box(p, -13, -52, 26, 28, 4, {.fill = gold(p), .stroke = "#4a2402", .width = 1.4});
    disc(p, 0, -41, 4, {.fill = "#1a0804"});
    path(p, "M-2.2,-40 L2.2,-40 L3.4,-29 L-3.4,-29 Z", {.fill = "#1a0804"});
    sparkle(p, -18, -78, 12);
    sparkle(p, 48, -68, 10);
    sparkle(p, 14, -66, 8);
}

} // namespace hustle
