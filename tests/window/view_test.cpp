// What a player does to the window itself: keys, clicks, the View menu and what is kept of it.
#include "core/upward.h"
#include "desktop/window/keys.h"
#include "desktop/window/viewmenu.h"
#include "panel/sheet.h"
#include "show/places.h"
#include "tests/window/program.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMouseEvent>
#include <QSettings>
#include <QTest>

#include <algorithm>

#include <sys/stat.h>

namespace hustle::desktop {

namespace {

TEST(View, IsKeptAndADamagedPartOfItIsAsAtTheFirstStart) {
    const program p; // its folder
    view_settings view;
    EXPECT_TRUE(view.hints && view.recording && view.volume == 100);
    view = {true, true, false, false, true, 25, true, "ANNA", "place"};
    save_view_settings(view);
    const view_settings read = load_view_settings();
    EXPECT_TRUE(read.flashing_asked && read.reduced_flashing && read.muted && read.full_screen);
    EXPECT_FALSE(read.hints || read.recording);
    EXPECT_EQ(read.volume, 25);
    EXPECT_EQ(read.player, "ANNA");
    EXPECT_EQ(read.place, "place");
    for (const auto& [stored, volume] : {std::pair{"900", 100}, {"-3", 0}, {"loud", 0}}) {
        QFile file(p.folder.filePath("view.ini"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(QByteArray("[General]\nvolume=") + stored + "\n");
        file.close();
        EXPECT_EQ(load_view_settings().volume, volume) << stored;
    }
    ASSERT_TRUE(QFile::remove(p.folder.filePath("view.ini")));
    ASSERT_EQ(::mkfifo(p.folder.filePath("view.ini").toUtf8().constData(), 0600), 0);
    save_view_settings(view);
    EXPECT_EQ(load_view_settings().player, "") << "nothing waits for a writer";
    qunsetenv("HUSTLE_DATA"); // a player's own place for settings
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, p.folder.filePath("settings"));
    save_view_settings(view);
    EXPECT_EQ(load_view_settings().player, "ANNA");
    EXPECT_FALSE(QDir(p.folder.filePath("settings")).isEmpty());
}

TEST(View, AsksOnceAboutFlashingAndTakesTheAnswer) {
    for (const char* const answer :
         {"&Reduce flashing", "&Flash as the real machine does", "to close the box"}) {
        program p;
        p.s.view.flashing_asked = false;
        p.button = answer;
        ask_about_flashing(p.s);
        const bool reduced = std::string_view(answer) != "&Flash as the real machine does";
        EXPECT_EQ(p.s.view.reduced_flashing, reduced) << answer;
        EXPECT_EQ(load_view_settings().reduced_flashing, reduced) << answer;
        ask_about_flashing(p.s);
        EXPECT_EQ(p.told.size(), 1);
    }
}

TEST(View, KeysOfItWorkInASideWindowToo) {
    program p;
    p.start();
    send(p.s, {input::kind::press, screen::main, element::rguidemenu});
    QWidget* const guide = p.s.side[static_cast<std::size_t>(screen::reelguide)];
    ASSERT_NE(guide, nullptr);
    p.until([&] { return guide->isActiveWindow(); });
    QTest::keyClick(guide, Qt::Key_M, Qt::ControlModifier);
    EXPECT_TRUE(p.s.view.muted);
    EXPECT_TRUE(load_view_settings().muted);
    const int before = p.s.window->main_view().width();
    QTest::keyClick(guide, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(p.s.window->main_view().width(), before * 0.8, 2);
    QTest::keyClick(guide, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(p.s.window->main_view().width(), before, 3);
    QTest::keyClick(guide, Qt::Key_F11);
    EXPECT_TRUE(p.s.window->isFullScreen());
    QTest::keyClick(p.s.window, Qt::Key_Escape);
    EXPECT_FALSE(p.s.window->isFullScreen());
    QTest::keyClick(guide, Qt::Key_Escape); // closes it
    EXPECT_FALSE(is_loaded(p.s.g.p, screen::reelguide));
    QTest::keyClick(p.s.window, Qt::Key_Q, Qt::ControlModifier);
    p.until_over();
}

TEST(View, EntriesOfItDoAsTheySay) {
    program p;
    p.start();
    const auto take = [&](const QString& text) {
        for (QAction* a : p.s.window->findChildren<QAction*>())
            if (a->text().remove('&') == text)
                return a->trigger();
        ADD_FAILURE() << text.toStdString();
    };
    const auto ticked = [&](const QString& text) {
        const auto all = p.s.window->findChildren<QAction*>();
        return std::any_of(all.begin(), all.end(),
                           [&](QAction* a) { return a->text().remove('&') == text && a->isChecked(); });
    };
    for (const QString colour : {"Blue LED", "Red LED"}) {
        take(colour);
        EXPECT_EQ(ticked("Blue LED"), colour == "Blue LED");
        EXPECT_EQ(ticked("Red LED"), colour == "Red LED");
    }
    QStringList steps;
    for (const QMenu* menu : p.s.window->findChildren<QMenu*>())
        if (menu->title() == "&Zoom")
            for (const QAction* step : menu->actions())
                steps += step->text();
    EXPECT_EQ(steps.join(' '), "50 % 75 % 100 % 125 % 150 % 200 % 300 %  &Larger &Smaller");
    take("50 %");
    EXPECT_EQ(p.s.window->main_view().width(), p.s.window->main_view().panel_size().width() / 2);
    p.s.window->resize(1, 1);
    EXPECT_EQ(p.s.window->main_view().size(), QSize(280, 197)) << "as small as it can be read";
    take("25 %");
    EXPECT_EQ(load_view_settings().volume, 25);
    EXPECT_EQ(loudness(p.s), 25);
    take("Mute");
    EXPECT_EQ(loudness(p.s), 0);
    take("Mute");
    send(p.s, {input::kind::press, screen::main, element::soundoff});
    EXPECT_EQ(loudness(p.s), 0) << "the machine's own switch";
    take("Hints");
    EXPECT_FALSE(p.s.view.hints);
    take("Reduced Flashing");
    EXPECT_TRUE(p.s.view.reduced_flashing);
    take("Record the Session");
    EXPECT_FALSE(load_view_settings().recording);
}

// From the place that it has on the panel, at whatever size and however many pixels to a point.
TEST(View, AButtonLiesWhereItIsSeen) {
    program p;
    p.start();
    ++p.s.held;
    for (const QSize size : {QSize(640, 560), QSize(900, 640)})
        for (const screen where : {screen::main, screen::feature}) {
            if (where == screen::feature && !is_loaded(p.s.g.p, where))
                load_screen(p.s.g, where);
            p.s.window->resize(size);
            refresh(p.s);
            screenview& view = where == screen::main ? p.s.window->main_view() : p.s.window->board_view();
            const QSizeF panel = view.panel_size();
            const double zoom = std::min(view.width() / panel.width(), view.height() / panel.height());
            const QPointF corner((view.width() - panel.width() * zoom) / 2,
                                 (view.height() - panel.height() * zoom) / 2);
            for (const element_row& r : elements_of(where)) {
                if (!takes_press(r.what) || !is_visible(p.s.g.p, r.id))
                    continue;
                const rect at = seen_place(p.s.g.p, r.id);
                for (const bool live : {true, false}) {
                    set_enabled(p.s.g.p, r.id, live);
                    for (const QPointF share : {QPointF(0.1, 0.1), QPointF(0.9, 0.9)}) {
                        const QPointF point =
                            corner + QPointF(at.left + share.x() * at.width, at.top + share.y() * at.height) *
                                         (zoom / 15);
                        QMouseEvent over(QEvent::MouseMove, point, view.mapToGlobal(point), Qt::NoButton, {},
                                         {});
                        QApplication::sendEvent(&view, &over);
                        EXPECT_EQ(view.cursor().shape() == Qt::PointingHandCursor, live)
                            << r.name << " at " << size.width();
                    }
                }
            }
            unload_screen(p.s.g, screen::feature);
        }
    --p.s.held;
}

// In several parts at once, as lamps far from one another are.
TEST(View, APartIsPaintedAsTheWholeIs) {
    program p;
    p.start();
    screenview& view = p.s.window->main_view();
    ++p.s.held;
    const QImage whole = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRegion parts = QRegion(view.widget_rect(element::start))
                              .united(view.widget_rect(element::hold1))
                              .united(view.widget_rect(element::displayline))
                              .united(view.widget_rect(element::numberone));
    QImage painted(whole.size(), QImage::Format_RGB32);
    painted.setDevicePixelRatio(view.devicePixelRatioF());
    painted.fill(Qt::magenta);
    view.render(&painted, parts.boundingRect().topLeft(), parts);
    int unlike = 0, points = 0;
    const double ratio = view.devicePixelRatioF();
    for (const QRect& part : parts)
        for (int y = qCeil(part.top() * ratio); y < qFloor(part.bottom() * ratio); ++y)
            for (int x = qCeil(part.left() * ratio); x < qFloor(part.right() * ratio); ++x, ++points)
                unlike += whole.pixel(x, y) != painted.pixel(x, y);
    EXPECT_GT(points, 1000);
    EXPECT_EQ(unlike, 0) << "of " << points;
    --p.s.held;
}

TEST(View, KeysAreTheMachinesOwn) {
    const auto code = [](int key, Qt::KeyboardModifiers with = {}) {
        return machine_key(QKeyEvent(QEvent::KeyPress, key, with));
    };
    EXPECT_EQ(code(Qt::Key_Space), 32);
    EXPECT_EQ(code(Qt::Key_Return), 13);
    EXPECT_EQ(code(Qt::Key_Enter, Qt::KeypadModifier), 13);
    EXPECT_EQ(code(Qt::Key_F1), 112);
    EXPECT_EQ(code(Qt::Key_C), 67);
    EXPECT_EQ(code(Qt::Key_QuoteLeft), 192);
    EXPECT_EQ(code(Qt::Key_notsign), 223);
    for (int figure = 0; figure <= 3; ++figure) {
        EXPECT_EQ(code(Qt::Key_0 + figure), '0' + figure);
        EXPECT_EQ(code(Qt::Key_0 + figure, Qt::KeypadModifier), 96 + figure);
    }
    for (const int other : {Qt::Key_4, Qt::Key_Slash, Qt::Key_A, Qt::Key_F2, Qt::Key_Escape})
        EXPECT_EQ(code(other), 0) << other;
    for (const auto with : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        EXPECT_EQ(code(Qt::Key_C, with), 0);
}

} // namespace

} // namespace hustle::desktop
