// The labels that are lamps: the trail, the two ladders and the eight labels in the ring. A cap of
// coloured glass for each, in shade or lit from within, by the colours that the machine has set.
#pragma once

#include "panel/sheet.h"

#include <string>

namespace hustle {

inline constexpr int glow_reach = 6; // panel pixels that the light of a lamp reaches beyond it

bool is_lamp(const element_row&);
bool is_lit(const element_row&, const element_state&);
// The lamp as SVG text, with `glow_reach` of room on each side.
std::string lamp_svg(const element_row&, const element_state&);

} // namespace hustle
