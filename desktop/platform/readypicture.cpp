#include "desktop/platform/readypicture.h"

#include <QFile>

namespace hustle::desktop {

namespace {

constexpr QImage::Format kept = QImage::Format_RGBX8888; // the same bytes on every machine

} // namespace

bool store_ready(const QImage& image, const QString& file) {
    const QImage pixels = image.convertToFormat(kept);
    QFile to(file);
    return to.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           to.write(reinterpret_cast<const char*>(pixels.constBits()), pixels.sizeInBytes()) ==
               pixels.sizeInBytes() &&
           to.flush();
}

QImage read_ready(const QString& file, QSize size) {
    QImage pixels(size, kept);
    QFile from(file);
    if (!from.open(QIODevice::ReadOnly) || from.size() != pixels.sizeInBytes() ||
        from.read(reinterpret_cast<char*>(pixels.bits()), pixels.sizeInBytes()) != pixels.sizeInBytes())
        return {};
    return pixels;
}

} // namespace hustle::desktop
