// A reel on its strip, at rest, rolling or running out: paper, strip and glass, drawn once for a
// size, and the strip once more as the eye sees it at speed.
#pragma once

#include "show/stage.h"

#include <QPainter>
#include <QPixmap>
#include <QRect>

namespace hustle::desktop {

struct strip_store {
    QSize reel; // the size in device pixels that everything here is drawn for
    bool dollars = false;
    QPixmap paper, glass, sharp;
    QPixmap blurred; // at full speed, with fewer rows: there is nothing sharp to keep
    QPixmap smear;   // one row: the whole strip in one look
    QPixmap glow;    // of a win, round the win line; empty before the first
};

// Draws all of it for a reel of this size; false where it stands already.
bool prepare_strip(strip_store&, QSize reel, bool dollars);

// `swell` is the size of the symbol on the win line; 1 at rest.
void draw_reel(QPainter&, strip_store&, const reel_motion&, bool dollars, double swell, QRect box);

} // namespace hustle::desktop
