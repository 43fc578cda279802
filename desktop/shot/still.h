// A screen of the machine as it stands, painted at rest.
#pragma once

#include "core/game.h"

#include <QImage>

namespace hustle {

// `width` in pixels, 100 to 8000; the height follows from the screen's own shape.
QImage painted(const game&, screen, int width);

} // namespace hustle
