// Draws the labels that are lamps, each look once at a size.
#pragma once

#include "panel/sheet.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QRect>

namespace hustle::desktop {

// Lamps by looks and size.
struct lamp_store {
    QHash<QString, QPixmap> drawn;
};

// `box` in device pixels, `pixel` device pixels to a pixel of the panel.
void draw_lamp(QPainter&, lamp_store&, const element_row&, const element_state&, QRect box, double pixel);

} // namespace hustle::desktop
