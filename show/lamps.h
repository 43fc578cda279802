// The labels that are lamps: the trail, the two ladders and the eight labels in the ring.
#pragma once

#include "panel/sheet.h"

namespace hustle {

bool is_ring_label(const element_row&); // the eight labels of the electric shock
bool is_lamp(const element_row&);
bool is_lit(const element_row&, const element_state&);

} // namespace hustle
