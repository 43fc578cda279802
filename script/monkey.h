// The monkey: a player who presses anything at any moment, and what must hold meanwhile. No money is
// made or lost but by a payout, a transfer or a new game; and no state is reached from which neither
// a press nor a running timer leads on.
#pragma once

#include "script/moves.h"

#include <string>
#include <vector>

namespace hustle::script {

// A machine that is watched while moves are made on it.
struct watched {
    monkeyworld world;
    game g{world};
    std::int64_t last_play = 0; // ms on the panel's clock
    long ticks = 0;
    std::uint64_t signature = 0xcbf29ce484222325ULL; // of every tick and the money after it
    std::string fault;                               // what did not hold; empty while all does
    std::int64_t fault_at = 0;                       // ms

    explicit watched(std::uint64_t seed);
    void make(const move&);

private:
    void fail(const std::string& what);
    void press(const move&);
    void run(int ms);
    void check_tick(timer, const machine& before);
    void sign(std::uint64_t value) { signature = (signature ^ value) * 0x100000001b3ULL; }
};

// What a monkey did, up to `ticks` or to the first fault.
struct outing {
    std::uint64_t seed;
    std::uint64_t signature;
    std::string fault; // empty where all held
    std::vector<move> moves;
};
outing let_loose(std::uint64_t seed, long ticks);

// Fewer moves that end in the same fault: pieces are left out while it stays. Replays at most so
// many ticks in all.
std::vector<move> shortest(const outing&, long ticks = 300'000'000);

// One number for the behaviour of the whole machine: of a long, fixed, seeded outing.
std::uint64_t signature();

} // namespace hustle::script
