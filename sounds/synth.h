// Turns the score into waves.
#pragma once

#include "panel/ids.h"

#include <cstdint>
#include <string>
#include <vector>

namespace hustle::sounds {

constexpr int rate = 44100; // samples a second

// One wave, mono: no sample above -3 dB, the first and the last at nothing.
std::vector<std::int16_t> render(sound wave);
// The same as the bytes of a wave file.
std::string wave_file(const std::vector<std::int16_t>& samples);

} // namespace hustle::sounds
