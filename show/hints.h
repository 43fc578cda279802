// The line under the cabinet: what can be done now, and by which key or button, from the state of the
// machine alone. And the labels beside it.
#pragma once

#include "core/game.h"

#include <string>
#include <string_view>

namespace hustle {

// What the player can do now; empty where there is nothing to say (splash, guides, a lamp show that
// needs no answer). Never longer than 90 letters. It names keys, or for hands that touch the screen the
// buttons there: Start, Stop, Hold, Cancel, the transfer with its coin, and those of the board.
enum class hands { keys, touch };
std::string_view hint(const game&, hands by = hands::keys);

// "Bank £3.60" and "Credits 14", in the machine's currency.
std::string bank_label(const game&);
std::string credits_label(const game&);

} // namespace hustle
