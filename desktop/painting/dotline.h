// Draws a dot-matrix text line: cells of five by seven dots, lit and dark.
#pragma once

#include "panel/panel.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QString>

namespace hustle::desktop {

inline constexpr int line_cells = 26;
inline constexpr int cell_columns = 6; // dots from one letter to the next

// How many cells a line of this shape has: 26, or 4 for a short box.
int cells_of(double width, double height);

// Whole lines with every dot lit or dark, by colour, look and size: what a text is put together
// from.
struct dot_store {
    QHash<quint64, QPixmap> grounds;
};

// Draws `text` into `box`, given in device pixels; what goes beyond the right end is cut. With
// `flash` the line has its second look: the ground glows and the letters are hot. `run` is how many
// columns of dots the text has run to the left.
void draw_dot_line(QPainter&, dot_store&, QRect box, const QString& text, colour dots, bool flash,
                   int run = 0);

} // namespace hustle::desktop
