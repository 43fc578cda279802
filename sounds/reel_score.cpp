#include "sounds/score.h"

namespace hustle::sounds {
namespace {

using enum voice;
using s = sound;

// clang-format off
constexpr phrase phrases[] = {
    // wave      voice     at step length level notes
    {s::start,     click,    0,  40,  12,  60, "f7 d7"},
    {s::start,     coin,    10,  70, 120, 100, "d6 a6"},
    {s::start,     thump,   60,   0,  70,  90, "d3"},

    {s::reelstop,  click,    0,   0,  16, 100, "g7"},
    {s::reelstop,  tick,     2,   0,  30,  55, "d4"},
    {s::reelstop,  thump,    4,   0, 110, 100, "d2+d3"},
    {s::reelstop,  click,   46,   0,  10,  25, "d7"},

    {s::hold1,     click,    0,   0,  12,  50, "c7"},
    {s::hold1,     pluck,    8,   0, 140, 100, "f5"},
    {s::hold2,     click,    0,   0,  12,  50, "c7"},
    {s::hold2,     pluck,    8,   0, 140, 100, "a5"},
    {s::hold3,     click,    0,   0,  12,  50, "c7"},
    {s::hold3,     pluck,    8,   0, 140, 100, "c6"},

    {s::cancel,    click,    0,   0,  12,  50, "a6"},
    {s::cancel,    pluck,    6,  60,  90, 100, "c6 f5"},

    {s::okeydoke,  bell,     0,  75, 130,  90, "c5 f5 a5 c6:320"},
    {s::okeydoke,  brass,  225,   0, 220,  60, "f4+a4+c5"},
    {s::okeydoke,  drum,   225,   0, 200,  50, "f2"},

    {s::like_it,   lead,     0,  85,  75,  80, "c5 d5 f5 . d5 f5 a5 . c6:240"},
    {s::like_it,   low,      0, 170, 110,  45, "f2 f2 a2 c3"},
    {s::like_it,   brass,  680,   0, 230,  70, "f4+a4+c5+f5"},
    {s::like_it,   click,    0, 170,  20,  40, "d7 d7 d7 d7 d7"},

    {s::badhold,   low,      0, 150, 110, 100, "d3+ab3 d3+ab3:230"},
    {s::badhold,   thump,    0, 150,  60,  60, "d2 d2"},

    {s::nudgenow,  lead,     0,  70,  60, 100, "a5 d6 a5 d6 a5 d6:150"},
    {s::nudgenow,  drum,     0, 140,  90,  60, "d3 d3 d3"},

    {s::addnudge,  lead,     0,   0,  85,  90, "d5>a5"},
    {s::addnudge,  tick,     0,   0,  20,  60, "d6"},

    {s::win2bank,  click,    0,   0,   8,  40, "a7"},
    {s::win2bank,  coin,     2,   0,  50, 100, "c7"},
    {s::win2bank,  coin,    12,   0,  40,  50, "f7"},

    {s::win,       bell,     0,  80, 170, 100, "f5 a5 c6 f6 c6 f6:520"},
    {s::win,       brass,  240,   0, 460,  60, "f4+a4+c5+f5"},
    {s::win,       low,      0, 240, 180,  35, "f2 f2:420"},
    {s::win,       drum,     0, 240, 180,  45, "f2 f2"},
    {s::win,       coin,   400,  55,  60,  35, "c7 f7 a7 c7 f7"},

    {s::yeah,      brass,    0, 110,  80,  90, "c4+e4+g4 f4+a4+c5+f5:300"},
    {s::yeah,      drum,     0, 110, 150,  60, "c3 f2"},
    {s::yeah,      cymbal, 110,   0, 120,  18, "c9"},
    {s::yeah,      bell,   110,   0, 260,  35, "f6"},

    {s::dong,      dong,     0,   0, 620, 100, "d4"},
    {s::dong,      dong,     0,   0, 400,  35, "a4"},

    {s::addtrail,  tick,     0,   0,  25,  60, "d5"},
    {s::addtrail,  bell,     0,   0, 110, 100, "d6"},

    {s::trailhld,  bell,     0,  90, 130,  90, "a5 d6 a5 d6:360"},
    {s::trailhld,  lead,   270,   0, 260,  35, "d5+f5"},
    {s::trailhld,  click,    0,   0,  14,  50, "c7"},

    {s::bonus,     lead,     0,  60,  55,  80, "d5 f5 g5 a5 c6 d6"},
    {s::bonus,     brass,  360, 130, 110,  75, "c4+g4+c5 d4+f4+a4+d5:420"},
    {s::bonus,     drum,   360, 130, 200,  60, "c3 d3"},
    {s::bonus,     glass,  490,  55, 120,  40, "a6 d7 f7 a7"},

    {s::back,      whoosh,   0,   0, 300,  45, "d5>d8"},
    {s::back,      brass,  280, 150, 120,  85, "d4+f4+a4 c4+e4+g4+c5 f4+a4+c5+f5:460"},
    {s::back,      drum,   280, 150, 200,  60, "d3 c3 f2"},
    {s::back,      cymbal, 580,   0, 260,  20, "c9"},

    {s::no,        low,      0,   0, 130, 100, "a2>f2"},
    {s::no,        tick,     0,   0,  30,  50, "d4"},
    {s::yes,       bell,     0,  55, 150, 100, "a5 d6"},
    {s::yes,       tick,     0,   0,  30,  40, "d6"},

    {s::lucky2,    glass,    0,  55, 220,  90, "c6 d6 f6 g6 a6 c7 d7 f7:420"},
    {s::lucky2,    bell,   385,   0, 420,  60, "f5+a5+c6"},
    {s::lucky2,    low,    385,   0, 260,  25, "f3"},

    {s::pick,      tick,     0,   0,  35, 100, "a5"},
    {s::ping,      glass,    0,   0,  80, 100, "d6"},

    {s::select,    click,    0,   0,  16,  70, "d7"},
    {s::select,    pluck,    4,  55,  90, 100, "d5 d6:180"},
    {s::select,    thump,    0,   0,  70,  60, "d3"},
};
// clang-format on

} // namespace

std::span<const phrase> reel_score() { return phrases; }

} // namespace hustle::sounds
