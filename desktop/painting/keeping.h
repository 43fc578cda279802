// Drawing what is kept, and painted often from then on.
#pragma once

#include <QImage>
#include <QPixmap>

#include <functional>
#include <string>

namespace hustle::desktop {

// Paints on an image as `paint` does. Must not be called by what it paints.
QPixmap draw_to_keep(QImage, const std::function<void(QPainter&)>& paint);
// An SVG text at a size in device pixels, stretched to it, on transparent ground.
QPixmap draw_svg(const std::string& text, QSizeF);

} // namespace hustle::desktop
