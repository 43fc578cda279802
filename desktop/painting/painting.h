// How each kind of element looks. Everything is in device pixels.
#pragma once

#include "desktop/painting/dotline.h"
#include "desktop/painting/lamplooks.h"
#include "desktop/painting/pictures.h"
#include "desktop/painting/reelroll.h"
#include "panel/sheet.h"
#include "show/stage.h"

#include <QColor>
#include <QPainter>
#include <QRect>

namespace hustle::desktop {

struct canvas {
    QPainter& painter;
    picture_store& pictures;
    dot_store& dots;
    lamp_store& lamps;
    strip_store& strips;
    const stage& show;
    double pixel;  // device pixels to a pixel of the panel
    QPoint origin; // of the screen, device pixels
};

// The ground on which every screen stands.
QColor ground_colour();

// Where an element is painted, in device pixels. The size does not hang on the place, so that one
// drawing serves all elements of one size.
QRect device_place(const panel&, element, double pixel, QPoint origin);

// The ground of a form that has no picture of its own behind it, in the cabinet's gilt edge; nothing
// for any other.
void draw_bare_form(canvas&, screen);
void draw_element(canvas&, const panel&, element, QRect box, bool pressed);
// What lies over all elements of main: the glow round the win line, and coins in flight.
void draw_win(canvas&, const panel&);

} // namespace hustle::desktop
