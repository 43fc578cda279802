// A player's hands on the real widgets: the mouse on each button, keys that are held, entries that are taken
// twice; and what the window draws before it is wanted.
#include "core/upward.h"
#include "desktop/painting/backdrop.h"
#include "desktop/window/geometry.h"
#include "panel/sheet.h"
#include "screens/events.h"
#include "tests/window/program.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStackedWidget>
#include <QTest>

#include <algorithm>
#include <set>

namespace hustle::desktop {

namespace {

struct hands : program {
    hands() {
        start();
        s.second.stop(); // what the machine takes stands in the record until it is looked at
    }
    screenview& view(screen where) {
        return where == screen::main      ? s.window->main_view()
               : where == screen::feature ? s.window->board_view()
                                          : *s.side[static_cast<std::size_t>(where)];
    }
    // A side screen, or the board, on show.
    screenview& open(screen where) {
        load_screen(s.g, where);
        settle(s.g);
        refresh(s);
        return view(where);
    }
    // The presses, keys and closes that the machine was given; it stands afterwards as it stood before.
    template <class Deed> std::string taken(const Deed& deed) {
        const machine m = s.g.m;
        const board b = s.g.b;
        const panel before = s.g.p;
        s.record.text.clear();
        deed();
        std::string inputs;
        std::istringstream lines(s.record.text);
        for (std::string line; std::getline(lines, line);)
            if (line.starts_with("press") || line.starts_with("key") || line.starts_with("close"))
                inputs.append(line).append(";");
        s.g.m = m, s.g.b = b, s.g.p = before;
        refresh(s);
        return inputs;
    }
};

// A button of the cabinet goes with the finger, whichever of the mouse; any other when it comes up over it.
TEST(Hands, EachButtonIsPressedWhereItIsSeen) {
    hands h;
    for (const screen where :
         {screen::main, screen::feature, screen::statistics, screen::Highscore, screen::About}) {
        if (where != screen::main)
            h.open(where);
        for (const element_row& r : elements_of(where)) {
            if (!takes_press(r.what))
                continue;
            if (r.id == element::feature_exchangebutton || r.id == element::feature_stopfeature)
                set_visible(
                    h.s.g.p,
                    nth(element::feature_exchangebutton, r.id == element::feature_exchangebutton ? 2 : 1),
                    false);
            set_visible(h.s.g.p, r.id, true);
            set_enabled(h.s.g.p, r.id, true);
            const QPoint there = h.view(where).widget_rect(r.id).center();
            const QPoint away(h.view(where).width() / 2, h.view(where).height() - 1);
            const std::string pressed =
                std::string("press ").append(row(where).name).append(".").append(r.name).append(";");
            const bool at_once = r.what == kind::button;
            // Its window may close, and another one comes up with the state that was before.
            const auto click = [&](Qt::MouseButton button, QPoint up) {
                return h.taken([&] {
                    QTest::mousePress(&h.view(where), button, {}, there);
                    QTest::mouseRelease(&h.view(where), button, {}, up);
                });
            };
            EXPECT_EQ(click(Qt::LeftButton, there), pressed) << r.name;
            EXPECT_EQ(click(Qt::LeftButton, away), at_once ? pressed : "") << r.name;
            EXPECT_EQ(click(Qt::RightButton, there), at_once ? pressed : "") << r.name;
            set_enabled(h.s.g.p, r.id, false);
            EXPECT_EQ(click(Qt::LeftButton, there), at_once ? pressed : "")
                << r.name << ": what is dark is the machine's to refuse";
        }
        if (where == screen::feature)
            unload_screen(h.s.g, where);
    }
}

TEST(Hands, AQuickSecondPressCountsAndAHeldKeyDoesNot) {
    hands h;
    screenview& view = h.view(screen::main);
    const QPoint there = view.widget_rect(element::hold2).center();
    EXPECT_EQ(h.taken([&] {
        QTest::mouseClick(&view, Qt::LeftButton, {}, there);
        QTest::mouseDClick(&view, Qt::LeftButton, {}, there);
    }),
              "press main.hold2;press main.hold2;");
    screenview& guide = h.open(screen::reelguide);
    for (QWidget* const to : {static_cast<QWidget*>(h.s.window), static_cast<QWidget*>(&guide)})
        for (const bool held : {false, true}) {
            const std::string where = to == &guide ? "reelguide" : "main";
            EXPECT_EQ(h.taken([&] {
                QKeyEvent key(QEvent::KeyPress, Qt::Key_1, {}, "1", held);
                QApplication::sendEvent(to, &key);
            }),
                      held ? std::string() : std::string("key 49 ").append(where).append(";"));
        }
    QTest::keyClick(h.s.window, Qt::Key_Escape); // there is nothing that it would close
    EXPECT_TRUE(h.s.window->isVisible());
    screenview& form = h.open(screen::Entername);
    EXPECT_EQ(h.taken([&] { QTest::keyClick(&form, Qt::Key_Escape); }), "") << "no score is lost by it";
    h.open(screen::feature);
    EXPECT_EQ(h.taken([&] { QTest::keyClick(h.s.window, Qt::Key_Space); }), "key 32 feature;");
    unload_screen(h.s.g, screen::feature);
}

TEST(Hands, MenusAreTheMachinesAndTheirTicksItsOptions) {
    hands h;
    QMenuBar& bar = *h.s.window->menuBar();
    std::string wanted, there;
    std::string_view menu;
    for (const menu_row& r : menu_rows()) {
        if (r.menu != std::exchange(menu, r.menu))
            wanted.append("\n").append(r.menu);
        wanted.append(", ").append(r.entry == element::total ? "-" : row(r.entry).text);
    }
    for (QAction* const title : bar.actions()) {
        if (title->text() == "&View")
            continue;
        there.append("\n").append(title->text().remove('&').toStdString());
        std::set<QChar> letters;
        for (QAction* const a : title->menu()->actions()) {
            there.append(", ").append(a->isSeparator() ? "-" : a->text().remove('&').toStdString());
            if (a->isSeparator())
                continue;
            EXPECT_TRUE(letters.insert(a->text()[a->text().indexOf('&') + 1].toLower()).second)
                << a->text().toStdString();
            EXPECT_EQ(a->isCheckable(), title->text() == "&Options") << a->text().toStdString();
            EXPECT_EQ(a->shortcutContext(), Qt::ApplicationShortcut);
        }
    }
    EXPECT_EQ(there, wanted);
    const auto entry = [&](const char* text) {
        const auto all = h.s.window->findChildren<QAction*>();
        return *std::find_if(all.begin(), all.end(),
                             [&](QAction* a) { return a->text().remove('&') == text; });
    };
    for (int twice = 0; twice < 2; ++twice) { // the toolkit would take its tick away again
        entry("Blue LED")->trigger();
        EXPECT_TRUE(entry("Blue LED")->isChecked());
        EXPECT_FALSE(entry("Red LED")->isChecked());
    }
    set_enabled(h.s.g.p, element::gstat, false);
    set_visible(h.s.g.p, element::newgame, false);
    refresh(h.s);
    EXPECT_FALSE(entry("Refill Key")->isEnabled() || entry("New")->isVisible());
}

TEST(Hands, TheBoardTakesMainsPlaceAndGivesItBack) {
    hands h;
    const auto* const stack = h.s.window->findChild<QStackedWidget*>();
    EXPECT_EQ(stack->currentWidget(), &h.view(screen::main));
    screenview& board = h.open(screen::feature);
    EXPECT_EQ(stack->currentWidget(), &board);
    EXPECT_EQ(h.s.window->shown_screen(), screen::feature);
    EXPECT_EQ(board.size(), stack->size());
    EXPECT_EQ(h.s.window->windowTitle().toStdString(),
              h.s.g.p.titles[static_cast<std::size_t>(screen::feature)]);
    EXPECT_EQ(h.s.window->focusWidget(), &board);
    unload_screen(h.s.g, screen::feature);
    settle(h.s.g);
    refresh(h.s);
    EXPECT_EQ(stack->currentWidget(), &h.view(screen::main));
    EXPECT_EQ(h.s.window->windowTitle().toStdString(),
              h.s.g.p.titles[static_cast<std::size_t>(screen::main)]);
}

TEST(Hands, TheReelsRollAsSoonAsStartIsPressed) {
    program p;
    p.start();
    send(p.s, {input::kind::press, screen::main, element::start});
    std::set<double> places;
    p.until([&] {
        if (p.s.show.reels[0].now == reel_motion::phase::rolls)
            places.insert(p.s.show.reels[0].at);
        return is_enabled(p.s.g.p, element::start);
    });
    EXPECT_GT(places.size(), 5U) << "they stand still until they stop";
}

// So that the first spin and the first board do not stutter: each picture once, one at a time.
TEST(Hands, AllPicturesThatWillBeWantedAreDrawnAhead) {
    hands h;
    for (const screen where : {screen::main, screen::feature}) {
        screenview& view = where == screen::main ? h.view(where) : h.open(where);
        std::set<std::tuple<art, int, int>> wanted;
        const auto want = [&](art a, element on) {
            const QSize size = view.device_rect(on).size();
            if (a != art::none && !in_backdrop(on) && !(on >= element::reel1 && on <= element::reel3))
                wanted.insert({a, size.width(), size.height()});
        };
        for (const element_row& r : elements_of(where))
            want(r.picture, r.id);
        for (const coming_art& group : coming_arts(where))
            for (int n = 0; n <= static_cast<int>(group.last) - static_cast<int>(group.first); ++n)
                want(nth(group.first, n + 1), group.on);
        const std::size_t besides = where == screen::main ? 2 : 1; // the backdrop, and the reels' strip
        for (int again = 0; again < 2; ++again) {                  // as at first, and when all was let go
            view.let_go();
            h.s.ahead.stop();
            std::size_t drawn = 0;
            while (view.draw_one_ahead())
                ++drawn;
            EXPECT_EQ(drawn, wanted.size() + besides) << row(where).name;
        }
    }
    unload_screen(h.s.g, screen::feature);
}

TEST(Hands, TheBoardsBackdropIsDrawnAheadAsItWillStand) {
    hands h;
    backdrop_store ahead;
    EXPECT_TRUE(prepare_backdrop(ahead, h.s.g.p, screen::feature, 1));
    h.open(screen::feature);
    EXPECT_FALSE(prepare_backdrop(ahead, h.s.g.p, screen::feature, 1)) << "it is drawn a second time";
    unload_screen(h.s.g, screen::feature);
}

TEST(Hands, TheIconIsSharpInEachUsualSize) {
    for (const int size : {16, 32, 48, 128})
        EXPECT_TRUE(program_icon().availableSizes().contains(QSize(size, size))) << size;
}

TEST(Hands, ThePicturesOfWhatIsFarAwayAreLetGo) {
    hands h;
    const auto kept = [&] {
        choose_pictures(h.s);
        return std::pair(h.s.kept.main, h.s.kept.board);
    };
    EXPECT_EQ(kept(), std::pair(true, false));
    start_timer(h.s.g.p, timer::feature_start);
    EXPECT_EQ(kept(), std::pair(true, true)) << "the run-up to the board";
    h.open(screen::feature);
    stop_timer(h.s.g.p, timer::feature_start);
    EXPECT_EQ(kept(), std::pair(false, true));
    for (const timer last :
         {timer::feature_exittimer, timer::feature_bonus_win, timer::feature_flashing_lights,
          timer::feature_start_sevenspinner, timer::feature_start_pickawin, timer::feature_start_winspins,
          timer::feature_start_winstreak, timer::feature_start_reelskill, timer::feature_start_letsspin}) {
        start_timer(h.s.g.p, last);
        EXPECT_EQ(kept(), std::pair(true, true)) << row(last).name;
        stop_timer(h.s.g.p, last);
        EXPECT_EQ(kept(), std::pair(false, true));
    }
    unload_screen(h.s.g, screen::feature);
    EXPECT_EQ(kept(), std::pair(true, false));
}

TEST(Hands, AWindowComesUpInTheMiddleAndAFormOverIt) {
    hands h;
    mainwindow& window = *h.s.window;
    const QRect room = window.screen()->availableGeometry();
    const auto near = [](QPoint a, QPoint b, int by) { return (a - b).manhattanLength() <= by; };
    EXPECT_TRUE(near(window.geometry().center(), room.center(), 60));
    for (const double zoom : {0.5, 0.6, 0.1}) {
        zoom_main_window(window, zoom);
        const double there = std::max(zoom, 0.4);
        EXPECT_NEAR(main_window_zoom(window), there, 0.002);
        EXPECT_EQ(window.size(), window.main_view().size() + window.bars(window.width()));
    }
    zoom_main_window(window, 9);
    EXPECT_TRUE(room.contains(window.geometry()));
    EXPECT_GT(window.width(), room.width() - 20);
    zoom_main_window(window, 0.5);
    window.move(40, 60);
    screenview& form = h.open(screen::About);
    EXPECT_TRUE(near(form.geometry().center(), window.geometry().center(), 8)); // the frame's part
    EXPECT_EQ(form.minimumSize(), form.panel_size() / 2);
    unload_screen(h.s.g, screen::About);
    refresh(h.s);
    window.move(room.right() - 100, room.bottom() - 80);
    EXPECT_TRUE(room.contains(h.open(screen::About).geometry())) << "a form is never half away";
    screenview first(h.s, screen::About);
    place_side_window(first, nullptr);
    EXPECT_EQ(first.size(), first.panel_size()) << "there is no other window to be like";
    window.showMaximized();
    zoom_main_window(window, 0.5);
    EXPECT_FALSE(window.isMaximized());
}

} // namespace

} // namespace hustle::desktop
