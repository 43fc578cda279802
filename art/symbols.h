// The seven symbols of the reels. Each stands on (0, 0) in a space 120 by 92; the currency chooses
// the sign on the coin.
#pragma once

#include "art/pen.h"

#include <string_view>

namespace hustle {

enum class symbol { rseven, bseven, bell, bar, melon, cherry, coin };
enum class money { pounds, dollars };

void draw(pen&, symbol, money = money::pounds);

symbol symbol_of(std::string_view word); // as the machine names one of the seven

} // namespace hustle
