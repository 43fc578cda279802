// What the window shows: painted piece by piece as the machine goes from state to state it must be the
// picture that a window painted at once would be, and each lamp and line must be seen, in its own place.
#include "art/lamplooks.h"
#include "core/upward.h"
#include "desktop/shot/still.h"
#include "panel/sheet.h"
#include "script/commands.h"
#include "script/reading.h"
#include "tests/window/program.h"
#include "trail/trail.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QPainter>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <sstream>

namespace hustle::desktop {

namespace {

struct seen : program {
    seen() {
        start();
        ++s.held; // the panel changes by our hand alone
        s.view.hints = false;
        s.window->show_hints();
    }
    ~seen() { --s.held; }

    void settle(int ms = 40) {
        refresh(s);
        QElapsedTimer since;
        since.start();
        do
            QApplication::processEvents(QEventLoop::AllEvents, 5);
        while (since.elapsed() < ms);
    }
    void stand_in(const QString& script) {
        std::string text;
        ASSERT_EQ(script::read_script_file(script.toStdString(), text), "");
        std::ostringstream unheard;
        script::run_script(text, "state", unheard, unheard, [this](const game& g) {
            s.g.m = g.m, s.g.b = g.b, s.g.t = g.t, s.g.p = g.p;
            for (element_state& e : s.g.p.elements)
                e.touched = true;
        });
        settle(100);
    }
    // The window's pixels as they stand on the screen, painted by parts; and as it would paint them now.
    QImage on_screen() const {
        return s.window->screen()
            ->grabWindow(s.window->winId())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }
    QImage painted_anew() const { return s.window->grab().toImage().convertToFormat(QImage::Format_RGB32); }

    // What is painted by parts comes to be what is painted whole, and stays so: pictures may still be drawn.
    bool comes_whole() {
        for (int tries = 0; tries < 100; ++tries) {
            if (on_screen() == painted_anew())
                return true;
            settle(50);
        }
        return false;
    }

