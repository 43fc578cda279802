// Music as text, for the waves and for the tune alike. A text is a row of steps between blanks:
//   d5        a note: letter, # or b, octave (a4 is 440 Hz, c4 the middle c)
//   d4+f4+a4  notes together
//   d5>a5     a note that slides
//   .         a rest
//   d5:4      a note with a length of its own; what a length counts is told by who reads it
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace hustle::sounds {

struct step {
    std::array<int, 6> keys{}; // MIDI key numbers, 60 is c4
    int count = 0;             // of keys; 0: a rest
    int slide = 0;             // semitones from the key at the start to the key at the end
    int length = 0;            // 0: none of its own
};

// Takes the next step off the front of a text; nothing at its end. A text that is no music gives
// a rest where it fails.
std::optional<step> next_step(std::string_view& text);

} // namespace hustle::sounds
