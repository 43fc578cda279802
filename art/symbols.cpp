#include "art/symbols.h"

#include "art/letters.h"

#include <algorithm>
#include <tuple>

namespace hustle {

namespace {

constexpr std::string_view words[] = {"rseven", "bseven", "bell", "bar",
                                      "melon",  "cherry", "pound"}; // by symbol

void shadow(pen& p, double y, double rx) { glow(p, 0, y, rx, 7, "#3a2410", 0.55); }

// A bold seven with a swept stem.
constexpr std::string_view swept = "M-37,-43 L38,-43 L38,-26 C20,-6 10,14 8,44 L-22,44 C-20,18 -8,-4 10,-20 "
                                   "L-13,-20 C-20,-20 -23,-17 -25,-9 "
                                   "L-37,-9 Z";
// An upright seven with a bar across its stem.
constexpr std::string_view barred = "M-27,-33 L28,-33 L28,-20 L17,-2 L25,-2 L25,9 L11,9 L0,35 L-18,35 L-6,9 "
                                    "L-18,9 L-18,-2 L-1,-2 L9,-19 L-16,-19 "
                                    "L-16,-13 L-27,-13 Z";

void rseven(pen& p) {
    shadow(p, 43, 40);
    const auto rays = ball(p, {{0.3, "#ffd23c"}, {0.75, "#ff9a14"}, {1, "#d85c06"}});
    {
        const moved wide(p, 0, 0, point(1.1, 0.9), 0);
        path(p, star(0, 0, 56, 33, 16), {.fill = rays, .stroke = "#7a2a04", .width = 1.6});
    }
    disc(p, 0, 0, 33, {.fill = ball(p, {{0, "#fff7c0"}, {0.7, "#ffdf5c"}, {1, "#ffc531"}})});
    const moved smaller(p, 0, 0, 0.9);
    path(p, swept, {.fill = "#5a0210", .stroke = "#5a0210", .width = 10});
    path(p, swept, {.stroke = gold(p, -45, 46), .width = 7});
    path(p, swept, {.fill = down(p, {{0, "#ff7a5c"}, {0.2, "#f2182c"}, {0.6, "#c40a20"}, {1, "#7c0414"}})});
    path(p, "M-33,-39 L34,-39 L34,-32 L-20,-30 C-27,-29 -29,-22 -30,-14 L-33,-14 Z",
         {.fill = ink::white, .fill_opacity = 0.55});
    path(p, "M20,-20 C8,-4 -1,14 -4,40", {.stroke = "#ff9c84", .width = 3.4, .stroke_opacity = 0.75});
}

void bseven(pen& p) {
    shadow(p, 44, 36);
    const auto outer = polygon({{0, -51}, {58, 0}, {0, 51}, {-58, 0}});
    path(p, outer, {.fill = silver(p), .stroke = "#0a1a4a", .width = 2});
    path(p, polygon({{0, -44}, {50, 0}, {0, 44}, {-50, 0}}),
         {.fill = ball(p, {{0, "#3f9bff"}, {0.55, "#1450c0"}, {1, "#04124e"}}),
          .stroke = "#06206a",
          .width = 1.5});
    path(p, polygon({{0, -44}, {50, 0}, {0, 0}}), {.fill = ink::white, .fill_opacity = 0.13});
    path(p, polygon({{0, -44}, {-50, 0}, {0, 0}}), {.fill = ink::white, .fill_opacity = 0.22});
    path(p, polygon({{0, 44}, {50, 0}, {0, 0}}), {.fill = ink::black, .fill_opacity = 0.2});
    path(p, barred, {.fill = "#020a34", .stroke = "#020a34", .width = 9});
    path(p, barred, {.fill = ink::white, .stroke = ink::white, .width = 4.5});
    path(p, barred,
         {.fill = down(p, {{0, "#6cd0ff"}, {0.35, "#1c74f0"}, {0.75, "#0a3cc0"}, {1, "#061c78"}})});
    path(p, "M-24,-30 L25,-30 L25,-25 L-24,-23 Z", {.fill = ink::white, .fill_opacity = 0.6});
}

void bell(pen& p) {
    shadow(p, 44, 42);
    const std::string_view body =
        "M0,-38 C-24,-38 -28,-14 -30,2 C-32,16 -39,21 -46,29 L46,29 C39,21 32,16 30,2 "
        "C28,-14 24,-38 0,-38 Z";
    disc(p, 0, 37, 9,
         {.fill = ball(p, {{0, "#ffe79a"}, {0.6, "#c8801a"}, {1, "#6a3804"}}, 0.4, 0.35, 0.6),
          .stroke = "#5a2c02",
          .width = 1.5});
    disc(p, 0, -41, 6.5, {.fill = gold(p), .stroke = "#5a2c02", .width = 1.5});
    path(p, body,
         {.fill = across(p, {{0, "#8a4e06"},
                             {0.16, "#e09a1e"},
                             {0.34, "#fff3ac"},
                             {0.5, "#ffce3e"},
                             {0.72, "#e0901a"},
                             {0.92, "#8a4c06"},
                             {1, "#c07a18"}}),
          .stroke = "#5a2c02",
          .width = 2});
    path(p, "M-30,2 C-20,7 20,7 30,2 L31.5,9 C20,14 -20,14 -31.5,9 Z", {.fill = "#d4142a"});
    path(p, "M-29,3 C-20,8 20,8 29,3", {.stroke = "#ff8a7a", .width = 1.4});
    box(p, -49, 26, 98, 9, 4.5, {.fill = gold(p), .stroke = "#5a2c02", .width = 1.6});
    path(p, "M-15,-28 C-21,-18 -22,-8 -23,-1", {.stroke = ink::white, .width = 4.5, .stroke_opacity = 0.85});
    path(p, "M22,-18 C25,-8 25,-4 26,-1", {.stroke = "#fff0b0", .width = 2.4, .stroke_opacity = 0.6});
    sparkle(p, -15, -25, 11);
}

void bar(pen& p) {
    shadow(p, 36, 56);
    for (const double y : {-40.0, 26.0}) {
        box(p, -46, y, 92, 13, 5, {.fill = gold(p), .stroke = "#4a2402", .width = 1.6});
        box(p, -42, y + 3, 84, 7, 3, {.fill = down(p, {{0, "#e02438"}, {1, "#7a0818"}})});
    }
    box(p, -60, -25, 120, 50, 11, {.fill = gold(p), .stroke = "#4a2402", .width = 2});
    box(p, -55, -20, 110, 40, 7,
        {.fill = down(p, {{0, "#4a4358"}, {0.48, "#16121f"}, {0.52, "#05040a"}, {1, "#2a2436"}}),
         .stroke = "#1a0c02",
         .width = 1.5});
    write(p, "BAR", 0, -15, 30,
          {.fill = gold(p, -15, 15),
           .edge = "#000000",
           .edge_width = 1.5,
           .shape = {.weight = 0.27, .stretch = 1.25}});
    box(p, -53, -18, 106, 15, 6, {.fill = ink::white, .fill_opacity = 0.14});
}

void melon(pen& p) {
    shadow(p, 42, 46);
    const moved tilt(p, 0, -2, 1, -13);
    path(p, "M-58,-14 A58,56 0 0 0 58,-14 Z",
         {.fill = across(
              p, {{0, "#0c5a22"}, {0.3, "#27a044"}, {0.5, "#1a7c34"}, {0.75, "#2aa84a"}, {1, "#074a18"}}),
          .stroke = "#043410",
          .width = 2});
    path(p, "M-52,-14 A52,50 0 0 0 52,-14 Z", {.fill = "#c9f08c"});
    path(p, "M-48.5,-14 A48.5,46.5 0 0 0 48.5,-14 Z", {.fill = "#fff4dc"});
    path(p, "M-45,-14 A45,43 0 0 0 45,-14 Z",
         {.fill = down(p, {{0, "#ff7a80"}, {0.35, "#f5384e"}, {1, "#c4102c"}})});
    for (const auto& [x, y, turn] :
         {std::tuple(-28.0, -4.0, 35.0), std::tuple(-10.0, -3.0, 12.0), std::tuple(10.0, -3.0, -12.0),
          std::tuple(28.0, -4.0, -35.0), std::tuple(-18.0, 11.0, 22.0), std::tuple(0.0, 11.0, 0.0),
          std::tuple(18.0, 11.0, -22.0), std::tuple(0.0, 22.0, 0.0)}) {
        const moved seed(p, x, y, 1, turn);
        oval(p, 0, 0, 2.4, 4.2, {.fill = "#2a0a0a"});
        oval(p, -0.7, -1.4, 0.7, 1.2, {.fill = ink::white, .fill_opacity = 0.7});
    }
    box(p, -56, -17, 112, 5, 2.5, {.fill = ink::white, .fill_opacity = 0.55});
    path(p, "M-44,6 C-36,24 -20,33 -8,36", {.stroke = "#c8ffb0", .width = 2.6, .stroke_opacity = 0.5});
}

void cherry(pen& p) {
    shadow(p, 43, 46);
    path(p, "M10,-42 C-2,-26 -18,-14 -23,4 M10,-42 C14,-24 22,-10 24,8", {.stroke = "#1c4a10", .width = 6});
    path(p, "M10,-42 C-2,-26 -18,-14 -23,4 M10,-42 C14,-24 22,-10 24,8", {.stroke = "#6cb83a", .width = 3});
    path(p, "M10,-40 C18,-54 42,-52 55,-34 C40,-22 20,-24 10,-40 Z",
         {.fill = across(p, {{0, "#0e6a22"}, {0.5, "#3cc04a"}, {1, "#11762a"}}),
          .stroke = "#06380e",
          .width = 1.8});
    path(p, "M12,-39 C26,-42 38,-40 50,-35", {.stroke = "#b8f08c", .width = 1.6});
    const auto flesh =
        ball(p, {{0, "#ff8c84"}, {0.25, "#f01c34"}, {0.7, "#b4061c"}, {1, "#5a0010"}}, 0.36, 0.32, 0.72);
    for (const auto& [x, y] : {point(-25, 19), point(25, 22)}) {
        disc(p, x, y, 24, {.fill = flesh, .stroke = "#48000c", .width = 2});
        path(p, joined("M", x - 5, ",", y - 17, " Q", x + 1, ",", y - 12, " ", x + 7, ",", y - 17),
             {.stroke = "#5a0010", .width = 2});
        const moved shine(p, x - 9, y - 9, 1, -35);
        oval(p, 0, 0, 7, 3.8, {.fill = ink::white, .fill_opacity = 0.85});
    }
}

void coin(pen& p, money sign) {
    shadow(p, 45, 40);
    disc(p, 0, 3.5, 45, {.fill = "#6a3a04"});
    disc(p, 0, 0, 45, {.fill = gold(p), .stroke = "#5a2c02", .width = 2});
    disc(p, 0, 0, 40.5, {.stroke = "#fff6c4", .width = 1.2});
    for (int i = 0; i < 36; ++i) {
        const moved notch(p, 0, 0, 1, i * 10);
        line(p, 0, -44, 0, -41.6, {.stroke = "#8a5208", .width = 1.2});
    }
    disc(p, 0, 0, 36,
         {.fill = ball(p, {{0, "#2fd06a"}, {0.55, "#0a8a3c"}, {1, "#02401a"}}, 0.5, 0.4, 0.6),
          .stroke = "#6a3a04",
          .width = 2.2});
    const auto mark = sign == money::pounds && !p.dollars ? "£" : "$";
    write(p, mark, 0, -27, 54,
          {.fill = gold(p, -27, 27),
           .edge = "#02240e",
           .edge_width = 3,
           .shape = {.weight = 0.21, .stretch = 1.05}});
    path(p, "M-33,-12 A35,35 0 0 1 22,-27 C6,-24 -16,-20 -33,-12 Z",
         {.fill = ink::white, .fill_opacity = 0.34});
    sparkle(p, -27, -32, 13);
}

} // namespace

symbol symbol_of(std::string_view word) {
    return static_cast<symbol>(std::find(std::begin(words), std::end(words), word) - std::begin(words));
}

void draw(pen& p, symbol which, money sign) {
    switch (which) {
    case symbol::rseven: return rseven(p);
    case symbol::bseven: return bseven(p);
    case symbol::bell: return bell(p);
    case symbol::bar: return bar(p);
    case symbol::melon: return melon(p);
    case symbol::cherry: return cherry(p);
    case symbol::coin: return coin(p, sign);
    }
}

} // namespace hustle
