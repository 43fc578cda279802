// The window's own drawing, pixel by pixel against a sheet that was kept: fields, keys, edges, dots, reels at
// speed, the light of a win. What a picture of the art looks like is the art's; where it stands, other tests
// hold. A change of the drawing moves it: look at details-now.png where the test ran, then keep the new one
// by
//   HUSTLE_KEEP_LOOKS=1 session_tests --gtest_filter='Details*'
#include "art/lamplooks.h"
#include "desktop/painting/lettering.h"
#include "desktop/painting/painting.h"
#include "show/motions.h"
#include "tests/testgame.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QPainter>

#include <algorithm>
#include <functional>
#include <vector>

namespace hustle::desktop {

namespace {

constexpr int sheet_width = 800;
constexpr int rounding = 8;                     // of 255: another compiler's
constexpr int lettering_unlike = 24, field = 4; // of letters: the means of fields of so many pixels

struct detail {
    std::string name;
    QImage picture;
    bool letters; // from the system
};

struct draughtsman {
    testgame machine;
    panel& p = machine.g.p;
    stage show;
    picture_store pictures;
    dot_store dots;
    lamp_store lamps;
    strip_store strips;
    std::vector<detail> all;

    void draw(const std::string& name, QSize size, double pixel, const std::function<void(canvas&)>& paint,
              bool letters = false) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor(30, 70, 50));
        {
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            canvas c{painter, pictures, dots, lamps, strips, show, pixel, {}};
            paint(c);
        }
        all.push_back({name, image, letters});
    }
    void draw(element e, std::string_view text, double pixel, bool pressed = false) {
        at(p, e).visible = true;
        at(p, e).text = text;
        const bool letters = row(e).what != kind::line && !text.empty();
        const QSize size = device_place(p, e, pixel, {}).size();
        const int edge = row(e).what == kind::label ? 14 : 4;
        const QRect box(QPoint(edge, edge), size);
        draw(
            std::string(row(e).name) + " at " + std::to_string(pixel), size + QSize(2 * edge, 2 * edge),
            pixel, [&](canvas& c) { draw_element(c, p, e, box, pressed); }, letters);
    }
};

void draw_forms(draughtsman& d) {
    for (const double pixel : {0.8, 1.3})
        for (const screen_row& s : screen_rows())
            for (const element_row& r : elements_of(s.id)) {
                if (r.what == kind::picture || r.what == kind::button || r.what == kind::clicked ||
                    r.what == kind::entry || r.what == kind::line)
                    continue;
                if ((s.id == screen::main || s.id == screen::feature) && r.id != element::numbernine &&
                    r.id != element::feature_m1)
                    continue; // the art's lamps
                if (s.id == screen::statistics && r.id > element::statistics_text2)
                    continue; // alike
                if (r.what != kind::label || is_lamp(r))
                    d.draw(r.id, "", pixel);
                d.draw(r.id, r.text.size() > 2 ? r.text : "£1,234.50 W", pixel);
                if (r.what == kind::push)
                    d.draw(r.id, r.text, pixel, true);
            }
    for (const screen bare : {screen::About, screen::reelguide})
        d.draw("bare form", {row(bare).width / 60, row(bare).height / 60}, 0.25,
               [&](canvas& c) { draw_bare_form(c, bare); });
    d.draw("the name form's edge", device_place(d.p, element::Entername_background, 0.5, {}).size(), 0.5,
           [&](canvas& c) {
               set_visible(d.p, element::Entername_background, true);
               set_picture(d.p, element::Entername_background, art::none);
               draw_element(c, d.p, element::Entername_background,
                            device_place(d.p, element::Entername_background, 0.5, {}), false);
           });
}

void draw_lines(draughtsman& d) {
    for (const double pixel : {0.7, 1.0, 1.28})
        for (const bool flash : {false, true}) {
            set_lineflash(d.p, element::feature_displayline, flash);
            d.show.belt = {flash, flash ? 4 : 0, 0};
            d.draw(element::feature_displayline, flash ? "  W 120 £ JACKPOT OF LETTERS" : "GET READY", pixel);
        }
    d.show.belt = {};
    for (const std::string_view shots : {"9  ", "  1"})
        d.draw(element::feature_shotbox, shots, 1.28);
    d.draw(element::feature_shotbox, "12", 0.7);
    for (const QSize size : {QSize(400, 40), QSize(281, 19), QSize(130, 14), QSize(60, 30), QSize(24, 10)})
        for (const bool flash : {false, true})
            d.draw("dots", size, 1, [&](canvas& c) {
                draw_dot_line(c.painter, c.dots, QRect({}, size), "3£W", 0x20C0FF, flash, flash ? 2 : 0);
            });
}

