// The 24 squares of the feature board's ring, for the machine and for the pictures of it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace hustle {

enum class square : std::uint8_t {
    start,
    multi, // a rung of each ladder and a shot
    cash1, // rungs of the cash ladder
    cash2,
    shot1,
    shot2,
    feature1, // rungs of the features ladder
    feature2,
    mystery,
    life,
    boost,
    over,
    skill,  // a stop of the player's
    random, // a stop by chance
    bomb,
    total,
};
inline constexpr std::size_t square_kinds = static_cast<std::size_t>(square::total);

// Square n is ring[n - 1].
inline constexpr std::array<square, 24> ring = {
    square::start,    square::multi,    square::cash2,
    square::shot1,    square::feature2, square::mystery, // 6
    square::cash2,    square::life,     square::shot2,
    square::feature2, square::mystery,  square::cash1, // 12
    square::boost,    square::feature1, square::over,
    square::multi,    square::shot1,    square::feature1, // 18
    square::skill,    square::bomb,     square::mystery,
    square::shot2,    square::random,   square::over, // 24
};

} // namespace hustle
