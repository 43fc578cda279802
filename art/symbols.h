// The seven symbols of the reels. Each stands on (0, 0) in a space 120 by 92; the currency chooses
// the sign on the coin.
#pragma once

#include "art/pen.h"

#include <span>

namespace hustle {

enum class symbol { rseven, bseven, bell, bar, melon, cherry, coin };
enum class money { pounds, dollars };

void draw(pen&, symbol, money = money::pounds);

// One stop of the strip: what stands on the win line and the number it gives to the trail.
struct stop_picture {
    symbol sign;
    int number; // 0: none
};
std::span<const stop_picture, 16> strip(); // stop 1 first

} // namespace hustle
