// The labels that are lamps: the trail, the two ladders and the eight labels in the ring. A cap of
// coloured glass for each, in shade or lit from within, by the colours that the machine has set.
#pragma once

#include "panel/sheet.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QRect>

namespace hustle::desktop {

inline constexpr int glow_reach = 6; // panel pixels that the light of a lamp reaches beyond it

// Lamps by looks and size.
struct lamp_store {
    QHash<QString, QPixmap> drawn;
};

bool is_lamp(const element_row&);
bool is_lit(const element_row&, const element_state&);

// `box` in device pixels, `pixel` device pixels to a pixel of the panel.
void draw_lamp(QPainter&, lamp_store&, const element_row&, const element_state&, QRect box, double pixel);

} // namespace hustle::desktop
