// The instruments of the machine's waves, each one row of figures.
#pragma once

#include <cstdint>

namespace hustle::sounds {

enum class shape : std::uint8_t { sine, triangle, square, saw, noise };

enum class voice : std::uint8_t {
    bell,    // struck metal, the machine's own tone
    dong,    // a big bell
    glass,   // thin and high
    coin,    // a coin on coins
    pluck,   // a short string
    lead,    // a reedy tone for licks
    brass,   // the band
    low,     // bass and buzz
    moan,    // a horn that is sorry
    tick,    // wood on wood
    click,   // a latch
    thump,   // something heavy stops
    drum,    // a kettle drum
    cymbal,  // a crash
    whoosh,  // air
    boom,    // powder
    rubble,  // what comes down after it
    ice,     // cracks
    shower,  // coins, many
    audience // hands, many
};

struct colour_of_tone {
    // A second tone that shapes the first: its pitch as a multiple, its depth at the start in
    // radians, ms in which the depth falls to a third. 0: none.
    float ratio = 0, depth = 0;
    int depthfall = 1;
    // A filter: corner as a multiple of the pitch (0: none) and its sharpness. Noise is cut to a
    // band around the corner, everything else below it.
    float bright = 0, edge = 0.7F;
    // The pitch starts so many semitones higher and falls to a third of that in so many ms.
    int drop = 0, dropfall = 1;
    int tremble = 0; // cents up and down
    float rate = 0;  // Hz of the trembling
    int detune = 0;  // cents between two tones side by side; 0: one tone
    // Grains: so many short notes a second strewn over the note's length, each up to so many
    // semitones off. 0: one plain note.
    int grains = 0, spread = 0;
};

struct instrument {
    shape wave;
    // The envelope: ms to the top, ms in which it falls to a third towards `sustain` (percent of
    // the top), ms from the note's end to nothing.
    int attack, decay, sustain, release;
    colour_of_tone colour;
};

const instrument& row(voice);

} // namespace hustle::sounds
