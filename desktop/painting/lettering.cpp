#include "desktop/painting/lettering.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainterPath>

#include <cmath>

namespace hustle::desktop {

namespace {

constexpr double smallest = 5; // device pixels

QFont panel_font(double height) {
    static const QStringList families = {"DejaVu Sans Condensed",  "DejaVu Sans",     "Noto Sans",
                                         "Liberation Sans Narrow", "Liberation Sans", "sans-serif"};
    QFont font;
    font.setFamilies(families);
    font.setBold(true);
    font.setPixelSize(static_cast<int>(std::lround(height)));
    return font;
}

// The lines that a text falls into at a width; words are never broken.
QStringList lines_of(const QString& text, const QFontMetricsF& metrics, double width, bool wrap) {
    if (!wrap)
        return {text};
    QStringList lines;
    for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
        const QString longer = lines.isEmpty() ? word : lines.last() + ' ' + word;
        if (!lines.isEmpty() && metrics.horizontalAdvance(longer) <= width)
            lines.last() = longer;
        else
            lines.append(word);
    }
    return lines;
}

bool fits(const QStringList& lines, const QFontMetricsF& metrics, const QRectF& box) {
    if (lines.size() > 1 && static_cast<double>(lines.size()) * metrics.height() > box.height() * 1.08)
        return false;
    for (const QString& line : lines)
        if (metrics.horizontalAdvance(line) > box.width())
            return false;
    return true;
}

void draw_line(QPainter& painter, const lettering& look, const QFont& font, QPointF at, const QString& text) {
    if (look.outline.isValid()) {
        QPainterPath letters;
        letters.addText(at, font, text);
        painter.strokePath(
            letters, QPen(look.outline, font.pixelSize() * 0.17, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.fillPath(letters, look.fore);
        return;
    }
    painter.setFont(font);
    painter.setPen(look.fore);
    painter.drawText(at, text);
}

} // namespace

void draw_text(QPainter& painter, const lettering& look, const QString& text) {
    if (text.isEmpty())
        return;
    double height = look.largest;
    QFont font = panel_font(height);
    QStringList lines = lines_of(text, QFontMetricsF(font), look.box.width(), look.wrap);
    while (!fits(lines, QFontMetricsF(font), look.box) && height > smallest) {
        height *= 0.95;
        font = panel_font(height);
        lines = lines_of(text, QFontMetricsF(font), look.box.width(), look.wrap);
    }
    const QFontMetricsF metrics(font);
    const double block = metrics.height() * static_cast<double>(lines.size());
    double top = look.box.top() + (look.box.height() - block) / 2;
    if (look.align & Qt::AlignTop)
        top = look.box.top();
    for (const QString& line : lines) {
        const double width = metrics.horizontalAdvance(line);
        double left = look.box.center().x() - width / 2;
        if (look.align & Qt::AlignLeft)
            left = look.box.left();
        else if (look.align & Qt::AlignRight)
            left = look.box.right() - width;
        draw_line(painter, look, font, {left, top + metrics.ascent()}, line);
        top += metrics.height();
    }
}

} // namespace hustle::desktop
