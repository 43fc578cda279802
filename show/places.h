// Where an element is painted and pressed, where that is not quite the place in the data sheet.
#pragma once

#include "panel/sheet.h"

namespace hustle {

// In twips, with the element's own `top` of the moment, and as it stands in a fresh machine.
rect seen_place(const panel&, element);
rect seen_place(element);

} // namespace hustle
