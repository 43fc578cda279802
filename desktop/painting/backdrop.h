// What stands still behind the lamps and buttons of main and of the board, in one picture: less to keep
// than its parts, and less to paint wherever something changes before it.
#pragma once

#include "desktop/painting/painting.h"

namespace hustle::desktop {

struct backdrop_store {
    QPixmap drawn;     // null before the first; opaque
    quint64 parts = 0; // which pictures are in it
};

// Whether an element is a part of its screen's backdrop, and so not painted by itself.
bool in_backdrop(element);

// Draws the backdrop of a screen at its size in device pixels, where what is kept has another size or
// other pictures; false where it stands already, or the screen has none.
bool prepare_backdrop(backdrop_store&, const panel&, screen, double pixel);
// Paints it, prepared before; while the pictures are settling one of another size will do.
void draw_backdrop(canvas&, backdrop_store&, const panel&, screen);

} // namespace hustle::desktop
