#include "desktop/painting.h"

#include "desktop/colours.h"
#include "desktop/lettering.h"

#include <QLinearGradient>
#include <QRadialGradient>

#include <algorithm>

namespace hustle::desktop {

namespace {

constexpr colour resting_label = 0xFFFFC0; // of the eight labels in the ring
const QColor field_ground(14, 11, 18);
const QColor field_rim(92, 78, 110);

QString text_of(const panel& p, element e) {
    return QString::fromUtf8(at(p, e).text.data(), static_cast<qsizetype>(at(p, e).text.size()));
}

bool is_ring_label(const element_row& r) { return r.where == screen::feature && r.back == 0; }

// Rungs overlap by a hair; a lamp leaves room for its neighbours.
QRectF lamp_body(const canvas& c, QRect box) {
    const double gap = 1.6 * c.pixel;
    return QRectF(box).adjusted(gap, gap, -gap, -gap);
}

double lamp_radius(const canvas& c, QRectF body) { return std::min(body.height() * 0.32, 9 * c.pixel); }

QColor lamp_colour(const element_row& r, const element_state& state) {
    return is_ring_label(r) ? from_bgr(state.fore) : from_bgr(state.back);
}

void draw_lit_lamp(canvas& c, QRectF body, QColor base) {
    const double radius = lamp_radius(c, body);
    QRadialGradient light(body.center(), body.width() * 0.62);
    light.setColorAt(0.0, mix(base, QColor(255, 236, 190), 0.42));
    light.setColorAt(0.45, mix(base, QColor(255, 220, 160), 0.14));
    light.setColorAt(1.0, base);
    c.painter.setPen(QPen(mix(base, Qt::white, 0.55), 1.2 * c.pixel));
    c.painter.setBrush(light);
    c.painter.drawRoundedRect(body, radius, radius);
}

void draw_dark_lamp(canvas& c, QRectF body, QColor base) {
    const double radius = lamp_radius(c, body);
    QLinearGradient glass(body.topLeft(), body.bottomLeft());
    glass.setColorAt(0.0, mix(base, QColor(10, 6, 12), 0.58));
    glass.setColorAt(0.5, mix(base, QColor(10, 6, 12), 0.74));
    glass.setColorAt(1.0, mix(base, QColor(10, 6, 12), 0.66));
    c.painter.setPen(QPen(mix(base, QColor(10, 6, 12), 0.36), 1.0 * c.pixel));
    c.painter.setBrush(glass);
    c.painter.drawRoundedRect(body, radius, radius);
}

void draw_lamp(canvas& c, const element_row& r, const element_state& state, const QString& text, QRect box) {
    const QRectF body = lamp_body(c, box);
    const QColor base = lamp_colour(r, state);
    const bool lit = is_lit(r, state);
    if (lit)
        draw_lit_lamp(c, body, base);
    else
        draw_dark_lamp(c, body, is_ring_label(r) ? QColor(40, 90, 110) : base);
    lettering look;
    look.box = body.adjusted(4 * c.pixel, 0, -4 * c.pixel, 0);
    look.largest = std::min(body.height() * 0.66, 17 * c.pixel);
    look.wrap = body.height() > 28 * c.pixel;
    look.fore = mix(base, Qt::white, 0.52);
    if (lit)
        look.fore = is_ring_label(r) ? QColor(Qt::white) : from_bgr(state.fore);
    else if (is_ring_label(r))
        look.fore = from_bgr(state.fore);
    if (!state.enabled) // a rung that has been given up
        look.fore = mix(look.fore, base, 0.65);
    else if (lit)
        look.outline = mix(base, QColor(20, 0, 10), 0.82);
    draw_text(c.painter, look, text);
}

void draw_plain_label(canvas& c, const element_row& r, const element_state& state, const QString& text,
                      QRect box) {
    lettering look;
    look.box = box;
    look.largest = std::min(box.height() * 0.7, 19 * c.pixel);
    look.wrap = true;
    look.fore = from_bgr(state.fore);
    look.align = r.where == screen::About        ? Qt::AlignLeft | Qt::AlignTop
                 : r.where == screen::statistics ? Qt::AlignRight | Qt::AlignVCenter
                                                 : Qt::AlignCenter;
    draw_text(c.painter, look, text);
}

void draw_field(canvas& c, const QString& text, QRect box) {
    const QRectF body = QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5);
    c.painter.setPen(QPen(field_rim, c.pixel));
    c.painter.setBrush(field_ground);
    c.painter.drawRoundedRect(body, 4 * c.pixel, 4 * c.pixel);
    lettering look;
    look.box = body.adjusted(5 * c.pixel, 0, -5 * c.pixel, 0);
    look.largest = std::min(box.height() * 0.56, 15 * c.pixel);
    look.fore = QColor(255, 232, 190);
    look.align = Qt::AlignLeft | Qt::AlignVCenter;
    draw_text(c.painter, look, text);
}

void draw_push(canvas& c, QString text, QRect box, bool pressed) {
    const QRectF body = QRectF(box).adjusted(c.pixel, c.pixel, -c.pixel, -c.pixel);
    QLinearGradient plate(body.topLeft(), body.bottomLeft());
    plate.setColorAt(pressed ? 1.0 : 0.0, QColor(132, 96, 168));
    plate.setColorAt(pressed ? 0.0 : 1.0, QColor(74, 48, 104));
    c.painter.setPen(QPen(QColor(212, 176, 96), 1.2 * c.pixel));
    c.painter.setBrush(plate);
    c.painter.drawRoundedRect(body, 6 * c.pixel, 6 * c.pixel);
    lettering look;
    look.box = body;
    look.largest = 14 * c.pixel;
    look.fore = Qt::white;
    draw_text(c.painter, look, text.remove('&'));
}

void draw_picture(canvas& c, const panel& p, element e, QRect box, bool pressed) {
    const art a = shown_art(p, e);
    if (a == art::none)
        return;
    const QPixmap& pixmap = picture(c.pictures, a, box.size());
    const int inset = pressed ? std::max(1, static_cast<int>(1.5 * c.pixel)) : 0;
    const QRect target = box.adjusted(inset, inset, -inset, -inset);
    if (pixmap.size() == target.size())
        c.painter.drawPixmap(target.topLeft(), pixmap);
    else
        c.painter.drawPixmap(target, pixmap);
}

} // namespace

