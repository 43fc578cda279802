#include "sounds/tune.h"

namespace hustle::sounds {
namespace {

using enum player;

constexpr seat seats[player_count] = {
    // name            channel program volume side room
    {"vibraphone", 0, 11, 96, 74, 60}, {"muted trumpet", 1, 59, 92, 50, 50}, {"guitar", 2, 26, 76, 88, 40},
    {"bass", 3, 32, 112, 64, 20},      {"horns", 4, 61, 84, 44, 50},         {"strings", 5, 48, 66, 64, 70},
    {"drums", 9, 0, 100, 64, 30},
};

// The walk of the bass, and the same a fourth higher; then what it does on the other chords.
constexpr std::string_view on_d = "d2:3 d2 f2:2 g2 ab2 g2 f2";
constexpr std::string_view on_g = "g2:3 g2 bb2:2 c3 db3 c3 bb2";
constexpr std::string_view on_bb = "bb1:3 bb1 d2:2 f2 g2 f2 d2";
constexpr std::string_view on_a = "a1:3 a1 c#2:2 e2 g2 e2 c#2";

// Chords on the offbeats.
constexpr std::string_view chop_d = ".:4 f4+a4+d5:1 .:5 f4+a4+c5:1 .:5";
constexpr std::string_view chop_g = ".:4 f4+bb4+d5:1 .:5 g4+bb4+d5:1 .:5";
constexpr std::string_view chop_bb = ".:4 f4+bb4+d5:1 .:5 g4+bb4+d5:1 .:5";
constexpr std::string_view chop_a = ".:4 e4+g4+c#5:1 .:5 g4+bb4+c#5:1 .:5";

constexpr std::string_view theme = ".:4 a4:2 d5 f5:3 e5:1 d5:4 | .:2 ab4 a4:4 .:8 |"
                                   ".:4 d5:2 g5 bb5:3 a5:1 g5:4 | f5:2 e5 d5:4 .:8 |"
                                   ".:4 f5:2 bb5 d6:3 c6:1 bb5:4 | a5:2 g5 e5 c#5 e5:4 .:4 |"
                                   "d5:3 f5 a5:2 ab5 g5 f5 e5 |";
constexpr std::string_view question = "d5:6 .:2 a4 c#5 e5 a5";
constexpr std::string_view answer = "d5:4 .:4 a5:2 f5 d5:4";

// What the second player whispers between the lines of the theme.
constexpr std::string_view aside = ".:16 | .:8 d5:1 f5 .:2 ab5:1 g5 f5 d5 | .:16 | .:8 a5:1 ab5 g5 f5 d5:4 |"
                                   ".:16 | .:12 e5:1 g5 bb5 c#6 | .:16 | .:16";

// The middle: the treasure comes in sight.
constexpr std::string_view treasure =
    "c5:6 a4:2 f5:8 | e5:6 d5:2 c5:8 | d5:6 a4:2 f5:4 e5:2 d5 | f5:4 g5 d5:8 |"
    "a5:6 g5:2 f5:4 c5 | g5:6 f5:2 e5:8 | bb5:4 a5 g5 d5 | a5:4 g5:2 e5 c#5:4 a4";
constexpr std::string_view glow =
    "f4+a4+c5:16 e4+g4+c5 f4+a4+d5 f4+bb4+d5 f4+a4+c5 e4+g4+c5 g4+bb4+d5 g4+a4+c#5";
constexpr std::string_view stride =
    "f2:4 c3:2 a2 f2:4 g2 | e2 c3:2 g2 e2:4 c2 | d2 a2:2 f2 d2:4 c2 | bb1 f2:2 d2 bb1:4 c2 |"
    "f2 c3:2 a2 f2:4 g2 | e2 c3:2 g2 e2:4 c2 | g2 d3:2 bb2 g2:4 g2 | a2 e2:2 g2 a1:4 c#2";
constexpr std::string_view ripple = "a5:2 c6 f6 c6 a5 c6 f6 c6 | g5 c6 e6 c6 g5 c6 e6 c6 |"
                                    "a5 d6 f6 d6 a5 d6 f6 d6 | bb5 d6 f6 d6 bb5 d6 g6 d6 |"
                                    "a5 c6 f6 c6 a5 c6 f6 c6 | g5 c6 e6 c6 g5 c6 e6 c6 |"
                                    "bb5 d6 g6 d6 bb5 d6 g6 d6 | a5 c#6 e6 g6 a5 c#6 e6 a6";

// The chase: four steps down from d to a, twice.
constexpr std::string_view runs =
    "d5:1 e5 f5 d5 a5 f5 d5 f5 a5 d6 a5 f5 d5 f5 e5 d5 | d5 e5 f5 d5 a5 f5 d5 f5 g5 f5 e5 f5 d5:4 |"
    "c5:1 d5 e5 c5 g5 e5 c5 e5 g5 c6 g5 e5 c5 e5 d5 c5 | c5 d5 e5 c5 g5 e5 c5 e5 f5 e5 d5 e5 c5:4 |"
    "bb4:1 d5 f5 d5 bb5 f5 d5 f5 bb5 d6 bb5 f5 d5 f5 d5 bb4 | bb4 d5 f5 g5 f5 d5 bb4 d5 f5 bb5 f5 d5 bb4:4 |"
    "a4:1 c#5 e5 g5 a5 g5 e5 c#5 a4 c#5 e5 g5 bb5 a5 g5 e5 | c#5:4 e5 g5 a5";
constexpr std::string_view stabs =
    "d4+f4+a4:1 .:5 d4+f4+a4:1 .:9 | .:12 d4+f4+a4:2 . | c4+e4+g4:1 .:5 c4+e4+g4:1 .:9 | .:12 c4+e4+g4:2 . |"
    "bb3+d4+f4:1 .:5 bb3+d4+f4:1 .:9 | .:12 bb3+d4+f4:2 . | a3+c#4+g4:1 .:5 a3+c#4+g4:1 .:9 |"
    "a3+c#4+e4:4 a3+c#4+g4 c#4+e4+bb4 c#4+g4+a4";
constexpr std::string_view gallop =
    "d2:2 d2 d3 d2 d2 d2 c3 d3 | d2 d2 d3 d2 d2 c2 d2 d3 | c2 c2 c3 c2 c2 c2 bb2 c3 | c2 c2 c3 c2 c2 bb1 c2 "
    "c3 |"
    "bb1 bb1 bb2 bb1 bb1 bb1 a2 bb2 | bb1 bb1 bb2 bb1 bb1 bb1 c2 bb2 | a1 a1 a2 a1 a1 a1 g2 a2 |"
    "a1:4 a1 c#2 e2";

// clang-format off
constexpr part all_parts[] = {
    // who    bar bars times velocity notes
    // 0: on tiptoe
    {bass,      0, 1,  4,  88, on_d},
    {vibes,     2, 2,  1,  70, ".:8 a5:1 ab5 g5 f5 d5:4 | .:8 a4:2 c#5 e5 g5"},
    // 4: the theme
    {vibes,     4, 7,  1,  92, theme},          {vibes,    11, 1, 1,  90, question},
    {bass,      4, 1,  2,  98, on_d},           {bass,      6, 1, 1,  98, on_g},  {bass,     7, 1, 1, 98, on_d},
    {bass,      8, 1,  1,  98, on_bb},          {bass,      9, 1, 1,  98, on_a},  {bass,    10, 1, 1, 98, on_d},
    {bass,     11, 1,  1,  98, on_a},
    {guitar,    4, 1,  2,  74, chop_d},         {guitar,    6, 1, 1,  74, chop_g}, {guitar,  7, 1, 1, 74, chop_d},
    {guitar,    8, 1,  1,  74, chop_bb},        {guitar,    9, 1, 1,  74, chop_a}, {guitar, 10, 1, 1, 74, chop_d},
    {guitar,   11, 1,  1,  74, chop_a},
    // 12: again, with the trumpet in front
    {trumpet,  12, 7,  1,  96, theme},          {trumpet,  19, 1, 1,  96, answer},
    {vibes,    12, 8,  1,  72, aside},
    {bass,     12, 1,  2, 100, on_d},           {bass,     14, 1, 1, 100, on_g},  {bass,    15, 1, 1, 100, on_d},
    {bass,     16, 1,  1, 100, on_bb},          {bass,     17, 1, 1, 100, on_a},  {bass,    18, 1, 1, 100, on_d},
    {bass,     19, 1,  1, 100, "d2:4 c2 bb1 c2"},
    {guitar,   12, 1,  2,  78, chop_d},         {guitar,   14, 1, 1,  78, chop_g}, {guitar, 15, 1, 1, 78, chop_d},
    {guitar,   16, 1,  1,  78, chop_bb},        {guitar,   17, 1, 1,  78, chop_a}, {guitar, 18, 1, 2, 78, chop_d},
    {horns,    18, 2,  1,  76, ".:16 | .:8 d4+f4+a4:2 . c4+e4+g4:4"},
    // 20: the treasure
    {trumpet,  20, 8,  1,  88, treasure},       {strings,  20, 8, 1,  72, glow},
    {vibes,    20, 8,  1,  58, ripple},         {bass,     20, 8, 1,  96, stride},
    // 28: listening at the door
    {bass,     28, 1,  3,  84, on_d},           {bass,     31, 1, 1,  90, "a1:4 .:4 a1:2 c#2 e2 g2"},
    {guitar,   28, 4,  1,  70, ".:16 | .:8 d5:1 f5 .:2 ab5:1 g5 f5 d5 | .:16 | .:16"},
    {vibes,    28, 4,  1,  66, ".:12 d6:1 .:3 | .:16 | .:12 ab5:1 .:3 | .:4 c#5+g5:1 .:3 e5:2 g5 bb5 c#6"},
    // 32: the chase
    {vibes,    32, 8,  1,  90, runs},           {horns,    32, 8, 1,  98, stabs},
    {bass,     32, 8,  1, 106, gallop},
    {strings,  32, 8,  1,  62, "d5+f5:16 d5+a5 c5+e5 c5+g5 bb4+d5 bb4+f5 a4+c#5 a4+e5"},
    // 40: got away, the theme by all
    {trumpet,  40, 7,  1, 100, theme},          {trumpet,  47, 1, 1, 100, answer},
    {vibes,    40, 8,  1,  80, aside},
    {bass,     40, 1,  2, 104, on_d},           {bass,     42, 1, 1, 104, on_g},  {bass,    43, 1, 1, 104, on_d},
    {bass,     44, 1,  1, 104, on_bb},          {bass,     45, 1, 1, 104, on_a},  {bass,    46, 1, 2, 104, on_d},
    {guitar,   40, 1,  2,  80, chop_d},         {guitar,   42, 1, 1,  80, chop_g}, {guitar, 43, 1, 1, 80, chop_d},
    {guitar,   44, 1,  1,  80, chop_bb},        {guitar,   45, 1, 1,  80, chop_a}, {guitar, 46, 1, 2, 80, chop_d},
    {strings,  40, 8,  1,  60, "a4+d5:16 ab4+d5 bb4+d5 a4+d5 bb4+d5 g4+c#5 a4+d5 a4+d5"},
    {horns,    41, 1,  1,  84, ".:8 d4+f4+a4:1 .:5 d4+f4+a4:2"},
    {horns,    43, 1,  1,  84, ".:8 d4+f4+a4:1 .:5 d4+f4+a4:2"},
    {horns,    45, 1,  1,  84, ".:8 a3+c#4+g4:1 .:5 c#4+e4+bb4:2"},
    // 48: off into the dark, and one last wink
    {bass,     48, 1,  3,  96, on_d},           {bass,     51, 1, 1, 108, "a2:2 ab2 g2 f2 d2:8"},
    {vibes,    48, 4,  1,  80, ".:8 a5:1 ab5 g5 f5 d5:4 | .:16 | .:8 a5:1 ab5 g5 f5 d5:4 | .:8 d5+f5+b5:8"},
    {trumpet,  49, 3,  1,  86, ".:8 a4:2 ab4 g4 f4 | .:16 | a4:2 ab4 g4 f4 d4:8"},
    {guitar,   48, 1,  3,  70, chop_d},
    {horns,    51, 1,  1,  96, ".:8 d4+f4+a4+b4:6 .:2"},
};

constexpr int kick = 36, stick = 37, snare = 38, snap = 39, hat = 42, open_hat = 46, tom = 45, floor_tom = 41;
constexpr int crash = 49, ride = 51, shaker = 70, triangle = 81;
constexpr beat all_beats[] = {
    // bar bars drum velocity
    { 0,  4, hat,       70, "x.oox.oox.oox.oo"}, { 0,  4, snap,   80, "....x.......x..."},
    { 3,  1, stick,     84, "............x.xx"},
    { 4, 16, hat,       74, "x.oox.oox.oox.oo"}, { 4, 15, stick,  92, "....x.......x..."},
    { 4, 15, kick,      98, "x..x......x....."}, { 7,  1, open_hat, 70, "..............x."},
    {11,  1, snare,     80, "............o.xx"}, {12,  8, shaker, 60, "xoxoxoxoxoxoxoxo"},
    {12,  1, crash,     76, "x..............."}, {19,  1, snare,  94, "....x...x.x.xxxx"},
    {19,  1, kick,      98, "x.......x......."},
    {20,  1, crash,     84, "x..............."}, {20,  8, ride,   72, "x...x.o.x...x.o."},
    {20,  7, snare,     72, "....x.......x..o"}, {20,  8, kick,   90, "x.....x.x......."},
    {20,  8, triangle,  54, "x.............o."}, {27,  1, snare,  88, "....x.......xxxx"},
    {28,  4, hat,       56, "x...o...x...o..."}, {28,  3, snap,   84, "....x.......x..."},
    {31,  1, floor_tom, 92, "....x...x.x.x.xx"},
    {32,  8, hat,       84, "xoxoxoxoxoxoxoxo"}, {32,  7, snare, 100, "....x..o....x..."},
    {32,  7, kick,     106, "x.....x.x..x...."}, {32,  1, crash,  94, "x..............."},
    {36,  1, crash,     88, "x..............."}, {35,  1, tom,    92, "............xxxx"},
    {39,  1, tom,       98, "x...x...xx..x..."}, {39,  1, floor_tom, 98, "..x...x...xx..xx"},
    {39,  1, kick,     100, "x...x...x...x..."},
    {40,  1, crash,     96, "x..............."}, {40,  8, ride,   78, "x.oox.oox.oox.oo"},
    {40,  8, snare,     92, "....x..o....x..."}, {40,  8, kick,  102, "x..x......x..x.."},
    {40,  8, shaker,    60, "xoxoxoxoxoxoxoxo"}, {47,  1, tom,    90, "..........x.x.xx"},
    {48,  3, hat,       66, "x.oox.oox.oox.oo"}, {48,  3, snap,   86, "....x.......x..."},
    {48,  2, kick,      88, "x..x......x....."}, {51,  1, snap,   96, "x.x.x.x........."},
    {51,  1, kick,     108, "........x......."}, {51,  1, crash,  86, "........x......."},
};
// clang-format on

} // namespace

std::span<const seat, player_count> band() { return seats; }
std::span<const part> parts() { return all_parts; }
std::span<const beat> beats() { return all_beats; }

} // namespace hustle::sounds
