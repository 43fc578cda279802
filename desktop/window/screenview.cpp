#include "desktop/window/screenview.h"

#include "art/lamplooks.h"
#include "desktop/session/session.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace hustle::desktop {

namespace {

constexpr int settle_ms = 150; // after the last change of size pictures are drawn sharp again
constexpr int twips_to_pixel = 15;

} // namespace

screenview::screenview(session& s, hustle::screen shown, QWidget* parent)
    : QWidget(parent), played(s), what(shown) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
    setMouseTracking(true);
    drawn.resize(elements_of(what).size());
    settled.setSingleShot(true);
    QObject::connect(&settled, &QTimer::timeout, this, [this] {
        pictures.settling = false;
        pictures.latest.clear();
        update();
        draw_again();
    });
    make_text_boxes();
}

QSize screenview::panel_size() const {
    return {row(what).width / twips_to_pixel, row(what).height / twips_to_pixel};
}

// The screen stands in the middle of the widget, as large as it fits.
void screenview::measure() {
    const QSize whole = size() * devicePixelRatioF();
    const double width = row(what).width / static_cast<double>(twips_to_pixel);
    const double height = row(what).height / static_cast<double>(twips_to_pixel);
    const double before = scale;
    scale = std::min(whole.width() / width, whole.height() / height);
    if (!has_painted && scale != before) // drawn ahead for a size that it did not come up in
        let_go();
    origin = {static_cast<int>((whole.width() - width * scale) / 2),
              static_cast<int>((whole.height() - height * scale) / 2)};
}

QRect screenview::device_rect(element e) const { return device_place(played.g.p, e, scale, origin); }

QRect screenview::widget_rect(element e) const {
    const QRect device = device_rect(e);
    const double ratio = devicePixelRatioF();
    return QRectF(device.x() / ratio, device.y() / ratio, device.width() / ratio, device.height() / ratio)
        .toAlignedRect();
}

QRect screenview::dirty_rect(element e) const {
    if (!is_lamp(row(e)))
        return widget_rect(e);
    const int reach = static_cast<int>(std::ceil(glow_reach * scale / devicePixelRatioF())) + 1;
    return widget_rect(e).adjusted(-reach, -reach, reach, reach);
}

void screenview::repaint_area(const hustle::rect& area) {
    const double twip = scale / twips_to_pixel / devicePixelRatioF();
    const QPointF corner = QPointF(origin) / devicePixelRatioF();
    update(QRectF(corner.x() + area.left * twip, corner.y() + area.top * twip, area.width * twip,
                  area.height * twip)
               .toAlignedRect()
               .adjusted(-1, -1, 1, 1));
}

void screenview::refresh() {
    std::size_t index = 0;
    for (const element_row& r : elements_of(what)) {
        QRect& before = drawn[index++];
        element_state& state = at(played.g.p, r.id);
        if (!state.touched || r.what == kind::entry)
            continue;
        state.touched = false;
        const QRect now = dirty_rect(r.id);
        update(before == now ? now : before.united(now));
        before = now;
        tell_changed(spoken, *this, r.id);
    }
    for (const auto& [e, box] : text_boxes) {
        const QString text = QString::fromStdString(at(played.g.p, e).text);
        if (box->text() != text)
            box->setText(text);
    }
}

// A reel on its strip covers all that is painted behind it, so that a rolling one needs no more than
// itself. Where a pixel of the widget is not one of the screen its edges are not whole.
QRegion screenview::behind_reels(QRegion region) const {
    for (std::size_t i = 0; what == hustle::screen::main && devicePixelRatioF() == 1 && i < 3; ++i)
        if (played.show.reels[i].on_strip)
            region -= device_rect(nth(element::reel1, static_cast<int>(i) + 1));
    return region;
}

// No picture covers what can be pressed or read.
void screenview::draw_elements(canvas& c, const QRect& part, bool pictures_only) {
    for (const element_row& r : elements_of(what))
        if ((r.what == kind::picture) == pictures_only && !is_edited(r.id) && !in_backdrop(r.id) &&
            part.intersects(dirty_rect(r.id)))
            draw_element(c, played.g.p, r.id, device_rect(r.id), r.id == held);
}

// Rectangle by rectangle: in a clip of any other shape the toolkit paints row by row, and wakes threads to
// help it with each picture.
void screenview::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    canvas c{painter, pictures, dots, lamps, strips, played.show, scale, origin};
    const auto clip_to = [&](const QRect& part) {
        painter.resetTransform();
        painter.setClipRect(part);
        painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    };
    for (const QRect& part : behind_reels(event->region())) {
        clip_to(part);
        painter.fillRect(QRect({}, size() * devicePixelRatioF()), ground_colour());
        draw_bare_form(c, what);
        draw_backdrop(c, backdrop, played.g.p, what);
        draw_elements(c, part, true);
    }
    for (const QRect& part : event->region()) {
        clip_to(part);
        draw_elements(c, part, false);
        if (what == hustle::screen::main)
            draw_win(c, played.g.p);
    }
    has_painted = true;
    if (!played.seen) {
        played.seen = true;
        first_painted(played);
    }
}

void screenview::resizeEvent(QResizeEvent*) {
    measure();
    if (has_painted) {
        begin_settling(pictures);
        settled.start(settle_ms);
    }
    dots.grounds.clear();
    lamps.drawn.clear();
    place_children();
    std::size_t index = 0;
    for (const element_row& r : elements_of(what))
        drawn[index++] = dirty_rect(r.id);
}

void screenview::take_ready(art a, const QImage& image) {
    measure();
    if (!image.isNull())
        give_picture(pictures, a, QPixmap::fromImage(image));
}

// True where the picture had to be drawn.
bool screenview::draw_now(art a, element on) {
    if (a == art::none || in_backdrop(on))
        return false;
    if (played.g.p.dollars)
        a = dollar_version(a);
    pictures.dollars = played.g.p.dollars;
    const auto before = pictures.sharp.size();
    picture(pictures, a, device_rect(on).size());
    return pictures.sharp.size() != before;
}

void screenview::let_go() {
    pictures = {};
    backdrop = {};
    dots = {};
    lamps = {};
    strips = {};
    draw_again();
}

void screenview::draw_again() {
    next_row = next_group = 0;
    next_in_group = 0;
    draw_ahead(played);
}

bool screenview::draw_one_ahead() {
    measure(); // a view that is not on show yet has been told no size
    if (prepare_backdrop(backdrop, played.g.p, what, scale))
        return true;
    if (what == hustle::screen::main &&
        prepare_strip(strips, device_rect(element::reel1).size(), played.g.p.dollars))
        return true;
    const auto rows = elements_of(what); // first what stands there from the beginning
    while (next_row < rows.size()) {
        const element_row& r = rows[next_row++];
        if (draw_now(r.picture, r.id))
            return true;
    }
    const auto groups = coming_arts(what);
    while (next_group < groups.size()) {
        const coming_art& group = groups[next_group];
        const int count = static_cast<int>(group.last) - static_cast<int>(group.first) + 1;
        while (next_in_group < count)
            if (draw_now(nth(group.first, ++next_in_group), group.on))
                return true;
        ++next_group;
        next_in_group = 0;
    }
    return false;
}

void screenview::speak() { make_spoken(spoken, *this); }

} // namespace hustle::desktop
