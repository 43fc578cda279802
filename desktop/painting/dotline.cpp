#include "desktop/painting/dotline.h"

#include "art/dotfont.h"
#include "desktop/painting/colours.h"
#include "desktop/painting/keeping.h"

#include <algorithm>
#include <cmath>

namespace hustle::desktop {

namespace {

static_assert(cell_columns == glyph_columns + 1);

// The dots of a line stand on a grid that is centred in its box. A whole number of device pixels
// from dot to dot looks best; where that would waste much of the box the grid is uneven.
struct grid {
    double pitch_x, pitch_y, left, top;
    int columns;

    int x(int column) const { return static_cast<int>(std::lround(left + column * pitch_x)); }
    int y(int row) const { return static_cast<int>(std::lround(top + row * pitch_y)); }
    QRect dot(int column, int row) const {
        return {QPoint(x(column), y(row)), QPoint(x(column + 1) - 1, y(row + 1) - 1)};
    }
};

grid grid_of(QSize box) {
    const int columns = cells_of(box.width(), box.height()) * cell_columns - 1;
    double pitch = std::min(box.width() / static_cast<double>(columns), box.height() / (glyph_rows + 1.6));
    if (std::floor(pitch) * columns > 0.9 * box.width() || columns < 30)
        pitch = std::max(1.0, std::floor(pitch));
    // Letters a little taller than wide are easier to read.
    double tall = std::min(pitch * 1.2, box.height() / (glyph_rows + 1.4));
    if (pitch >= 2 && std::floor(pitch) == pitch)
        tall = std::max(pitch, std::floor(tall));
    return {pitch, tall, (box.width() - columns * pitch) / 2, (box.height() - glyph_rows * tall) / 2,
            columns};
}

enum class ground { dark, lit };

QColor dot_colour(QColor lamp, ground look, bool flash) {
    if (look == ground::lit)
        return flash ? mix(lamp, Qt::white, 0.72) : mix(lamp, Qt::white, 0.22);
    return flash ? mix(QColor(22, 16, 18), lamp, 0.52) : mix(QColor(24, 18, 20), lamp, 0.11);
}

QPixmap draw_ground(QSize size, QColor lamp, ground look, bool flash) {
    QImage image(size, QImage::Format_RGB32);
    const QColor glass = flash ? mix(QColor(8, 6, 8), lamp, 0.22) : mix(QColor(9, 7, 9), lamp, 0.02);
    image.fill(glass);
    const QColor bloom = mix(glass, lamp, flash ? 0.45 : 0.42); // round a lit dot
    return draw_to_keep(std::move(image), [&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(dot_colour(lamp, look, flash));
        const grid g = grid_of(size);
        for (int row = 0; row < glyph_rows; ++row)
            for (int column = 0; column < g.columns; ++column) {
                const QRect cell = g.dot(column, row);
                if (look == ground::lit)
                    painter.fillRect(cell, bloom);
                const double radius = 0.5 * std::min(cell.width(), cell.height());
                painter.drawEllipse(QRectF(cell).center(), radius, std::max(radius, 0.46 * cell.height()));
            }
    });
}

const QPixmap& ground_of(dot_store& store, QSize size, colour dots, ground look, bool flash) {
    const quint64 key =
        (static_cast<quint64>(dots & 0xFFFFFF) << 40) | (static_cast<quint64>(size.width()) << 20) |
        (static_cast<quint64>(size.height()) << 2) | (flash ? 2U : 0U) | (look == ground::lit ? 1U : 0U);
    const auto found = store.grounds.constFind(key);
    if (found != store.grounds.cend())
        return *found;
    return *store.grounds.insert(key, draw_ground(size, from_bgr(dots), look, flash));
}

} // namespace

int cells_of(double width, double height) { return width > 5 * height ? line_cells : 4; }

void draw_dot_line(QPainter& painter, dot_store& store, QRect box, const QString& text, colour dots,
                   bool flash, int run) {
    const grid g = grid_of(box.size());
    painter.drawPixmap(box.topLeft(), ground_of(store, box.size(), dots, ground::dark, flash));
    const QPixmap& lit = ground_of(store, box.size(), dots, ground::lit, flash);
    const QList<uint> letters = text.toUcs4();
    for (qsizetype cell = 0; cell < letters.size(); ++cell) {
        const int left = static_cast<int>(cell) * cell_columns - run;
        if (left >= g.columns)
            break;
        const glyph& shape = glyph_of(letters[cell]);
        for (int row = 0; row < glyph_rows; ++row)
            for (int column = 0; column < glyph_columns; ++column) {
                const bool on_line = left + column >= 0 && left + column < g.columns;
                if (!on_line ||
                    !((shape.rows[static_cast<std::size_t>(row)] >> (glyph_columns - 1 - column)) & 1))
                    continue;
                const QRect dot = g.dot(left + column, row);
                painter.drawPixmap(box.topLeft() + dot.topLeft(), lit, dot);
            }
    }
}

} // namespace hustle::desktop
