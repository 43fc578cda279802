// A machine that is watched while moves are made on it: what must hold, and numbers for all it does.
#pragma once

#include "script/moves.h"
#include "script/names.h"

#include <string>

namespace hustle::script {

// A machine that is watched while moves are made on it.
struct watched {
    monkeyworld world;
    game g{world};
    names known{g};
    const bool all;             // sign everything and let the money be: for a monkey that strays
    std::int64_t last_play = 0; // ms on the panel's clock
    long ticks = 0;
    std::uint64_t signature = 0xcbf29ce484222325ULL; // of every tick and the money after it
    std::uint64_t whole = 0xcbf29ce484222325ULL;     // of all that moves; only where `wholly` is asked for
    std::string fault;                               // what did not hold; empty while all does
    std::int64_t fault_at = 0;                       // ms

    explicit watched(std::uint64_t seed, bool wholly = false);
    void make(const move&);

private:
    void start();
    void fail(const std::string& what);
    void press(const move&);
    void run(int ms);
    void check_tick(timer, const machine& before);
    void sign_all();
};

} // namespace hustle::script
