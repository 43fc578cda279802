// What a player does to the window itself: keys, clicks, sizes, the View menu and what is kept of it.
#include "core/upward.h"
#include "desktop/window/geometry.h"
#include "desktop/window/hintline.h"
#include "desktop/window/keys.h"
#include "desktop/window/viewmenu.h"
#include "panel/sheet.h"
#include "screens/events.h"
#include "show/hints.h"
#include "show/places.h"
#include "show/spokennames.h"
#include "tests/window/program.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
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

struct paint_counter : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        return count += event->type() == QEvent::Paint, false;
    }
};

TEST(View, AKeyboardAndAScreenReaderFindWhatAMouseDoes) {
    program p;
    p.start();
    screenview& view = p.s.window->main_view();
    const auto button = [&](element e) -> QPushButton* {
        const QString name = QString::fromStdString(spoken_name(p.s.g, e));
        for (QPushButton* b : view.findChildren<QPushButton*>())
            if (b->accessibleName() == name && b->geometry() == view.widget_rect(e))
                return b;
        return nullptr;
    };
    p.until([&] { return button(element::start) != nullptr; }); // once the pictures are drawn ahead
    for (const element_row& r : elements_of(screen::main))
        if (takes_press(r.what) && r.what != kind::entry) {
            EXPECT_NE(button(r.id), nullptr) << r.name;
        }
    const auto lines = view.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const QLabel* l) {
        return l->geometry() == view.widget_rect(element::displayline) &&
               l->accessibleName().toStdString() == spoken_name(p.s.g, element::displayline);
    }));
    for (const QLabel* l : lines) {
        EXPECT_TRUE(!l->accessibleName().isEmpty() || l->geometry() == view.widget_rect(element::displayline))
            << "a reader would stop at nothing";
    }
    QPushButton* const start = button(element::start);
    const QRect ring = start->geometry();
    const QImage without = view.grab(ring).toImage();
    start->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(view.grab(ring).toImage(), without) << "a mouse needs no ring";
    start->clearFocus();
    p.until([&] { return p.s.window->isActiveWindow(); });
    paint_counter painted;
    start->installEventFilter(&painted);
    start->setFocus(Qt::TabFocusReason);
    p.until([&] { return painted.count > 0; });
    EXPECT_NE(view.grab(ring).toImage(), without);
    const auto credits = p.s.g.m.credits;
    QTest::keyClick(start, Qt::Key_Return);
    EXPECT_EQ(p.s.g.m.credits, credits - 1);
    EXPECT_FALSE(start->isEnabled()) << "the reels turn";
    p.until([&] { return is_enabled(p.s.g.p, element::start); });
    EXPECT_TRUE(start->isEnabled());
    EXPECT_TRUE(start->hasFocus()) << "it comes back";
}

TEST(View, TheNameFormTakesLettersAndWarnsOfThoseThatAreNotSeen) {
    program p;
    p.start();
    load_screen(p.s.g, screen::Entername);
    refresh(p.s);
    QWidget* const form = p.s.side[static_cast<std::size_t>(screen::Entername)];
    ASSERT_NE(form, nullptr);
    auto* const box = form->findChild<QLineEdit*>();
    ASSERT_NE(box, nullptr);
    const QLabel* warning = nullptr;
    for (const QLabel* label : form->findChildren<QLabel*>())
        if (label->text().contains("fifteen"))
            warning = label;
    ASSERT_NE(warning, nullptr);
    box->clear();
    QTest::keyClicks(box, "Ada Lovelace Ki"); // fifteen
    EXPECT_EQ(caption(p.s.g.p, element::Entername_Text1), "Ada Lovelace Ki");
    EXPECT_FALSE(warning->isVisible());
    QTest::keyClicks(box, "n");
    EXPECT_TRUE(warning->isVisible());
    EXPECT_GT(warning->geometry().top(), box->geometry().bottom());
    EXPECT_LT(warning->font().pixelSize(), box->font().pixelSize());
    EXPECT_LT(box->font().pixelSize(), box->height());
    EXPECT_EQ(p.s.view.player, "Ada Lovelace Kin") << "it stands there the next time";
    send(p.s, {input::kind::type, screen::Entername, element::Entername_Text1, 0, "A\x1b\nda\x7f"});
    EXPECT_EQ(caption(p.s.g.p, element::Entername_Text1), "Ada") << "what no script can tell again";
}

TEST(View, AWindowOfALargerScreenComesUpOnThisOne) {
    view_settings kept;
    {
        program p;
        p.start();
        p.s.window->resize(1500, 500);
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

TEST(View, TheHintLineSaysWhatTheMachineTakes) {
    program p;
    p.start();
    hintline* line = nullptr;
    for (QWidget* w : p.s.window->findChildren<QWidget*>())
        if (auto* const found = dynamic_cast<hintline*>(w))
            line = found;
    ASSERT_NE(line, nullptr);
    const QList<QLabel*> labels = line->findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 2);
    refresh(p.s); // else it is as the last tick left it
    EXPECT_EQ(labels[0]->text().toStdString(), hint(p.s.g));
    EXPECT_EQ(labels[1]->text().toStdString(), bank_label(p.s.g) + "   " + credits_label(p.s.g));
    send(p.s, {input::kind::press, screen::main, element::start});
    p.until([&] { return p.s.g.p.now > 2000; });
    refresh(p.s);
    EXPECT_EQ(labels[0]->text().toStdString(), hint(p.s.g));
    EXPECT_EQ(labels[1]->text().toStdString(), bank_label(p.s.g) + "   " + credits_label(p.s.g));
    for (const int width : {320, 800, 2400}) {
        const int high = hintline::height_at(width);
        line->resize(width, high);
        EXPECT_EQ(line->height(), high);
        EXPECT_GT(high, labels[0]->font().pixelSize());
        EXPECT_GE(labels[0]->font().pixelSize(), 10);
        EXPECT_EQ(labels[1]->font(), labels[0]->font());
    }
    EXPECT_GT(hintline::height_at(2400), hintline::height_at(800));
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

TEST(View, TheBoardIsReadOutAsMainIs) {
    program p;
    p.start();
    load_screen(p.s.g, screen::feature);
    screenview& board = p.s.window->board_view();
    const auto buttons =
        std::count_if(elements_of(screen::feature).begin(), elements_of(screen::feature).end(),
                      [](const element_row& r) { return takes_press(r.what); });
    p.until([&] { return !board.findChildren<QPushButton*>().isEmpty(); }); // once it is drawn ahead
    EXPECT_EQ(board.findChildren<QPushButton*>().size(), buttons);
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

} // namespace

} // namespace hustle::desktop
