#include "desktop/painting/keeping.h"

#include <QByteArray>
#include <QPainter>
#include <QSemaphore>
#include <QSvgRenderer>
#include <QThreadPool>

namespace hustle::desktop {

// The toolkit shares every shape of a hundred rows out among the threads of its pool, and waking them
// costs more than all of the painting; in one of those threads it paints by itself. And an image that
// has been painted on keeps its painter's buffers, often more than its pixels: a copy has none.
QPixmap draw_to_keep(QImage image, const std::function<void(QPainter&)>& paint) {
    QSemaphore done;
    QThreadPool::globalInstance()->start([&] {
        {
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            paint(painter);
        }
        image = image.copy();
        done.release();
    });
    done.acquire();
    return QPixmap::fromImage(std::move(image));
}

QPixmap draw_svg(const std::string& text, QSizeF size) {
    QImage image(size.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return draw_to_keep(std::move(image), [&](QPainter& painter) {
        QSvgRenderer renderer(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())));
        renderer.setAspectRatioMode(Qt::IgnoreAspectRatio);
        renderer.render(&painter, QRectF(QPointF(0, 0), size));
    });
}

} // namespace hustle::desktop
