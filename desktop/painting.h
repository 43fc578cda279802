// How each kind of element looks. Everything is in device pixels.
#pragma once

#include "desktop/dotline.h"
#include "desktop/pictures.h"
#include "panel/sheet.h"

#include <QColor>
#include <QPainter>
#include <QRect>

namespace hustle::desktop {

struct canvas {
    QPainter& painter;
    picture_store& pictures;
    dot_store& dots;
    double pixel; // device pixels to a pixel of the panel
};

inline constexpr int glow_reach = 9; // panel pixels that the glow of a lit lamp reaches beyond it

// The ground on which every screen stands.
QColor ground_colour();
// The art that an element shows: on a dollar machine the reels show their dollar versions.
art shown_art(const panel&, element);
// A label that is a lamp with a lit and a dark look, by its colours.
bool is_lamp(const element_row&);
bool is_lit(const element_row&, const element_state&);

// The light that a lit lamp throws on what is round it: drawn beneath all lamps.
void draw_glow(canvas&, const panel&, element, QRect box);
void draw_element(canvas&, const panel&, element, QRect box, bool pressed);

} // namespace hustle::desktop
