// The terms of a run: all that its result depends on.
#pragma once

#include <cstdint>

namespace hustle::lab {

inline constexpr int most_machines = 100'000; // of a run: some 40 kB of memory and a line of the file each

struct terms {
    int policy = 0;                // its place in policies()
    int machines = 16;             // 1 to most_machines
    std::uint64_t plays = 100'000; // counted on each machine, at least 1
    std::uint64_t warmup = 0;      // plays before these on each machine that are left out
    std::uint64_t seed = 1;        // of the whole run
    int reaction = 0;              // ms from a player's sight to the press, 0 or more
    int rung = 8;                  // at which a gambler collects, 1 to 10
    int patience = 60;             // minutes on a machine's clock without a new play that end it, at least 1
    int moneyin = 100;             // pounds in the ledgers at the start, at least 1
    int moneyout = 80;

    bool operator==(const terms&) const = default;
};

// The seed of a machine (0 upward), and of a second stream for it: any two differ.
std::uint64_t seed_of(const terms&, int machine, int stream = 0);

} // namespace hustle::lab
