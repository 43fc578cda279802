#include "sounds/voices.h"

#include <cstddef>

namespace hustle::sounds {
namespace {

using enum shape;

// clang-format off
constexpr instrument instruments[] = {
    //              wave   attack decay sustain release colour
    /* bell     */ {sine,      1,  150,      0,     60,  {.ratio = 3.5F, .depth = 2.2F, .depthfall = 70}},
    /* dong     */ {sine,      2,  320,      0,    120,  {.ratio = 1.4F, .depth = 3.0F, .depthfall = 220, .detune = 9}},
    /* glass    */ {sine,      2,  110,      0,     70,  {.ratio = 4.0F, .depth = 0.9F, .depthfall = 40, .tremble = 6, .rate = 7}},
    /* coin     */ {sine,      1,   55,      0,     20,  {.ratio = 2.76F, .depth = 1.6F, .depthfall = 30}},
    /* pluck    */ {saw,       2,   90,      0,     30,  {.bright = 5, .edge = 1.2F, .detune = 6}},
    /* lead     */ {square,    4,  140,     45,     40,  {.bright = 6, .edge = 1.1F, .tremble = 12, .rate = 6, .detune = 8}},
    /* brass    */ {saw,      14,  160,     60,     70,  {.bright = 5, .edge = 1.0F, .tremble = 8, .rate = 5.5F, .detune = 11}},
    /* low      */ {square,    3,  200,     60,     30,  {.bright = 7, .edge = 1.0F, .detune = 14}},
    /* moan     */ {saw,      25,  300,     75,     90,  {.bright = 4, .edge = 1.6F, .tremble = 35, .rate = 5.5F, .detune = 7}},
    /* tick     */ {triangle,   1,   16,      0,      8,  {.ratio = 2.4F, .depth = 1.4F, .depthfall = 8, .drop = 5, .dropfall = 5}},
    /* click    */ {noise,     1,    7,      0,      6,  {.bright = 1, .edge = 1.5F}},
    /* thump    */ {sine,      1,   45,      0,     25,  {.drop = 16, .dropfall = 12}},
    /* drum     */ {sine,      1,  190,      0,     80,  {.ratio = 1.5F, .depth = 1.1F, .depthfall = 45, .drop = 7, .dropfall = 18}},
    /* cymbal   */ {noise,     1,  260,      0,    150,  {.bright = 1, .edge = 0.5F}},
    /* whoosh   */ {noise,   120,  500,     60,    140,  {.bright = 1, .edge = 1.8F}},
    /* boom     */ {sine,      1,  330,      0,    150,  {.ratio = 0.71F, .depth = 2.5F, .depthfall = 120, .drop = 24, .dropfall = 40}},
    /* rubble   */ {noise,     2,  260,      0,    200,  {.bright = 1, .edge = 0.6F}},
    /* ice      */ {sine,      1,   14,      0,     10,  {.ratio = 5.3F, .depth = 3.5F, .depthfall = 10, .grains = 34, .spread = 11}},
    /* shower   */ {sine,      1,   60,      0,     20,  {.ratio = 2.76F, .depth = 1.8F, .depthfall = 30, .grains = 22, .spread = 5}},
    /* audience */ {noise,     1,   10,      0,      8,  {.bright = 1, .edge = 1.1F, .grains = 190, .spread = 9}},
};
// clang-format on

} // namespace

const instrument& row(voice v) { return instruments[static_cast<std::size_t>(v)]; }

} // namespace hustle::sounds
