// The window's own line under the cabinet: what can be done now, and by which key or
// button, from the state
// of the machine alone. And the labels beside it.
#pragma once

#include "core/game.h"

#include <cstdint>
#include <string>

namespace hustle {

// What the player plays with: the words name keys, or what is to be touched.
enum class hand : std::uint8_t { keys, finger };

// What the player can do now; empty where there is nothing to say (splash, guides, a lamp show that
// needs no answer). Never longer than 90 letters.
std::string hint(const game&, hand = hand::keys);

// "Bank £3.60" and "Credits 14", in the machine's currency.
std::string bank_label(const game&);
std::string credits_label(const game&);

} // namespace hustle
