#include "desktop/painting/painting.h"

#include "art/lamplooks.h"
#include "desktop/painting/colours.h"
#include "desktop/painting/keeping.h"
#include "desktop/painting/lettering.h"
#include "show/places.h"

#include <QLinearGradient>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace hustle::desktop {

namespace {

const QColor field_ground(14, 11, 18);
const QColor field_rim(92, 78, 110);
constexpr double ledger_letters = 12.3; // pixels: £1,234.50 is as large as £0.00
constexpr double name_letters = 14.5;

void draw_plain_label(canvas& c, const element_row& r, const element_state& state, const QString& text,
                      QRect box) {
    lettering look;
    look.box = box;
    look.largest = std::min(box.height() * 0.7, (r.where == screen::statistics ? 12 : 19) * c.pixel);
    look.wrap = r.where != screen::statistics;
    look.fore = from_bgr(state.fore);
    look.align = r.where == screen::About        ? Qt::AlignLeft | Qt::AlignTop
                 : r.where == screen::statistics ? Qt::AlignRight | Qt::AlignVCenter
                                                 : Qt::AlignCenter;
    draw_text(c.painter, look, text);
}

void draw_field(canvas& c, const QString& text, QRect box, double largest) {
    const QRectF body = QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5);
    c.painter.setPen(QPen(field_rim, c.pixel));
    c.painter.setBrush(field_ground);
    c.painter.drawRoundedRect(body, 4 * c.pixel, 4 * c.pixel);
    lettering look;
    look.box = body.adjusted(5 * c.pixel, 0, -5 * c.pixel, 0);
    look.largest = largest * c.pixel;
    look.fore = QColor(255, 232, 190);
    look.align = Qt::AlignLeft | Qt::AlignVCenter;
    draw_text(c.painter, look, text);
}

void draw_caption(canvas& c, const QString& text, QRect box) {
    lettering look;
    look.box = box;
    look.largest = 17 * c.pixel;
    look.fore = Qt::white;
    look.align = Qt::AlignRight | Qt::AlignVCenter;
    draw_text(c.painter, look, text);
}

// The cabinet's gilt edge round a form whose picture has none of its own.
void draw_gilt_edge(canvas& c, QRect box) {
    c.painter.setBrush(Qt::NoBrush);
    const auto edge = [&](QColor colour, double inset, double width) {
        const double in = inset * c.pixel;
        c.painter.setPen(QPen(colour, width * c.pixel));
        c.painter.drawRoundedRect(QRectF(box).adjusted(in, in, -in, -in), 8 * c.pixel, 8 * c.pixel);
    };
    edge(QColor(92, 50, 6), 3, 5);
    edge(QColor(232, 182, 74), 3, 3);
    edge(QColor(255, 236, 170), 2.4, 0.8);
    edge(QColor(120, 72, 14), 9, 1);
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

// The board's line has no frame of its own among the pictures.
void draw_rim(canvas& c, QRect box) {
    const double out = 2 * c.pixel;
    c.painter.setPen(QPen(QColor(201, 150, 62), 1.6 * c.pixel));
    c.painter.setBrush(QColor(9, 7, 9));
    c.painter.drawRoundedRect(QRectF(box).adjusted(-out, -out, out, out), 3 * c.pixel, 3 * c.pixel);
}

void draw_picture(canvas& c, const panel& p, const element_state& state, QRect box, bool pressed) {
    const art a = p.dollars ? dollar_version(state.picture) : state.picture;
    if (a == art::none)
        return;
    c.pictures.dollars = p.dollars;
    const QPixmap& pixmap = picture(c.pictures, a, box.size());
    const int inset = pressed ? std::max(1, static_cast<int>(1.5 * c.pixel)) : 0;
    const QRect target = box.adjusted(inset, inset, -inset, -inset);
    if (pixmap.size() == target.size())
        c.painter.drawPixmap(target.topLeft(), pixmap);
    else
        c.painter.drawPixmap(target, pixmap);
}

// The reel of an element that stands on its strip or rolls; null for any other.
const reel_motion* reel_of(const canvas& c, element e) {
    if (e < element::reel1 || e > element::reel3)
        return nullptr;
    const reel_motion& r =
        c.show.reels[static_cast<std::size_t>(static_cast<int>(e) - static_cast<int>(element::reel1))];
    return r.on_strip ? &r : nullptr;
}

void draw_line(canvas& c, element e, const element_state& state, QRect box) {
    if (e == element::feature_displayline)
        draw_rim(c, box);
    const bool runs = e == element::feature_displayline && c.show.belt.runs;
    const QString text = QString::fromStdString(state.text);
    if (e == element::feature_shotbox) { // a number, always in the middle
        const int columns = static_cast<int>(text.trimmed().size()) * cell_columns - 1;
        draw_dot_line(c.painter, c.dots, box, text.trimmed(), state.activecolor, state.lineflash,
                      (columns - (cells_of(box.width(), box.height()) * cell_columns - 1)) / 2);
        return;
    }
    draw_dot_line(c.painter, c.dots, box, text, state.activecolor, state.lineflash,
                  runs ? c.show.belt.columns : 0);
}

} // namespace

