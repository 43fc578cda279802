#include "art/bank.h"
#include "art/letters.h"
#include "art/symbols.h"
#include "panel/strip.h"

namespace hustle {

namespace {

constexpr double reel_width = 144, reel_height = 312, cell = 104;

void reel_paper(pen& p) {
    box(p, 0, 0, reel_width, reel_height, 0,
        {.fill = down(p, {{0, "#c9b68c"},
                          {0.16, "#f0e4c4"},
                          {0.36, "#fffaf0"},
                          {0.5, "#fffdf8"},
                          {0.64, "#fffaf0"},
                          {0.84, "#f0e4c4"},
                          {1, "#c9b68c"}})});
    box(p, 0, 0, reel_width, reel_height, 0,
        {.fill = across(p, {{0, "#8a6a3c", 0.55},
                            {0.07, "#8a6a3c", 0.12},
                            {0.5, ink::white, 0},
                            {0.93, "#8a6a3c", 0.12},
                            {1, "#8a6a3c", 0.55}})});
}

// The roundness of the reel and the glass before it.
void reel_glass(pen& p) {
    box(p, 0, 0, reel_width, reel_height, 0,
        {.fill = down(p, {{0, "#0a0204", 0.72},
                          {0.1, "#14060a", 0.34},
                          {0.27, "#2a1408", 0.06},
                          {0.5, ink::white, 0},
                          {0.73, "#2a1408", 0.06},
                          {0.9, "#14060a", 0.34},
                          {1, "#0a0204", 0.72}})});
    path(p, "M0,0 L62,0 L0,120 Z",
         {.fill = ramp(p, {{0, ink::white, 0.28}, {1, ink::white, 0.02}}, 0, 0, 40, 60)});
    // The win line: a pair of hairs on the glass, above and below the middle row.
    for (const double y : {cell + 1.0, 2 * cell - 1.0}) {
        box(p, 0, y - 1, reel_width, 2, 0, {.fill = "#c8102a", .fill_opacity = 0.8});
        box(p, 0, y + 1, reel_width, 0.8, 0, {.fill = ink::white, .fill_opacity = 0.5});
    }
    for (const double x : {0.0, reel_width - 1.5})
        box(p, x, 0, 1.5, reel_height, 0, {.fill = "#1a0a04", .fill_opacity = 0.7});
}

void badge(pen& p, int value) {
    disc(p, 0, 1.5, 16.5, {.fill = ink::black, .fill_opacity = 0.35});
    disc(p, 0, 0, 16.5, {.fill = gold(p), .stroke = "#4a2402", .width = 1.4});
    disc(p, 0, 0, 13,
         {.fill = ball(p, {{0, "#fffefa"}, {0.7, "#fff2cc"}, {1, "#e8c878"}}),
          .stroke = "#6a3a04",
          .width = 1});
    write(p, std::to_string(value), 0, -8.5, 17,
          {.fill = "#b00818", .edge = "#4a0008", .edge_width = 0.6, .shape = {.weight = 0.25}});
}

void stop_on_reel(pen& p, const stop_row& s, money sign, double y) {
    {
        const moved here(p, reel_width / 2, y, 1.03);
        draw(p, symbol_of(s.symbol), sign);
    }
    if (s.number > 0) {
        const moved corner(p, reel_width - 22, y + 31);
        badge(p, s.number);
    }
}

// What is left of a symbol that rushes past: upright streaks of its colours.
struct streak {
    double x, width; // from the middle of the reel
    std::string_view colour;
};
struct smear {
    symbol sign;
    streak streaks[5];
};
constexpr smear smears[] = {
    {symbol::cherry,
     {{-38, 26, "#c80a22"},
      {-20, 14, "#ff5a50"},
      {12, 28, "#c80a22"},
      {24, 10, "#ff6a5c"},
      {-4, 9, "#2c8a2c"}}},
    {symbol::bell,
     {{-40, 80, "#d8921e"},
      {-26, 34, "#f7c63c"},
      {-18, 12, "#fff2b0"},
      {20, 16, "#a8640a"},
      {-4, 9, "#d01c2c"}}},
    {symbol::rseven,
     {{-46, 92, "#ffb42a"},
      {-30, 58, "#e02030"},
      {-12, 22, "#b0061c"},
      {22, 10, "#ff8c70"},
      {-24, 7, "#fff2c0"}}},
    {symbol::coin,
     {{-42, 84, "#e0a02a"},
      {-30, 60, "#14984a"},
      {-8, 16, "#f7cf50"},
      {-36, 8, "#fff2b8"},
      {26, 8, "#04602c"}}},
    {symbol::bar,
     {{-54, 108, "#d89a28"},
      {-46, 92, "#241c2c"},
      {-30, 12, "#f0c04a"},
      {-4, 10, "#f0c04a"},
      {22, 12, "#f0c04a"}}},
    {symbol::bseven,
     {{-46, 92, "#b4c4dc"},
      {-34, 68, "#1c5cd8"},
      {-12, 24, "#0a349c"},
      {-26, 8, "#8cd0ff"},
      {18, 9, "#e4f2ff"}}},
    {symbol::melon,
     {{-50, 100, "#2a9a44"},
      {-40, 80, "#f04a5c"},
      {-20, 12, "#ff8c90"},
      {12, 8, "#7a0818"},
      {30, 9, "#ffb0a8"}}},
};

void blur(pen& p, const smear& s, double y) {
    for (const streak& k : s.streaks) {
        const auto fading = down(p, {{0, k.colour, 0},
                                     {0.22, k.colour, 0.34},
                                     {0.42, k.colour, 0.78},
                                     {0.58, k.colour, 0.78},
                                     {0.78, k.colour, 0.34},
                                     {1, k.colour, 0}});
        box(p, reel_width / 2 + k.x - 2, y - 68, k.width + 4, 136, 0, {.fill = fading, .fill_opacity = 0.6});
        box(p, reel_width / 2 + k.x, y - 68, k.width, 136, 0, {.fill = fading});
    }
}

} // namespace

void draw_reel(pen& p, int stop) {
    const money sign = stop > lit ? money::dollars : money::pounds;
    const int middle = (stop - 1) % lit;
    reel_paper(p);
    for (const int row : {-1, 0, 1})
        stop_on_reel(p, strip[static_cast<std::size_t>((middle + row + 16) % 16)], sign,
                     reel_height / 2 + row * cell);
    reel_glass(p);
}

void draw_reelpaper(pen& p, int) { reel_paper(p); }

void draw_reelstrip(pen& p, int which) {
    for (std::size_t stop = 0; stop < strip.size(); ++stop)
        stop_on_reel(p, strip[stop], which == lit ? money::dollars : money::pounds,
                     (static_cast<double>(stop) + 0.5) * cell);
}

void draw_reelglass(pen& p, int) { reel_glass(p); }

void draw_coin(pen& p, int which) {
    const moved here(p, 15, 15, 0.29);
    draw(p, symbol::coin, which == lit ? money::dollars : money::pounds);
}

void draw_spinning_reel(pen& p, int phase) {
    reel_paper(p);
    // Each phase shows other symbols at another height, so that the four in turn run downwards.
    const int first[] = {0, 5, 3, 6};
    for (int row = -1; row <= 4; ++row) {
        const double y = (row - 0.5) * cell + (phase - 1) * cell * 0.25;
        if (y < -68 || y > reel_height + 68)
            continue;
        blur(p, smears[static_cast<std::size_t>(first[phase - 1] + row + 8) % std::size(smears)], y);
    }
    for (int i = 0; i < 9; ++i) {
        const double x = 9 + i * 15.5 + (phase * 5) % 11;
        box(p, x, 0, i % 3 == 0 ? 2.4 : 1.2, reel_height, 0, {.fill = ink::white, .fill_opacity = 0.22});
    }
    reel_glass(p);
}

void draw_strip(pen& p, int) {
    // Each symbol stands where the guide's frame will surround it.
    const auto middle = [](const stop_row& s) { return s.frame_top / 15.0 + 20.5 - 8; };
    box(p, 0, 0, 50, 541, 4, {.fill = gold(p)});
    box(p, 2, 2, 46, 537, 3,
        {.fill = across(p, {{0, "#c8b080"}, {0.2, "#fff8e6"}, {0.8, "#fff8e6"}, {1, "#c8b080"}})});
    for (std::size_t i = 0; i < 16; ++i) {
        const double y = middle(strip[i]);
        if (i > 0) {
            const double above = middle(strip[i - 1]);
            line(p, 6, (y + above) / 2, 44, (y + above) / 2, {.stroke = "#b89a5c", .width = 0.7});
        }
        {
            const moved here(p, strip[i].number > 0 ? 22 : 25, y, 0.31);
            draw(p, symbol_of(strip[i].symbol));
        }
        if (strip[i].number > 0) {
            const moved corner(p, 41, y + 8.5, 0.42);
            badge(p, strip[i].number);
        }
    }
}

void draw_strip_marker(pen& p, int) {
    path(p, boxpath(1, 1, 63, 39, 6) + boxpath(6, 5, 53, 31, 4), {.fill = "#2a0410", .hollow = true});
    path(p, boxpath(2, 2, 61, 37, 5) + boxpath(5, 4.4, 55, 32.2, 4),
         {.fill = down(p, {{0, "#ff9a8c"}, {0.5, "#e8142c"}, {1, "#8a0414"}}), .hollow = true});
    path(p, polygon({{0, 13}, {10, 20.5}, {0, 28}}), {.fill = gold(p), .stroke = "#4a2402", .width = 0.8});
    path(p, polygon({{65, 13}, {55, 20.5}, {65, 28}}), {.fill = gold(p), .stroke = "#4a2402", .width = 0.8});
}

} // namespace hustle
