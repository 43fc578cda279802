#include "sounds/score.h"

namespace hustle::sounds {
namespace {

using enum voice;
using s = sound;

// clang-format off
constexpr phrase phrases[] = {
    // wave       voice     at step length level notes
    {s::feature,   drum,      0, 140, 200,  80, "d3 d3 . d3 d3 d3 a2:500"},
    {s::feature,   low,       0, 140, 110,  50, "d2 d2 f2 g2 ab2 g2 a2:500"},
    {s::feature,   brass,     0, 280, 160,  75, "d4+f4 f4+a4 ab4+d5 a4+d5+f5:560"},
    {s::feature,   cymbal,  840,   0, 320,  22, "c9"},
    {s::feature,   glass,   840,  60, 200,  30, "d6 f6 a6 d7 f7"},

    {s::hilo,      bell,      0, 120, 160, 100, "d6 d5 d6 d5:360"},
    {s::hilo,      low,       0, 120,  90,  30, "d3 d2 d3 d2:200"},

    {s::exchange,  whoosh,    0,   0, 260,  50, "d7>d5"},
    {s::exchange,  pluck,     0,  70,  90,  80, "f6 c6 a5 f5"},
    {s::exchange,  brass,   300, 120, 100,  80, "f4+a4+c5 g4+c5+d5 a4+c5+f5:360"},
    {s::exchange,  drum,    300, 120, 160,  50, "f3 g3 f2"},

    // A fanfare: three calls, the climb, the long chord under a shower of coins.
    {s::jackpot,   brass,     0, 120, 100, 100, "c5 c5 c5 f5:340 . . c5 c5 c5 a5:340 . . f5 f5 f5"},
    {s::jackpot,   brass,     0, 120, 100,  60, "a4 a4 a4 c5:340 . . a4 a4 a4 f5:340 . . c5 c5 c5"},
    {s::jackpot,   brass,  1800, 180, 170, 100, "c6 a5 c6 d6 c6 d6 f6:1700"},
    {s::jackpot,   brass,  1800, 180, 170,  60, "a5 f5 a5 bb5 g5 bb5 c6:1700"},
    {s::jackpot,   brass,  2880,   0,1700,  55, "f4+a4+c5+f5"},
    {s::jackpot,   low,       0, 360, 200,  50, "f2 f3 c3 f2 f3 c3 f2 d3 c3"},
    {s::jackpot,   low,    2880, 360, 300,  50, "f2 c3 f2 c3 f2:400"},
    {s::jackpot,   drum,      0, 120, 200,  60, "c3 c3 c3 f2 . f2 c3 c3 c3 f2 . f2 c3 c3 c3 f2"},
    {s::jackpot,   drum,   2520,  60, 120,  45, "c3 c3 c3 c3 c3 c3 f2:500"},
    {s::jackpot,   drum,   4260,  60, 120,  50, "c3 c3 c3 c3 f2:400"},
    {s::jackpot,   cymbal, 2880,   0, 900,  30, "c9"},
    {s::jackpot,   shower, 2900,   0,1500,  30, "c7"},
    {s::jackpot,   bell,   2880,  90, 300,  30, "f6 a6 c7 f7 c7 a6 f6 a6 c7 f7 c7 a6 f6 a6 c7 f7"},

    {s::move,      tick,      0,   0,  30,  70, "a4"},
    {s::move,      pluck,     0,   0,  60,  80, "d5"},

    {s::reelspin,  click,     0,  35,  14, 100, "d6 e6 f6 g6 a6 bb6 c7 d7 e7 f7 g7 a7 d7:30"},
    {s::reelspin,  tick,      0,  70,  20,  60, "d4 e4 f4 g4 a4 bb4 d4"},
    {s::reelspin,  whoosh,    0,   0, 330,  35, "d5>d6"},

    {s::add,       coin,      0,  45,  80, 100, "g6 c7"},
    {s::add,       pluck,     0,   0,  70,  60, "c5"},

    {s::question,  glass,     0, 110, 240,  80, "d5 f5 ab5 b5 d6 f6:600"},
    {s::question,  moan,    330,   0, 620,  35, "d4+f4+ab4"},
    {s::question,  low,       0,   0, 600,  25, "d3"},

    {s::skillstop, lead,      0, 110,  80,  90, "a5 a5 d6:300"},
    {s::skillstop, brass,   220,   0, 300,  50, "d4+f4+a4"},
    {s::skillstop, drum,      0, 110, 140,  60, "d3 d3 d2"},

    {s::boost,     lead,      0,   0, 480,  70, "d4>d6"},
    {s::boost,     whoosh,    0,   0, 480,  70, "d5>d8"},
    {s::boost,     low,       0,   0, 440,  40, "d2>d3"},
    {s::boost,     bell,    470,   0, 240,  70, "d6+a6"},

    {s::ext_life,  bell,      0,  65, 120, 100, "f5 a5 c6 a5 c6 f6 a6:420"},
    {s::ext_life,  pluck,     0, 195, 140,  50, "f4+a4 a4+c5 c5+f5:260"},

    {s::explode,   boom,      0,   0, 700, 100, "d2"},
    {s::explode,   cymbal,    0,   0, 300,  60, "c7"},
    {s::explode,   rubble,   20,   0, 800,  80, "c5>c3"},
    {s::explode,   rubble,  250, 130, 160,  30, "f4 a3 d4 c3"},

    // The sorry horn, step by step down.
    {s::gameover,  moan,      0, 300, 260, 100, "a3 ab3 g3 f#3>d3:800"},
    {s::gameover,  low,       0, 300, 220,  35, "d3 d3 d3 d2:600"},
    // A clock strikes, far off and without haste, and the last stroke sinks.
    {s::gameover1, dong,      0, 560, 520, 100, "a4 a4 a4 d4:900"},
    {s::gameover1, glass,     0, 560, 420,  45, "a6 a6 a6 d6:700"},
    {s::gameover1, tick,    280, 560,  25,  30, "a5 d5 a5 d5"},
    // The current goes: one long slide down, ever slower sparks, and dark.
    {s::gameover2, lead,      0,   0,1250, 100, "d6>d2"},
    {s::gameover2, lead,      0,   0,1250,  60, "a5>a2"},
    {s::gameover2, click,   150, 190,  20,  45, "d7 c7 a6 g6 f6"},
    // A cheeky farewell that ends on the wrong foot.
    {s::gameover3, pluck,     0, 105, 140, 100, "d6 a5 a5 bb5 . a5"},
    {s::gameover3, pluck,   840, 210, 260,  80, "c#4+e4+g4 d3+a3+d4:400"},
    {s::gameover3, low,     840, 210, 150,  40, "a2 d2:300"},
    // The vault: three bolts run home, the door falls to, the key turns.
    {s::gameover4, click,     0, 150,  40, 100, "d6 d6 d6"},
    {s::gameover4, thump,    30, 150,  80,  90, "a2 a2 a2"},
    {s::gameover4, boom,    520,   0, 700, 100, "d2"},
    {s::gameover4, rubble,  530,   0, 260,  40, "a3>d3"},
    {s::gameover4, click,  1180,  90,  30,  80, "g6 d6"},

    {s::thinice,   ice,       0,   0, 520, 100, "d7"},
    {s::thinice,   glass,    30,   0, 700,  60, "a6+bb6"},
    {s::thinice,   click,     0, 170,  25,  70, "a7 f7 c8"},
    {s::thinice,   low,      30,   0, 500,  18, "d3+eb3"},

    {s::excelent,  click,     0,   0,  30,  80, "c7"},
    {s::excelent,  bell,      0,  70, 140,  90, "c6 f6 a6 c7:420"},
    {s::excelent,  brass,   140, 140, 110,  75, "f4+a4+c5 a4+c5+f5:380"},
    {s::excelent,  drum,    140, 140, 160,  50, "c3 f2"},

    {s::fastcash,  lead,      0, 180, 160,  80, "a4>a5 a4>a5 a4>a5"},
    {s::fastcash,  drum,      0,  90,  80,  50, "d3 d3 d3 d3 d3 d3 d2"},
    {s::fastcash,  brass,   540,   0, 260,  80, "d4+f4+a4+d5"},
    {s::fastcash,  bell,    540,   0, 300,  60, "d6"},

    {s::shots,     cymbal,    0,   0,  60,  80, "c7"},
    {s::shots,     boom,      0,   0, 160, 100, "d3"},
    {s::shots,     bell,    130,   0, 380,  70, "d6+a6"},
    {s::shots,     coin,    130,  60,  80,  40, "a6 d7 a7"},

    {s::collect,   click,     0,  70,  25,  80, "c7 g7"},
    {s::collect,   thump,    70,   0,  90,  70, "f2"},
    {s::collect,   bell,    140,   0, 620, 100, "f6+c7"},
    {s::collect,   coin,    200,  50,  70,  45, "c7 f7 c7 a7 f7 c7"},

    {s::clap,      audience,  0,   0,3400, 100, "f#6"},
    {s::clap,      audience,150,   0,2900,  60, "b5"},
    {s::clap,      whoosh,    0,   0,3000,  16, "c6"},
};

constexpr finish usual{sound::start, 14, 0};
constexpr finish finishes[] = {
    // wave         room  dB
    {s::reelstop,    6,   0}, {s::hold1,      8,  -1}, {s::hold2,     8, -1}, {s::hold3,    8,  -1},
    {s::cancel,      8,  -1}, {s::addnudge,   6,  -1}, {s::win2bank, 0,  -4},
    {s::win,        18,   1}, {s::dong,      22,   0}, {s::addtrail, 10, -2}, {s::no,       8,   0},
    {s::yes,        10,   0}, {s::pick,       4,  -5}, {s::ping,      6, -5}, {s::move,     5,  -4},
    {s::reelspin,    6,  -3}, {s::add,        6,  -2}, {s::lucky2,   26,  0}, {s::feature, 20,   1},
    {s::question,   28,   0}, {s::jackpot,   20,   2}, {s::explode,  24,  2}, {s::thinice, 26,  -1},
    {s::gameover,   18,   0}, {s::gameover1, 30,   0}, {s::gameover4, 24, 1}, {s::clap,    16,   0},
};
// clang-format on

} // namespace

std::span<const phrase> board_score() { return phrases; }

finish finish_of(sound wave) {
    for (const finish& f : finishes)
        if (f.wave == wave)
            return f;
    return {wave, usual.room, usual.level};
}

} // namespace hustle::sounds
