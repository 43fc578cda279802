#include "desktop/painting/reelroll.h"

#include "desktop/painting/pictures.h"

#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace hustle::desktop {

namespace {

constexpr int stops = 16;
constexpr int blurred_rows = 26;                   // to a stop
constexpr double blur_from = 0.15, smear_from = 2; // stops that pass while the eye takes a picture
constexpr int blur_rows = 12;                      // at full speed, a little less than half a stop

// The mean of `length` rows round each row, over the end of the strip to its beginning.
QImage blurred_down(const QImage& from, int length) {
    QImage to(from.size(), from.format());
    const int rows = from.height();
    const auto bytes = static_cast<std::size_t>(from.width()) * 4;
    std::vector<int> sums(bytes, 0);
    const auto add_row = [&](int row, int sign) {
        const uchar* line = from.constScanLine((row % rows + rows) % rows);
        for (std::size_t i = 0; i < bytes; ++i)
            sums[i] += sign * line[i];
    };
    for (int row = -length / 2; row < length - length / 2; ++row)
        add_row(row, 1);
    for (int row = 0; row < rows; ++row) {
        uchar* line = to.scanLine(row);
        for (std::size_t i = 0; i < bytes; ++i)
            line[i] = static_cast<uchar>(sums[i] / length);
        add_row(row - length / 2, -1);
        add_row(row - length / 2 + length, 1);
    }
    return to;
}

const QPixmap& look_of(const strip_store& store, double blur) {
    if (blur >= smear_from)
        return store.smear;
    return blur >= blur_from ? store.blurred : store.sharp;
}

// A stretch of the strip, in stops from its top; it may run over the end.
void draw_stretch(QPainter& painter, const QPixmap& strip, double from, double length, QRectF target) {
    from -= std::floor(from / stops) * stops;
    const double rows = strip.height() / static_cast<double>(stops); // to a stop
    while (length > 1e-9) {
        const double part = std::min(length, stops - from);
        const double height = target.height() * part / length;
        painter.drawPixmap(QRectF(target.left(), target.top(), target.width(), height), strip,
                           QRectF(0, from * rows, strip.width(), part * rows));
        target.setTop(target.top() + height);
        length -= part;
        from = 0;
    }
}

// The toolkit would share a hundred stretched rows out among its threads, and waking them for each picture
// of each reel costs more than the rows: fewer at once it paints by itself.
void draw_in_bands(QPainter& painter, const QPixmap& strip, double at, QRect box) {
    constexpr int band = 80; // rows
    for (int top = box.top(); top <= box.bottom(); top += band) {
        painter.save();
        painter.setClipRect(box.left(), top, box.width(), band, Qt::IntersectClip);
        draw_stretch(painter, strip, at - 1, 3, box);
        painter.restore();
    }
}

// The strip in whole pixels, so that it stays as sharp as it was drawn.
void draw_sharp(QPainter& painter, const QPixmap& strip, double at, QRect box) {
    const double cell = box.height() / 3.0;
    int from = static_cast<int>(std::lround((at - 1) * cell));
    from = (from % strip.height() + strip.height()) % strip.height();
    const int first = std::min(box.height(), strip.height() - from);
    painter.drawPixmap(box.topLeft(), strip, QRect(0, from, box.width(), first));
    if (first < box.height())
        painter.drawPixmap(box.left(), box.top() + first, strip, 0, 0, box.width(), box.height() - first);
}

// The symbol on the win line larger than it is, the two beside it as they are.
void draw_swollen(QPainter& painter, const QPixmap& strip, double at, double swell, QRect box) {
    const double cell = box.height() / 3.0;
    const QRectF middle(box.left(), box.top() + cell, box.width(), cell);
    draw_stretch(painter, strip, at - 1, 1, middle.translated(0, -cell));
    draw_stretch(painter, strip, at + 1, 1, middle.translated(0, cell));
    const double wider = middle.width() * (swell - 1) / 2, higher = cell * (swell - 1) / 2;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    draw_stretch(painter, strip, at, 1, middle.adjusted(-wider, -higher, wider, higher));
}

} // namespace

bool prepare_strip(strip_store& store, QSize reel, bool dollars) {
    if (store.reel == reel && store.dollars == dollars && !store.sharp.isNull())
        return false;
    store.reel = reel;
    store.dollars = dollars;
    store.paper = draw_art(art::reelpaper, reel);
    store.glass = draw_art(art::reelglass, reel);
    store.sharp = draw_art(dollars ? art::reelstrip1 : art::reelstrip,
                           QSizeF(reel.width(), reel.height() / 3.0 * stops));
    const QImage low =
        store.sharp.toImage()
            .convertToFormat(QImage::Format_ARGB32_Premultiplied)
            .scaled(reel.width(), stops * blurred_rows, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    store.blurred = QPixmap::fromImage(blurred_down(low, blur_rows));
    store.smear = QPixmap::fromImage(blurred_down(low, low.height()).copy(0, 0, low.width(), stops));
    return true;
}

void draw_reel(QPainter& painter, strip_store& store, const reel_motion& reel, bool dollars, double swell,
               QRect box) {
    prepare_strip(store, box.size(), dollars);
    painter.drawPixmap(box.topLeft(), store.paper);
    const QPixmap& strip = look_of(store, reel.blur);
    if (&strip != &store.sharp)
        draw_in_bands(painter, strip, reel.at, box);
    else if (swell > 1.001)
        draw_swollen(painter, strip, reel.at, swell, box);
    else
        draw_sharp(painter, strip, reel.at, box);
    painter.drawPixmap(box.topLeft(), store.glass);
}

} // namespace hustle::desktop
