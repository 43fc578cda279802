// Text that fits its box.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace hustle::desktop {

struct lettering {
    QRectF box;
    double largest = 12; // height of the letters at most, device pixels; smaller where the box asks it
    QColor fore = Qt::white;
    QColor outline = QColor(); // round each letter; invalid: none
    Qt::Alignment align = Qt::AlignCenter;
    bool wrap = false; // may run over several lines
};

void draw_text(QPainter&, const lettering&, const QString& text);

} // namespace hustle::desktop
