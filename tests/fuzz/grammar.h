// Scripts out of any bytes: most lines are commands that a script may give, a few are the bytes
// themselves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace hustle::fuzz {

std::string script_of(const std::uint8_t* bytes, std::size_t size);

} // namespace hustle::fuzz
