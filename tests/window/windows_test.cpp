// The windows themselves: their sizes and places, which of them is in front, and whose a form is.
#include "core/upward.h"
#include "desktop/session/motion.h"
#include "desktop/window/geometry.h"
#include "panel/sheet.h"
#include "screens/events.h"
#include "tests/window/program.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace hustle::desktop {

namespace {

TEST(Session, OpensAWindowWithNoButtonUnderEnterUntilTabChoosesOne) {
    for (const bool active : {false, true}) { // a busy desktop lets it wait for the keys
        program p;
        p.start();
        load_screen(p.s.g, screen::Highscore);
        settle(p.s.g);
        refresh(p.s);
        QWidget* const table = p.s.side[static_cast<std::size_t>(screen::Highscore)];
        ASSERT_NE(table, nullptr);
        if (active)
            p.until([&] { return table->isActiveWindow(); });
        const auto key = [&](int code) {
            QWidget* const focus = table->focusWidget() != nullptr ? table->focusWidget() : table;
            QKeyEvent down(QEvent::KeyPress, code, Qt::NoModifier),
                up(QEvent::KeyRelease, code, Qt::NoModifier);
            QApplication::sendEvent(focus, &down);
            QApplication::sendEvent(focus, &up);
        };
        key(Qt::Key_Return);
        EXPECT_TRUE(is_loaded(p.s.g.p, screen::Highscore)) << "active " << active;
        key(Qt::Key_Tab);
        key(active ? Qt::Key_Space : Qt::Key_Return); // the first button leads back
        EXPECT_FALSE(is_loaded(p.s.g.p, screen::Highscore)) << "active " << active;
    }
}

TEST(Session, ComesBackWithTheSizeItHasOutsideFullScreen) {
    const QSize wanted(700, 600);
    view_settings kept;
    kept.flashing_asked = true;
    const auto leave = [&](program& p) {
        end_session(p.s);
        kept = load_view_settings();
    };
    {
        program p;
        p.start();
        p.s.window->resize(wanted);
        p.s.window->findChild<QAction*>("full_screen")->setChecked(true);
        EXPECT_TRUE(p.s.window->isFullScreen());
        EXPECT_TRUE(p.s.window->menuBar()->isVisible()) << "Game, New must be in reach";
        leave(p);
    }
    {
        program p;
        p.s.view = kept;
        p.start();
        EXPECT_TRUE(p.s.window->isFullScreen());
        zoom_main_window(*p.s.window, 0.75); // leaves it
        EXPECT_FALSE(p.s.view.full_screen);
        EXPECT_EQ(p.s.window->main_view().width(), 600);
        p.s.window->resize(wanted);
        leave(p);
    }
    program p;
    p.s.view = kept;
    p.start();
    EXPECT_FALSE(p.s.window->isFullScreen());
    EXPECT_EQ(p.s.window->size(), wanted);
}

// The window manager learns whose a form is from a dialog alone: any other can be lost behind main.
TEST(Session, OpensItsFormsAboveMain) {
    program p;
    p.start();
    send(p.s, {input::kind::press, screen::main, element::rguidemenu});
    const QWidget* const guide = p.s.side[static_cast<std::size_t>(screen::reelguide)];
    ASSERT_NE(guide, nullptr);
    EXPECT_EQ(guide->windowType(), Qt::Dialog);
    EXPECT_EQ(guide->windowHandle()->transientParent(), p.s.window->windowHandle());
}

TEST(Session, ComesToTheFrontWithTheWindowThatWasThere) {
    program p;
    p.start();
    p.s.window->showMinimized();
    come_to_front(p.s);
    EXPECT_FALSE(p.s.window->isMinimized());
    send(p.s, {input::kind::press, screen::main, element::rguidemenu});
    QWidget* const guide = p.s.side[static_cast<std::size_t>(screen::reelguide)];
    guide->showMinimized();
    come_to_front(p.s);
    EXPECT_FALSE(guide->isMinimized());
}

// Within the screen with what a window manager may draw around it, wherever it stood.
TEST(View, AWindowStaysOnItsScreen) {
    program p;
    p.start();
    mainwindow& window = *p.s.window;
    const QRect room = window.screen()->availableGeometry();
    const auto whole = [&] { return QRect(window.pos(), window.size() + QSize(12, 44)); };
    EXPECT_LE((whole().center() - room.center()).manhattanLength(), 2);
    const QSize main = window.main_view().size();
    EXPECT_EQ(window.size() - main, window.bars(window.width())) << "nothing but the bars stands around main";
    for (const QPoint place : {QPoint(-300, -300), QPoint(700, 700)}) {
        window.move(place);
        zoom_main_window(window, 0.75);
        QRect wanted(room.topLeft(), whole().size());
        if (place.x() > 0)
            wanted.moveBottomRight(room.bottomRight());
        EXPECT_EQ(whole(), wanted);
    }
    zoom_main_window(window, 3);
    EXPECT_EQ(whole(), room);
}

TEST(View, AWindowOfALargerScreenComesUpOnThisOne) {
    for (const QSize size : {QSize(1500, 500), QSize(500, 1500)}) {
        view_settings kept;
        {
            program p;
            p.start();
            p.s.window->resize(size);
            end_session(p.s);
            kept = load_view_settings();
        }
        program p;
        p.s.view = kept;
        p.start();
        const QRect room = p.s.window->screen()->availableGeometry();
        EXPECT_TRUE(room.contains(p.s.window->geometry()))
            << p.s.window->width() << " by " << p.s.window->height() << " on " << room.width();
    }
}

TEST(View, ASideWindowHasTheScaleOfMainWhereThereIsRoom) {
    program p;
    p.start();
    const QSize room = p.s.window->screen()->availableSize() * 0.9;
    const double zoom = std::max(0.75, main_window_zoom(*p.s.window));
    for (const screen s : {screen::reelguide, screen::wintable, screen::statistics, screen::Highscore}) {
        load_screen(p.s.g, s);
        settle(p.s.g);
        refresh(p.s);
        const screenview* const view = p.s.side[static_cast<std::size_t>(s)];
        ASSERT_NE(view, nullptr);
        const QSizeF wanted = QSizeF(view->panel_size()) * zoom;
        if (wanted.width() < room.width() && wanted.height() < room.height() - 40) {
            EXPECT_EQ(view->size(), wanted.toSize()) << row(s).name;
        } else {
            EXPECT_LT(view->width() - 1, room.width()) << row(s).name;
            EXPECT_LT(view->height() - 1, room.height()) << row(s).name;
        }
        unload_screen(p.s.g, s);
    }
}

TEST(View, TheFirstSizeIsTheLargestStepThatFits) {
    const QSize panel(800, 600), around(20, 70);
    const auto zoom = [&](QSize area) { return fitting_size(panel, around, area).width() / 800.0; };
    const auto area_for = [&](double step) { // just enough, with a twentieth left free
        return QSize(qCeil((800 * step + 20) / 0.95), qCeil((600 * step + 70) / 0.95));
    };
    for (const double step : {3.0, 2.5, 2.0, 1.75, 1.5, 1.25, 1.0, 0.9, 0.8, 0.75, 0.6, 0.5}) {
        EXPECT_DOUBLE_EQ(zoom(area_for(step)), step);
        EXPECT_LT(zoom(area_for(step) - QSize(2, 0)), step);
        EXPECT_LT(zoom(area_for(step) - QSize(0, 2)), step);
    }
    EXPECT_DOUBLE_EQ(zoom({9000, 9000}), 3);
    EXPECT_NEAR(zoom(area_for(0.45)), 0.45, 0.005); // smaller than every step: as it fits
    EXPECT_DOUBLE_EQ(zoom({100, 100}), 0.4);
}

TEST(View, PaintsAtTheDisplaysRate) {
    for (int rate = 31; rate <= 160; ++rate)
        EXPECT_NEAR(picture_ms(rate), 1000.0 / rate, 1) << rate;
    for (const auto& [rate, ms] : {std::pair{0.0, 33}, {24.0, 33}, {500.0, 6}})
        EXPECT_EQ(picture_ms(rate), ms) << rate;
}

} // namespace

} // namespace hustle::desktop
