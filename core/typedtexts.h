// The three text animations of the line: `dontholdany` and `letemspin` are typed out letter by letter,
// `ilikeit` grows from its middle. Whoever starts the timer of one starts its text.
#pragma once

#include "core/game.h"

namespace hustle {

// Ends the typed texts where they stand; the next one begins with its first letter.
void cut_typed_texts(game&);

} // namespace hustle
