#include "art/bank.h"
#include "art/lamps.h"
#include "art/symbols.h"
#include "panel/prizes.h"

#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace hustle {

namespace {

void glass_ground(pen& p, double w, double h) {
    box(p, 0, 0, w, h, 0,
        {.fill = halo(p, {{0, "#6a1440"}, {0.5, "#360a38"}, {1, "#12041e"}}, w / 2, h * 0.42, w * 0.75)});
    for (int i = 2; i < 16; ++i) {
        const double x = i * w / 9 - w / 2;
        path(p, polygon({{w / 2, h * 0.42}, {x, h}, {x + w / 18, h}}),
             {.fill = "#ffb04a", .fill_opacity = 0.06});
    }
    moulding(p, {6, 6, w - 12, h - 12}, 6, 6);
}

void gold_words(pen& p, std::string_view words, double x, double y, double height, double most,
                bool slabs = false) {
    const face shape{.weight = 0.21, .stretch = 1.1, .most = most, .slabs = slabs};
    write(p, words, x, y + height * 0.06, height,
          {.fill = "#14000a",
           .edge = "#14000a",
           .edge_width = height * 0.07,
           .edge_opacity = 0.7,
           .shape = shape});
    write(p, words, x, y, height,
          {.fill = gold(p, y, y + height), .edge = "#4a1a02", .edge_width = height * 0.055, .shape = shape});
}

void at(pen& p, symbol s, double x, double y, double scale, money sign = money::pounds, double turn = 0) {
    const moved here(p, x, y, scale, turn);
    draw(p, s, sign);
}

// Pounds as a sign tells them: whole ones without pence.
std::string figures(float pounds) {
    const int pence = static_cast<int>(std::lround(pounds * 100));
    std::string text = std::to_string(pence / 100);
    if (pence % 100 != 0)
        text += (pence % 100 < 10 ? ".0" : ".") + std::to_string(pence % 100);
    return text;
}

} // namespace

void draw_startscreen(pen& p, int) {
    glass_ground(p, 480, 320);
    glow(p, 240, 200, 230, 120, "#ffb43c", 0.5);
    gold_words(p, "HOARD", 240, 20, 56, 330, true);
    gold_words(p, "HUSTLE", 240, 88, 56, 380, true);
    at(p, symbol::rseven, 66, 196, 0.8, money::pounds, -12);
    at(p, symbol::bseven, 414, 196, 0.8, money::pounds, 12);
    at(p, symbol::cherry, 52, 266, 0.6, money::pounds, -8);
    at(p, symbol::melon, 428, 266, 0.6, money::pounds, 8);
    at(p, symbol::coin, 122, 250, 0.62, money::pounds, -10);
    at(p, symbol::bell, 358, 250, 0.68, money::pounds, 10);
    {
        const moved here(p, 240, 278, 0.98);
        chest(p);
    }
    box(p, 92, 283, 296, 25, 12,
        {.fill = "#12020a", .fill_opacity = 0.85, .stroke = gold(p, 283, 308), .width = 1.6});
    write(p, "£" + figures(jackpot_win) + " JACKPOT   25P PLAY", 240, 289, 13,
          {.fill = "#ffe9a8", .shape = {.weight = 0.16, .stretch = 1.1, .most = 270}});
}

void draw_wins(pen& p, int which) {
    const money sign = which == 1 ? money::dollars : money::pounds;
    const std::string mark = which == 1 ? "$" : "£";
    glass_ground(p, 309, 406);
    gold_words(p, "WINS", 154.5, 17, 28, 200, true);
    double y = 56;
    const auto win_row = [&](std::array<symbol, 3> signs, float pounds, std::string_view note) {
        const bool jackpot = pounds == jackpot_win;
        box(p, 14, y, 281, 38, 7,
            {.fill = jackpot ? std::string("#7a0c22") : std::string("#12041e"),
             .fill_opacity = jackpot ? 1 : 0.7,
             .stroke = jackpot ? "#ffd45a" : "#c98a1e",
             .width = jackpot ? 1.8 : 0.9});
        for (int i = 0; i < 3; ++i) {
            box(p, 20 + i * 53, y + 3, 50, 32, 4,
                {.fill = down(p, {{0, "#e8d8b0"}, {0.4, "#fffaf0"}, {1, "#e8d8b0"}}),
                 .stroke = "#3a1a02",
                 .width = 0.8});
            at(p, signs[static_cast<std::size_t>(i)], 45 + i * 53, y + 19, 0.3, sign);
        }
        gold_words(p, mark + figures(pounds), 237, y + (note.empty() ? 9 : 4), note.empty() ? 20 : 18.5, 90);
        write(p, note, 237, y + 26.5, 8,
              {.fill = "#ffe9a8", .shape = {.weight = 0.17, .stretch = 1.2, .most = 96}});
        y += 42.5;
    };
    bool mixed_shown = false;
    for (const line_row& w : line_rows) {
        if (w.prize < mixed_sevens_prize && !std::exchange(mixed_shown, true))
            win_row({symbol::rseven, symbol::bseven, symbol::rseven}, mixed_sevens_prize, "MIXED SEVENS");
        const symbol s = symbol_of(w.symbol);
        win_row({s, s, s}, w.prize, w.prize == jackpot_win ? "JACKPOT" : "");
    }
}

void draw_statisticsback(pen& p, int) {
    glass_ground(p, 368, 283);
    box(p, 9, 11, 350, 208, 8, {.fill = "#0c0216", .fill_opacity = 0.6, .stroke = "#c98a1e", .width = 1});
    for (int i = 1; i < 5; ++i)
        line(p, 16, 11 + i * 40 + 0.5, 352, 11 + i * 40 + 0.5,
             {.stroke = "#c98a1e", .width = 0.8, .stroke_opacity = 0.35});
    line(p, 184, 17, 184, 213, {.stroke = "#c98a1e", .width = 0.8, .stroke_opacity = 0.5});
}

void draw_highscoreback(pen& p, int) {
    glass_ground(p, 519, 420);
    gold_words(p, "HIGH SCORES", 259.5, 26, 34, 330);
    for (const double x : {50.0, 469.0})
        at(p, symbol::coin, x, 45, 0.62);
    moulding(p, {44, 84, 431, 270}, 6, 4);
    box(p, 44, 84, 431, 270, 4, {.fill = "#050204"});
}

void draw_icon(pen& p, int) {
    box(p, 1, 1, 62, 62, 13, {.fill = gold(p), .stroke = "#2a0c02", .width = 1});
    box(p, 4.5, 4.5, 55, 55, 10,
        {.fill = halo(p, {{0, "#b01a44"}, {0.6, "#5a0a34"}, {1, "#240420"}}, 32, 28, 40),
         .stroke = "#1a0408",
         .width = 1.2});
    at(p, symbol::rseven, 32, 32, 0.55);
    box(p, 6, 6, 52, 22, 9, {.fill = down(p, {{0, ink::white, 0.32}, {1, ink::white, 0.02}})});
}

} // namespace hustle
