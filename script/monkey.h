// The monkey: a player who presses anything at any moment, and what must hold meanwhile. No money is
// made or lost but by a payout, a transfer or a new game; and no state is reached from which neither
// a press nor a running timer leads on.
#pragma once

#include "script/watched.h"

#include <vector>

namespace hustle::script {

// What a monkey did, up to `ticks` or to the first fault.
struct outing {
    std::uint64_t seed;
    std::uint64_t signature; // see watched
    std::uint64_t whole;
    std::string fault; // empty where all held
    std::vector<move> moves;
};
// `wholly` also goes astray, signs all that moves, and lets the money be.
outing let_loose(std::uint64_t seed, long ticks, bool wholly = false);

// Fewer moves that end in the same fault: pieces are left out while it stays. Replays at most so
// many ticks in all.
std::vector<move> shortest(const outing&, long ticks = 300'000'000);

// One number for the behaviour of the whole machine: of a long, fixed, seeded outing.
std::uint64_t signature();
// The same of every field, lamp, text, timer and sound, with strays to every corner. Slower.
std::uint64_t whole_signature();

} // namespace hustle::script
