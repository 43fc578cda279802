// The bar on a terminal: how much is done, how fast, and how long it will take.
#pragma once

#include <chrono>
#include <cstdint>

namespace hustle::lab {

struct progress {
    std::uint64_t wanted = 0; // plays of this run
    std::uint64_t before = 0; // of them, done by an earlier run
    bool on_terminal = false; // nothing is drawn elsewhere
    std::chrono::steady_clock::time_point began = std::chrono::steady_clock::now();

    void draw(std::uint64_t done) const; // plays since `began`
    void clear() const;
};

// Seconds of the house's clock since then.
double seconds_since(std::chrono::steady_clock::time_point);

} // namespace hustle::lab