void draw_reels(draughtsman& d) {
    constexpr QSize size(45, 42);
    for (const double blur : {0.0, 0.14, 0.16, 1.9, 2.0})
        for (const double at : {15.7, 4.25}) {
            const bool moves = blur > 0.15;
            if (!moves && blur > 0 && at < 5)
                continue;
            reel_motion reel;
            reel.at = at;
            reel.blur = blur;
            d.draw("a reel at " + std::to_string(at) + " as fast as " + std::to_string(blur), size, 1,
                   [&](canvas& c) { draw_reel(c.painter, c.strips, reel, false, 1, QRect({}, size)); });
        }
    for (const bool dollars : {false, true}) {
        reel_motion reel;
        reel.at = 15;
        d.draw("a reel that swells", size, 1, [&](canvas& c) {
            draw_reel(c.painter, c.strips, reel, dollars, dollars ? 1.0015 : 1.06, QRect({}, size));
        });
    }
    reel_motion reel;
    reel.at = 15.5;
    reel.blur = 1;
    d.draw("a large reel in bands", {20, 200}, 1,
           [&](canvas& c) { draw_reel(c.painter, c.strips, reel, false, 1, QRect(0, 10, 20, 180)); });
}

void draw_wins(draughtsman& d) {
    d.show.win.glow = 0.8;
    d.draw("a win's light", {300, 180}, 0.5, [&](canvas& c) { draw_win(c, d.p); });
    d.show.win.glow = 0;
    for (const double pixel : {0.9, 1.5}) {
        d.show.win.coins = {{.born = 0, .x = 30, .y = 30, .opacity = 1},
                            {.born = 0, .x = 75.5, .y = 31, .opacity = 0.5},
                            {.born = 0, .x = 40, .y = 60, .opacity = 0}};
        d.p.dollars = pixel > 1;
        d.draw("coins", {140, 80}, pixel, [&](canvas& c) { draw_win(c, d.p); });
    }
    d.p.dollars = false;
    for (const double pixel : {0.5, 1.5})
        for (const bool pressed : {false, true}) {
            const QSize size = device_place(d.p, element::feature_bomb1, pixel, {}).size();
            d.draw("a picture", size, pixel, [&](canvas& c) {
                draw_element(c, d.p, element::feature_bomb1, QRect({}, size), pressed);
            });
        }
}

void draw_letters(draughtsman& d) {
    for (const QColor outline : {QColor(), QColor(Qt::red)})
        for (const Qt::Alignment align : {Qt::Alignment(Qt::AlignCenter), Qt::AlignLeft | Qt::AlignTop,
                                          Qt::AlignRight | Qt::AlignVCenter})
            for (const bool wrap : {false, true})
                d.draw(
                    "letters", {120, 60}, 1,
                    [&](canvas& c) {
                        lettering look;
                        look.box = QRectF(10, 5, 100, 50);
                        look.largest = 18;
                        look.fore = Qt::yellow;
                        look.outline = outline;
                        look.align = align;
                        look.wrap = wrap;
                        draw_text(c.painter, look, wrap ? "SOME WORDS IN LINES OF ONE BOX" : "ONE LINE £1");
                    },
                    true);
    d.draw(
        "letters that fit nowhere", {40, 40}, 1,
        [&](canvas& c) {
            lettering look;
            look.box = QRectF(10, 10, 12, 12);
            draw_text(c.painter, look, "WWWWWWW");
        },
        true);
}

// All of them side by side and beneath each other; where each stands.
QImage sheet_of(const std::vector<detail>& all, std::vector<QPoint>& places) {
    QPoint next;
    int row_height = 0;
    for (const detail& d : all) {
        if (next.x() + d.picture.width() > sheet_width)
            next = {0, next.y() + row_height}, row_height = 0;
        places.push_back(next);
        next.rx() += d.picture.width();
        row_height = std::max(row_height, d.picture.height());
    }
    QImage sheet(sheet_width, next.y() + row_height, QImage::Format_RGB32);
    sheet.fill(Qt::black);
    QPainter painter(&sheet);
    for (std::size_t i = 0; i < all.size(); ++i)
        painter.drawImage(places[i], all[i].picture);
    return sheet;
}

int most_unlike(const QImage& a, const QImage& b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width() * 4; ++x)
            most = std::max(most, std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]));
    return most;
}

QImage fields_of(const QImage& picture) {
    return picture
        .scaled(picture.width() / field, picture.height() / field, Qt::IgnoreAspectRatio,
                Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

TEST(Details, AreThoseThatWereKept) {
    draughtsman d;
    d.machine.run(650);
    draw_forms(d);
    draw_lines(d);
    draw_reels(d);
    draw_wins(d);
    draw_letters(d);
    std::vector<QPoint> places;
    const QImage now = sheet_of(d.all, places);
    if (qEnvironmentVariableIsSet("HUSTLE_KEEP_LOOKS")) {
        ASSERT_TRUE(now.save(DETAILS));
        return;
    }
    now.save("details-now.png");
    const QImage kept = QImage(DETAILS).convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(kept.size(), now.size());
    const bool has_the_letters = QFontDatabase::families().contains("DejaVu Sans Condensed");
    for (std::size_t i = 0; i < d.all.size(); ++i) {
        const detail& drawn = d.all[i];
        const QImage wanted = kept.copy(QRect(places[i], drawn.picture.size()));
        if (!drawn.letters) {
            EXPECT_LE(most_unlike(wanted, drawn.picture), rounding)
                << drawn.name << " at " << places[i].x() << ", " << places[i].y();
        } else if (has_the_letters) {
            EXPECT_LE(most_unlike(fields_of(wanted), fields_of(drawn.picture)), lettering_unlike)
                << drawn.name << " at " << places[i].x() << ", " << places[i].y();
        }
    }
}

} // namespace

} // namespace hustle::desktop
