// A run on all cores: independent machines, each played by one thread from its first play to its last.
#pragma once

#include "lab/program/files.h"

#include <string>

namespace hustle::lab {

struct run_options {
    terms t;
    share_of_run part;
    int threads = 0;      // 0: one for each core
    std::string out;      // file; empty: none is written
    bool resume = false;  // go on from what the file holds
    bool replace = false; // or play anew; with neither, a file that is there is refused
};

inline constexpr int status_stuck = 3;
inline constexpr int status_broken_off = 130;

// Returns the exit status. Throws file_error.
int run(const run_options&);

// A few lines that tell a result to a person.
std::string told(const result&);

} // namespace hustle::lab