QColor ground_colour() { return {22, 13, 30}; }

void draw_bare_form(canvas& c, screen s) {
    if (s != screen::About && s != screen::reelguide)
        return;
    const auto to_device = [&](int twips) { return static_cast<int>(std::lround(twips / 15.0 * c.pixel)); };
    const QRect form(c.origin, QSize(to_device(row(s).width), to_device(row(s).height)));
    QRadialGradient light(form.center(), 0.6 * std::max(form.width(), form.height()));
    light.setColorAt(0, QColor(70, 26, 96));
    light.setColorAt(1, ground_colour());
    c.painter.fillRect(form, light);
    draw_gilt_edge(c, form);
}

QRect device_place(const panel& p, element e, double pixel, QPoint origin) {
    const rect place = seen_place(p, e);
    const auto to = [pixel](int twips) { return static_cast<int>(std::lround(twips / 15.0 * pixel)); };
    return {origin.x() + to(place.left), origin.y() + to(place.top), std::max(1, to(place.width)),
            std::max(1, to(place.height))};
}

void draw_element(canvas& c, const panel& p, element e, QRect box, bool pressed) {
    const element_row& r = row(e);
    const element_state& state = shown(c.show, p, e);
    if (!state.visible)
        return;
    switch (r.what) {
    case kind::picture:
    case kind::button:
    case kind::clicked:
        if (const reel_motion* rolling = reel_of(c, e))
            draw_reel(c.painter, c.strips, *rolling, p.dollars, c.show.win.swell, box);
        else
            draw_picture(c, p, state, box, pressed);
        if (e == element::Entername_background)
            draw_gilt_edge(c, box);
        break;
    case kind::label:
        if (is_lamp(r))
            draw_lamp(c.painter, c.lamps, r, state, box, c.pixel);
        else
            draw_plain_label(c, r, state, QString::fromStdString(state.text), box);
        break;
    case kind::line: draw_line(c, e, state, box); break;
    case kind::textbox:
        if (e == element::Entername_Text2) // says what the box beside it is for
            draw_caption(c, QString::fromStdString(state.text), box);
        else
            draw_field(c, QString::fromStdString(state.text).trimmed(), box,
                       r.where == screen::statistics ? ledger_letters : name_letters);
        break;
    case kind::push: draw_push(c, QString::fromStdString(state.text), box, pressed); break;
    case kind::frame:
        c.painter.setPen(QPen(field_rim, 2 * c.pixel));
        c.painter.setBrush(Qt::NoBrush);
        c.painter.drawRect(box);
        break;
    case kind::entry: break;
    }
}

namespace {

// Light that fades from the frame of the win line inwards, seen on white, with a bright thread on it.
QPixmap draw_glow(QSize size, double pixel) {
    const auto frame = [&](QPainter& painter, QColor light, double inset, double width) {
        const double in = inset * pixel;
        painter.setPen(QPen(light, width * pixel));
        painter.drawRoundedRect(QRectF(QPointF(), size).adjusted(in, in, -in, -in), 9 * pixel, 9 * pixel);
    };
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return draw_to_keep(std::move(picture), [&](QPainter& painter) {
        constexpr int rings = 6;
        for (int ring = rings; ring >= 0; --ring) {
            const double far = static_cast<double>(ring) / rings;
            QColor light = mix(QColor(255, 72, 0), QColor(255, 190, 40), far);
            light.setAlphaF(static_cast<float>(1 - 0.85 * far));
            frame(painter, light, 3 + 3 * ring, ring == 0 ? 3.6 : 3.2);
        }
        frame(painter, QColor(255, 244, 190), 3, 1.2);
    });
}

} // namespace

void draw_win(canvas& c, const panel& p) {
    const double glow = c.show.win.glow;
    if (glow > 0.01) {
        const auto to_device = [&](int twips) {
            return static_cast<int>(std::lround(twips / 15.0 * c.pixel));
        };
        const rect band = win_line_area();
        const QSize size(to_device(band.width), to_device(band.height));
        if (c.strips.glow.size() != size)
            c.strips.glow = draw_glow(size, c.pixel);
        c.painter.setOpacity(glow);
        c.painter.drawPixmap(c.origin + QPoint(to_device(band.left), to_device(band.top)), c.strips.glow);
        c.painter.setOpacity(1);
    }
    const art face = p.dollars ? art::coinpic1 : art::coinpic;
    const int size = std::max(1, static_cast<int>(coin_size * c.pixel));
    for (const coin& flying : c.show.win.coins) {
        if (flying.opacity <= 0)
            continue;
        c.painter.setOpacity(flying.opacity);
        c.painter.drawPixmap(c.origin.x() + static_cast<int>(flying.x * c.pixel) - size / 2,
                             c.origin.y() + static_cast<int>(flying.y * c.pixel) - size / 2,
                             picture(c.pictures, face, {size, size}));
        c.painter.setOpacity(1);
    }
}

} // namespace hustle::desktop
