#include "desktop/shot/still.h"

#include "desktop/painting/backdrop.h"
#include "desktop/painting/painting.h"

#include <QPainter>

#include <cmath>

namespace hustle {

QImage painted(const game& g, screen what, int width) {
    const panel& p = g.p;
    const double pixel = width / (row(what).width / 15.0);
    QImage image(width, static_cast<int>(std::lround(row(what).height / 15.0 * pixel)), QImage::Format_RGB32);
    image.fill(desktop::ground_colour());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    desktop::picture_store pictures;
    desktop::dot_store dots;
    desktop::lamp_store lamps;
    desktop::strip_store strips;
    stage show;
    take_in(show, g, 0);
    advance(show, g, 0);
    desktop::canvas c{painter, pictures, dots, lamps, strips, show, pixel, {}};
    desktop::backdrop_store backdrop;
    desktop::prepare_backdrop(backdrop, p, what, pixel);
    desktop::draw_bare_form(c, what);
    desktop::draw_backdrop(c, backdrop, p, what);
    for (const bool pictures_first : {true, false})
        for (const element_row& r : elements_of(what))
            if ((r.what == kind::picture) == pictures_first && !desktop::in_backdrop(r.id))
                desktop::draw_element(c, p, r.id, desktop::device_place(p, r.id, pixel, {}), false);
    return image;
}

} // namespace hustle
