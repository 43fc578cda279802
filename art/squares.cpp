#include "art/bank.h"
#include "art/lamps.h"
#include "art/symbols.h"
#include "panel/ring.h"

#include <tuple>

namespace hustle {

namespace {

void coin_icon(pen& p, bool) {
    const moved here(p, 0, 0, 0.27);
    draw(p, symbol::coin);
}

void feature_icon(pen& p, bool on) {
    path(p, star(0, 0, 13, 5.6, 5), {.fill = gold(p), .stroke = on ? "#5a2c02" : "#1a0c02", .width = 1.2});
    path(p, star(0, -0.5, 7, 3, 5), {.fill = ink::white, .fill_opacity = 0.36});
}

void target_icon(pen& p, bool) {
    for (const auto& [r, colour] : {std::pair(12.5, "#fff4e0"), std::pair(9.5, "#e8142c"),
                                    std::pair(6.5, "#fff4e0"), std::pair(3.5, "#e8142c")})
        disc(p, 0, 0, r, {.fill = colour, .stroke = "#3a0208", .width = 0.6});
}

void multi_icon(pen& p, bool on) {
    for (const auto& [x, y, j] : {std::tuple(-11.0, 3.0, &ink::ruby), std::tuple(11.0, 3.0, &ink::sapphire),
                                  std::tuple(0.0, -3.0, &ink::topaz)}) {
        disc(p, x, y, 8.5, {.fill = on ? j->lit : j->mid, .stroke = on ? ink::white : j->deep, .width = 1.2});
        path(p, joined("M", x - 4.5, ",", y, "h9M", x, ",", y - 4.5, "v9"),
             {.stroke = ink::white, .width = 2.6});
    }
}

void start_icon(pen& p, bool) {
    path(p, polygon({{-9, -12}, {13, 0}, {-9, 12}}), {.fill = ink::white, .stroke = "#03280f", .width = 1.6});
}

void heart_icon(pen& p, bool) {
    path(p, "M0,12 C-18,-1 -15,-13 -7,-13 C-3,-13 -1,-11 0,-8 C1,-11 3,-13 7,-13 C15,-13 18,-1 0,12 Z",
         {.fill = down(p, {{0, "#ff8c9c"}, {0.4, "#f0142c"}, {1, "#8a0414"}}),
          .stroke = "#4a020a",
          .width = 1.4});
    path(p, "M-9,-8 C-11,-6 -11,-3 -10,-1", {.stroke = ink::white, .width = 2, .stroke_opacity = 0.8});
}

void boost_icon(pen& p, bool on) {
    for (const double y : {-9.0, -1.0, 7.0})
        path(p, polygon({{-13, y + 6}, {0, y - 5}, {13, y + 6}, {13, y + 1}, {0, y - 10}, {-13, y + 1}}),
             {.fill = on ? std::string(y < 0 ? "#ffffff" : "#fff2a0") : gold(p),
              .stroke = "#4a2402",
              .width = 1});
}

void skull_icon(pen& p, bool on) {
    const auto bone = on ? std::string("#ffffff") : std::string("#cfc4b4");
    path(p,
         "M-11,-2 C-11,-10 -6,-14 0,-14 C6,-14 11,-10 11,-2 C11,2 9,4 7,5 L7,11 L-7,11 L-7,5 C-9,4 -11,2 "
         "-11,-2 Z",
         {.fill = bone, .stroke = "#0a0408", .width = 1.4});
    oval(p, -4.6, -1.5, 3.2, 3.6, {.fill = on ? "#c00418" : "#140608"});
    oval(p, 4.6, -1.5, 3.2, 3.6, {.fill = on ? "#c00418" : "#140608"});
    path(p, "M0,2.5 L-1.6,5.5 L1.6,5.5 Z M-3.5,8 V11 M0,8 V11 M3.5,8 V11",
         {.fill = "#140608", .stroke = "#140608", .width = 1});
}

void hand_icon(pen& p, bool) {
    path(p, star(0, 0, 13, 11, 8), {.fill = "#e8142c", .stroke = ink::white, .width = 1.6});
    path(p, "M-5,6 V-4 M-1.7,5 V-7 M1.7,5 V-7 M5,6 V-4", {.stroke = ink::white, .width = 2.5});
    path(p, "M-6,2 H6 V5 C6,9 -5,9 -6,5 Z", {.fill = ink::white});
}

void dice_icon(pen& p, bool) {
    for (const auto& [x, y, turn] : {std::tuple(-7.0, 2.0, -16.0), std::tuple(8.0, -1.0, 14.0)}) {
        const moved here(p, x, y, 1, turn);
        box(p, -7.5, -7.5, 15, 15, 3.4,
            {.fill = down(p, {{0, "#ffffff"}, {1, "#d8ccb8"}}), .stroke = "#2a0c10", .width = 1});
        for (const auto& [u, v] : {point(-3.6, -3.6), point(3.6, 3.6), point(0, 0)})
            disc(p, u, v, 1.6, {.fill = "#b00818"});
    }
}

void bomb_icon(pen& p, bool on) {
    const moved here(p, 0, 1, 0.72);
    bomb(p, on);
}

void mystery_icon(pen& p, bool on) {
    write(p, "?", 0, -21, 42,
          {.fill = on ? std::string("#ffffff") : gold(p, -21, 21),
           .edge = on ? "#4a0c7a" : "#12021e",
           .edge_width = 2.6,
           .shape = {.weight = 0.24, .stretch = 1.15}});
}

struct square_face {
    std::string_view amount; // beside the icon
    std::string_view upper;  // words, one or two lines
    std::string_view lower;
    const ink::jewel& glass;
    void (*icon)(pen&, bool on);
};

// clang-format off
constexpr square_face faces[] = { // by square
    {"",   "START",   "",     ink::emerald,  start_icon},
    {"",   "MULTI",   "ADD",  ink::amethyst, multi_icon},
    {"+1", "CASH",    "",     ink::ruby,     coin_icon},
    {"+2", "CASH",    "",     ink::ruby,     coin_icon},
    {"+1", "SHOT",    "",     ink::topaz,    target_icon},
    {"+2", "SHOTS",   "",     ink::topaz,    target_icon},
    {"+1", "FEATURE", "",     ink::sapphire, feature_icon},
    {"+2", "FEATURE", "",     ink::sapphire, feature_icon},
    {"",   "",        "",     ink::amethyst, mystery_icon},
    {"",   "EXTRA",   "LIFE", ink::rose,     heart_icon},
    {"",   "BOOST",   "",     ink::amber,    boost_icon},
    {"",   "GAME",    "OVER", ink::onyx,     skull_icon},
    {"",   "SKILL",   "STOP", ink::teal,     hand_icon},
    {"",   "RANDOM",  "STOP", ink::teal,     dice_icon},
    {"",   "BOMB",    "",     ink::onyx,     bomb_icon},
};
// clang-format on
static_assert(std::size(faces) == square_kinds);

} // namespace

void draw_square(pen& p, int which) {
    const bool on = which >= lit;
    const square_face& f = faces[static_cast<std::size_t>(ring[static_cast<std::size_t>(which % lit - 1)])];
    cap(p, {2, 2, 60, 54}, 7, f.glass, on, 2.5);
    if (on)
        box(p, 5, 5, 54, 48, 6, {.fill = ink::white, .fill_opacity = 0.2});
    const auto words = [&](std::string_view text, double y, double height) {
        write(p, text, 32, y, height,
              {.fill = on ? ink::white : std::string_view("#efe2c6"),
               .edge = on ? f.glass.deep : ink::black,
               .edge_width = 1.4,
               .shape = {.weight = 0.19, .stretch = 1, .most = 47}});
    };
    const bool two = !f.lower.empty();
    {
        const moved here(p, f.amount.empty() ? 32 : 44, f.upper.empty() ? 29 : two ? 18 : 22, two ? 0.82 : 1);
        f.icon(p, on);
    }
    if (!on) // an unlit square lies in shade, icon and all: one sees from afar where the light stands
        box(p, 2, 2, 60, 54, 7, {.fill = "#08020c", .fill_opacity = 0.36});
    if (!f.amount.empty())
        write(p, f.amount, 19.5, 13.5, 17,
              {.fill = on ? ink::white : std::string_view("#ffe9b0"),
               .edge = on ? f.glass.deep : ink::black,
               .edge_width = 1.8,
               .shape = {.weight = 0.21, .stretch = 1, .most = 25}});
    if (two) {
        words(f.upper, 29.8, 9.2);
        words(f.lower, 40.8, 9.2);
    } else if (!f.upper.empty()) {
        words(f.upper, 39, 11);
    }
}

} // namespace hustle
