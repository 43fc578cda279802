// The whole state of a machine as text, and a number for it. Any front end can keep `names` beside
// its game and tell its state: two that show the same hash stand alike to the last lamp.
#pragma once

#include "script/names.h"

#include <cstdint>
#include <string>

namespace hustle::script {

// What the command `dump` prints: NAME = VALUE for each name of the machine, sorted.
std::string dump(const names&);
// FNV-1a of 64 bits over that text, which is not built for it.
std::uint64_t hash(const names&);
// The same as sixteen hex digits.
std::string hash_text(const names&);

} // namespace hustle::script
