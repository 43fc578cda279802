// What each wave is made of: a score. Everything is in d minor and its bright neighbour, f major;
// wins rise to f, losses sink to d, and only what warns leaves the scale.
#pragma once

#include "panel/ids.h"
#include "sounds/voices.h"

#include <span>
#include <string_view>

namespace hustle::sounds {

struct phrase {
    sound wave;
    voice who;
    int at;                 // ms from the start of the wave
    int step;               // ms from one note to the next
    int length;             // ms of a note without a length of its own
    int level;              // percent
    std::string_view notes; // lengths in ms
};

struct finish {
    sound wave;
    int room;  // percent of echo from the cabinet
    int level; // dB, against the common loudness
};

std::span<const phrase> reel_score();  // play, reels, holds, nudges, money, the trail
std::span<const phrase> board_score(); // the feature board and what hangs on it
finish finish_of(sound);

} // namespace hustle::sounds