    // What a change of one element changes on the screen.
    template <class First, class Second> QRect changed_by(const First& first, const Second& second) {
        first(s.g.p);
        settle();
        const QImage before = on_screen();
        second(s.g.p);
        settle();
        const QImage after = on_screen();
        QRect changed;
        for (int y = 0; y < after.height(); ++y)
            for (int x = 0; x < after.width(); ++x)
                if (before.pixel(x, y) != after.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
        return changed;
    }
    QRect place(element e) {
        const screenview& view =
            row(e).where == screen::main ? s.window->main_view() : s.window->board_view();
        return view.widget_rect(e).translated(view.mapTo(s.window, QPoint()));
    }
    // Of a lit label's glow; a picture's edge lies between two pixels at most sizes.
    static QMargins reach_of(element e) {
        const int reach = row(e).what == kind::label ? glow_reach + 2 : 2;
        return {reach, reach, reach, reach};
    }
    void changes_itself_alone(element e, QRect changed) {
        const std::string name(row(e).name);
        EXPECT_TRUE(comes_whole()) << name << " leaves something stale";
        ASSERT_FALSE(changed.isEmpty()) << name << " is not seen to change";
        EXPECT_TRUE(place(e).marginsAdded(reach_of(e)).contains(changed))
            << name << " changes " << changed.x() << "," << changed.y() << " " << changed.width() << "x"
            << changed.height();
    }
};

// The longest text that the machine puts there: its ledgers hold what half a million plays stake.
std::string longest(const element_row& r) {
    if (r.what == kind::line)
        return std::string(26, 'W');
    if (r.what == kind::textbox && r.text.find_first_not_of(' ') == std::string_view::npos)
        return r.where == screen::statistics ? "£123,456.75" : std::string(15, 'W');
    if (r.text.find_first_not_of(' ') == std::string_view::npos)
        return r.where == screen::Highscore ? std::string(15, 'W') : "£12345.67";
    return std::string(r.text);
}

TEST(Seen, NothingIsPaintedOutsideItsPlace) {
    const program machine;
    panel p = machine.s.g.p;
    picture_store pictures;
    lamp_store lamps;
    strip_store strips;
    const stage show;
    for (const double pixel : {0.6, 1.0, 1.28, 3.0}) {
        dot_store dots;
        for (std::size_t i = 0; i < element_count; ++i) {
            const element_row& r = row(static_cast<element>(i));
            if (r.what == kind::entry)
                continue;
            element_state& state = at(p, r.id);
            state.visible = true;
            state.text = longest(r);
            const bool shines = is_lamp(r) || r.what == kind::line;
            const int reach = shines ? static_cast<int>(std::ceil(glow_reach * pixel)) + 1 : 1;
            const QRect box = QRect(QPoint(60, 60), device_place(p, r.id, pixel, {}).size());
            QImage image(box.size() + QSize(120, 120), QImage::Format_RGB32);
            image.fill(Qt::magenta);
            {
                QPainter painter(&image);
                painter.setRenderHint(QPainter::Antialiasing);
                canvas c{painter, pictures, dots, lamps, strips, show, pixel, {}};
                draw_element(c, p, r.id, box, false);
            }
            int outside = 0, inside = 0;
            const QRect allowed = box.adjusted(-reach, -reach, reach, reach);
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    if (image.pixelColor(x, y) != QColor(Qt::magenta))
                        ++(allowed.contains(x, y) ? inside : outside);
            EXPECT_EQ(outside, 0) << r.name << " at " << pixel << ": " << state.text;
            const bool bare = r.what == kind::picture || r.what == kind::clicked || r.what == kind::button;
            EXPECT_TRUE(bare || inside > 0) << r.name << " at " << pixel << " shows nothing";
        }
    }
}

TEST(Seen, PaintedByPartsIsPaintedWhole) {
    seen w;
    int compared = 0;
    for (const QString& name : QDir(STATES).entryList({"*.txt"}, QDir::Files, QDir::Name)) {
        w.stand_in(QDir(STATES).filePath(name));
        if (w.painted_anew() != w.painted_anew())
            continue; // something moves in it
        ++compared;
        EXPECT_TRUE(w.comes_whole()) << name.toStdString();
        w.s.window->resize(compared % 2 == 0 ? QSize(800, 620) : QSize(1000, 760));
        w.settle(50);
        EXPECT_TRUE(w.comes_whole()) << name.toStdString() << " at another size";
    }
    EXPECT_GE(compared, 8);
}

// The lit look of a dark lamp's picture; art::none where it has none.
art light_of(art dark) {
    std::string wanted(name(dark));
    const std::size_t at = wanted.find("dark");
    if (at == std::string::npos)
        return art::none;
    wanted.replace(at, 4, "light");
    for (std::size_t a = 0; a < art_count; ++a)
        if (name(static_cast<art>(a)) == wanted)
            return static_cast<art>(a);
    return art::none;
}

// The help pages' pictures are painted at once, the window's part by part as it needs them.
TEST(Seen, TheWindowPaintsWhatAStillPictureShows) {
    seen w;
    for (const screen where : {screen::main, screen::feature}) {
        if (where == screen::feature)
            load_screen(w.s.g, where);
        w.s.window->resize(820, 700); // as wide as the screen's picture is then
        w.settle(300);
        screenview& view = where == screen::main ? w.s.window->main_view() : w.s.window->board_view();
        const QImage there = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QImage still = painted(w.s.g, where, view.width());
        const element first = elements_of(where).front().id;
        const QPoint corner = view.device_rect(first).topLeft() -
                              device_place(w.s.g.p, first, view.width() / 800.0, {}).topLeft();
        int unlike = 0;
        for (int y = 2; y < still.height() - 2; ++y)
            for (int x = 2; x < still.width() - 2; ++x)
                unlike += there.pixel(corner + QPoint(x, y)) != still.pixel(x, y);
        EXPECT_EQ(unlike, 0) << row(where).name;
    }
    unload_screen(w.s.g, screen::feature);
}

TEST(Seen, AWinGlowsAndLetsCoinsRise) {
    seen w;
    w.settle(300);
    const QImage before = w.painted_anew();
    w.s.show.win.glow = 1;
    const QImage glowing = w.painted_anew();
    EXPECT_NE(glowing, before);
    w.s.show.win.coins.push_back({.born = 0, .x = 352, .y = 284, .opacity = 1});
    EXPECT_NE(w.painted_anew(), glowing);
    w.s.show.win = {};
    EXPECT_EQ(w.painted_anew(), before);
}

TEST(Seen, AButtonGoesDownUnderTheMouseAndComesUp) {
    seen w;
    w.settle(300);
    screenview& view = w.s.window->main_view();
    const QPoint middle = view.widget_rect(element::start).center();
    const QImage up = w.on_screen();
    QTest::mousePress(&view, Qt::LeftButton, {}, middle);
    EXPECT_TRUE(w.comes_whole());
    EXPECT_NE(w.on_screen(), up);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, middle);
    EXPECT_TRUE(w.comes_whole());
    EXPECT_EQ(w.on_screen(), up);
    load_screen(w.s.g, screen::About);
    w.settle(300);
    screenview* const form = w.s.side[static_cast<std::size_t>(screen::About)];
    ASSERT_NE(form, nullptr);
    for (const element_row& r : elements_of(screen::About))
        if (r.what == kind::push) {
            paint_counter painted;
            form->installEventFilter(&painted);
            QTest::mousePress(form, Qt::LeftButton, {}, form->widget_rect(r.id).center());
            w.settle(100);
            EXPECT_GT(painted.count, 0) << r.name << " acts when it comes up, and shows that it is down";
            QTest::mouseRelease(form, Qt::LeftButton, {}, QPoint());
        }
    unload_screen(w.s.g, screen::About);
}

TEST(Seen, EachLampAndLineChangesItsOwnPlaceAlone) {
    seen w;
    w.s.window->resize(800, 620);
    w.settle(300);
    int lamps = 0;
    for (const screen where : {screen::main, screen::feature}) {
        if (where == screen::feature)
            load_screen(w.s.g, screen::feature);
        w.settle(300);
        for (const element_row& r : elements_of(where)) {
            const art light = light_of(r.picture);
            if (light == art::none || !r.visible)
                continue;
            ++lamps;
            w.changes_itself_alone(r.id, w.changed_by([&](panel& p) { set_picture(p, r.id, r.picture); },
                                                      [&](panel& p) { set_picture(p, r.id, light); }));
        }
        const element line = where == screen::main ? element::displayline : element::feature_displayline;
        w.changes_itself_alone(
            line, w.changed_by([&](panel& p) { set_caption(p, line, ""); },
                               [&](panel& p) { set_caption(p, line, "WWWWWWWWWWWWWWWWWWWWWWWWWW"); }));
    }
    EXPECT_GE(lamps, 30);
    unload_screen(w.s.g, screen::feature);
    w.settle(300);
    for (int n = 1; n <= 9; ++n)
        w.changes_itself_alone(
            nth(element::numberone, n),
            w.changed_by([&](panel&) { dark_lamp(w.s.g, n); }, [&](panel&) { light_lamp(w.s.g, n); }));
}

} // namespace

} // namespace hustle::desktop
