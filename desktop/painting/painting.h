// How each kind of element looks. Everything is in device pixels.
#pragma once

#include "desktop/painting/dotline.h"
#include "desktop/painting/lamplooks.h"
#include "desktop/painting/pictures.h"
#include "desktop/painting/runningline.h"
#include "panel/sheet.h"

#include <QColor>
#include <QPainter>
#include <QRect>

namespace hustle::desktop {

struct canvas {
    QPainter& painter;
    picture_store& pictures;
    dot_store& dots;
    lamp_store& lamps;
    double pixel; // device pixels to a pixel of the panel
    const running_line* running = nullptr;
};

// The ground on which every screen stands.
QColor ground_colour();
// The art that an element shows: on a dollar machine the reels show their dollar versions.
art shown_art(const panel&, element);

void draw_element(canvas&, const panel&, element, QRect box, bool pressed);

} // namespace hustle::desktop
