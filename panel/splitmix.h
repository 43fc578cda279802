// The machine's generator: SplitMix64, 64 bits of state.
#pragma once

#include <cstdint>

namespace hustle {

// A draw of 1 to n: the whole part of r * n + 1 for the next r in [0, 1).
inline int splitmix_draw(std::uint64_t& state, int n) {
    state += 0x9E3779B97F4A7C15ULL;
    std::uint64_t z = state;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    z ^= z >> 31;
    const double r = static_cast<double>(z >> 11) * 0x1.0p-53;
    return static_cast<int>(r * n + 1);
}

} // namespace hustle
