// The single motions behind `take_in` and `advance`.
#pragma once

#include "show/stage.h"

namespace hustle {

void take_in_reel(stage&, const game&, int which, std::int64_t now); // which: 1 to 3
bool advance_reel(stage&, const game&, int which, std::int64_t now); // true while it moves

void take_in_belt(stage&, const game&, std::int64_t now);
// The ms until the belt's next column of dots; -1 while it stands.
int advance_belt(stage&, const game&, std::int64_t now);

void take_in_win(stage&, const game&, std::int64_t now);
int advance_win(stage&, const game&, std::int64_t now); // ms until its next picture, or -1

// Takes in the look that an element was told; false where what it shows is not touched by that.
void take_in_lamp(stage&, const panel&, element, std::int64_t now);
int advance_lamps(stage&, const game&, std::int64_t now); // ms until a held lamp may go on, or -1

void add_patch(stage&, const panel&, element);

} // namespace hustle