QColor ground_colour() { return {22, 13, 30}; }

art shown_art(const panel& p, element e) {
    const art a = at(p, e).picture;
    return p.dollars ? dollar_version(a) : a;
}

bool is_lamp(const element_row& r) { return r.what == kind::label && (r.back != 0 || is_ring_label(r)); }

bool is_lit(const element_row& r, const element_state& state) {
    if (is_ring_label(r))
        return state.fore != resting_label;
    return from_bgr(state.fore).lightness() > 100; // the letters of a dark lamp are black
}

void draw_glow(canvas& c, const panel& p, element e, QRect box) {
    const element_row& r = row(e);
    if (!is_lamp(r) || !is_visible(p, e) || !is_lit(r, at(p, e)))
        return;
    QColor light = mix(lamp_colour(r, at(p, e)), QColor(255, 210, 140), 0.25);
    c.painter.setPen(Qt::NoPen);
    const QRectF body = lamp_body(c, box);
    constexpr int layers = 6;
    for (int layer = layers; layer >= 1; --layer) {
        const double reach = glow_reach * c.pixel * layer / layers;
        light.setAlphaF(0.11F);
        c.painter.setBrush(light);
        const double radius = lamp_radius(c, body) + reach;
        c.painter.drawRoundedRect(body.adjusted(-reach, -reach, reach, reach), radius, radius);
    }
}

void draw_element(canvas& c, const panel& p, element e, QRect box, bool pressed) {
    const element_row& r = row(e);
    const element_state& state = at(p, e);
    if (!state.visible)
        return;
    switch (r.what) {
    case kind::picture:
    case kind::button:
    case kind::clicked: draw_picture(c, p, e, box, pressed); break;
    case kind::label:
        if (is_lamp(r))
            draw_lamp(c, r, state, text_of(p, e), box);
        else
            draw_plain_label(c, r, state, text_of(p, e), box);
        break;
    case kind::line:
        draw_dot_line(c.painter, c.dots, box, text_of(p, e), state.activecolor, state.lineflash);
        break;
    case kind::textbox: draw_field(c, text_of(p, e), box); break;
    case kind::push: draw_push(c, text_of(p, e), box, pressed); break;
    case kind::frame:
        c.painter.setPen(QPen(field_rim, 2 * c.pixel));
        c.painter.setBrush(Qt::NoBrush);
        c.painter.drawRect(box);
        break;
    case kind::entry: break;
    }
}

} // namespace hustle::desktop
