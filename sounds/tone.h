// One note of one instrument.
#pragma once

#include "sounds/voices.h"

#include <cstdint>
#include <vector>

namespace hustle::sounds {

struct dice { // noise, the same at each build
    std::uint32_t state;
    float next(); // above -1 and below 1
};

struct note {
    float key;     // MIDI key number
    float slide;   // semitones from the start to the end
    double at;     // s
    double length; // s, without the release
    float level;   // 1 is full
};

// Adds a note to a wave, which grows as far as it must. An instrument of grains gives many.
void add_note(std::vector<float>& wave, const instrument& who, const note& what, dice& d);

} // namespace hustle::sounds
