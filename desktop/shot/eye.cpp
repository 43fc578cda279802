#include "desktop/shot/eye.h"

#include "art/lamplooks.h"
#include "script/commands.h"
#include "script/reading.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <iostream>

namespace hustle::desktop {

namespace {

constexpr double twips_to_pixel = 15;

// The board is a little higher than main: as in the window it is shown as large as it fits.
double pixel_of(const eye& e, screen s) {
    const double by_width = e.width / (row(screen::main).width / twips_to_pixel);
    if (s != screen::feature || e.image.isNull())
        return by_width;
    return std::min(by_width, e.image.height() / (row(s).height / twips_to_pixel));
}

QSize size_of(const eye& e, screen s) {
    const double twip = pixel_of(e, s) / twips_to_pixel;
    return {static_cast<int>(std::lround(row(s).width * twip)),
            static_cast<int>(std::lround(row(s).height * twip))};
}

QPoint origin_of(const eye& e, screen s) {
    const QSize room = (e.image.size() - size_of(e, s)) / 2;
    return {room.width(), room.height()};
}

QRect with_light(const eye& e, const element_row& r, QRect box) {
    const int reach = is_lamp(r) ? static_cast<int>(std::ceil(glow_reach * pixel_of(e, r.where))) + 1 : 2;
    return box.adjusted(-reach, -reach, reach, reach);
}

QRect patch_rect(const eye& e, const patch& p) {
    const double twip = pixel_of(e, p.where) / twips_to_pixel;
    const QPoint corner = origin_of(e, p.where);
    return QRectF(corner.x() + p.area.left * twip, corner.y() + p.area.top * twip, p.area.width * twip,
                  p.area.height * twip)
        .toAlignedRect()
        .adjusted(-2, -2, 2, 2);
}

// Main or the board, and what stands before them.
std::vector<screen> screens_on_show(const panel& p) {
    std::vector<screen> all{is_loaded(p, screen::feature) ? screen::feature : screen::main};
    for (int i = 0; i < p.shown_count; ++i) {
        const screen s = p.shown[static_cast<std::size_t>(i)];
        if (s != screen::main && s != screen::feature)
            all.push_back(s);
    }
    return all;
}

void take_in_panel(eye& e, game& g) {
    take_in(e.show, g, e.reached);
    const std::vector<screen> now = screens_on_show(g.p);
    if (now != e.painted)
        e.changed = QRect(QPoint(), e.image.size());
    e.painted = now;
    for (const screen s : now)
        for (const element_row& r : elements_of(s)) {
            element_state& state = at(g.p, r.id);
            if (state.touched && r.what != kind::entry)
                e.changed += with_light(e, r, device_place(g.p, r.id, pixel_of(e, s), origin_of(e, s)));
            state.touched = false;
        }
}

void paint_screen(canvas& c, const eye& e, const game& g, screen s) {
    for (const bool pictures_first : {true, false})
        for (const element_row& r : elements_of(s)) {
            const QRect box = device_place(g.p, r.id, pixel_of(e, s), origin_of(e, s));
            if ((r.what == kind::picture) == pictures_first && e.changed.intersects(with_light(e, r, box)))
                draw_element(c, g.p, r.id, box, false);
        }
    if (s == screen::main)
        draw_win(c, g.p);
}

void paint(eye& e, const game& g) {
    QPainter painter(&e.image);
    painter.setClipRegion(e.changed);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(e.image.rect(), ground_colour());
    for (const screen s : e.painted) {
        canvas c{painter, e.pictures, e.dots, e.lamps, e.strips, e.show, pixel_of(e, s), origin_of(e, s)};
        paint_screen(c, e, g, s);
    }
}

void show_picture(eye& e, const game& g, std::int64_t ms) {
    advance(e.show, g, ms);
    for (const patch& p : e.show.patches)
        e.changed += patch_rect(e, p);
    e.show.patches.clear();
    e.changed &= QRect(QPoint(), e.image.size());
    if (!e.changed.isEmpty())
        paint(e, g);
    e.sees(e.image, e.changed, ms);
    e.changed = {};
}

} // namespace

void watch(eye& e, game& g) {
    if (e.reached < 0) {
        e.image = QImage(e.window.isEmpty() ? size_of(e, screen::main) : e.window, QImage::Format_RGB32);
        e.reached = g.p.now;
        e.next_picture = static_cast<double>(g.p.now);
        if (e.show.reduced)
            set_reduced(e.show, g, true);
    }
    take_in_panel(e, g);
    for (; e.next_picture <= static_cast<double>(g.p.now); e.next_picture += e.picture_ms)
        show_picture(e, g, static_cast<std::int64_t>(e.next_picture));
    e.reached = g.p.now;
}

int watch_file(eye& e, const std::string& path) {
    std::string text;
    if (const std::string wrong = script::read_script_file(path, text); !wrong.empty()) {
        std::cerr << script::printable(path) << ": " << wrong << '\n';
        return 2;
    }
    std::ostream unheard(nullptr);
    return script::watch_script(text, path, unheard, std::cerr, [&](game& g) { watch(e, g); });
}

} // namespace hustle::desktop
