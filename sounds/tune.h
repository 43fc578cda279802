// The tune of the feature board: a burglar's walk in d minor, 52 bars at 124 beats a minute.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace hustle::sounds {

constexpr int beats_a_minute = 124;
constexpr int ticks_a_sixteenth = 120;
constexpr int ticks_a_bar = 16 * ticks_a_sixteenth;

enum class player : std::uint8_t { vibes, trumpet, guitar, bass, horns, strings, drums };
constexpr std::size_t player_count = 7;

struct seat {
    std::string_view name;
    int channel; // 0 to 15; 9 is the drums
    int program; // of the general list, from 0
    int volume;  // 0 to 127
    int side;    // 0 left to 127 right
    int room;    // echo, 0 to 127
};

// A stretch of one player's part. Lengths in the notes count sixteenths; a length stands until the
// next one.
struct part {
    player who;
    int bar; // the first, from 0
    int bars;
    int times; // how often it is played, one after the other
    int velocity;
    std::string_view notes;
};

// One drum over one bar: a letter for each sixteenth, x loud, o soft, . none.
struct beat {
    int bar, bars; // the first, and for how many
    int key;       // which drum
    int velocity;
    std::string_view bar_text;
};

std::span<const seat, player_count> band();
std::span<const part> parts();
std::span<const beat> beats();

// The tune as the bytes of a standard MIDI file.
std::string tune_file();

} // namespace hustle::sounds
