// Sessions written down, and scripts that are watched.
#include "desktop/session/leaving.h"
#include "desktop/session/watch.h"
#include "script/commands.h"
#include "script/dump.h"
#include "tests/window/program.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>

#include <sstream>

namespace hustle::desktop {

namespace {

// Draws, boxes and what they were answered, keys and letters among them.
TEST(Session, IsWrittenDownSoThatItCanBeHadAgain) {
    program p;
    p.start();
    const auto go_on = [&](std::int64_t ms) {
        const auto then = p.s.g.p.now;
        p.until([&] { return p.s.g.p.now > then + ms; });
    };
    const auto press = [&](element e) { send(p.s, {input::kind::press, screen::main, e}); };
    for (const char* const answer : {"&No", "&Yes"}) {
        press(element::start);
        go_on(1200);
        press(element::transfer); // nothing in the bank: a box
        send(p.s, {input::kind::key, screen::main, element::total, 32});
        p.button = answer;
        press(element::newgame);
        p.button = "&OK";
        go_on(300);
    }
    press(element::rguidemenu);
    send(p.s, {input::kind::close, screen::reelguide});
    go_on(100);
    end_session(p.s);
    EXPECT_GE(p.told.size(), 4);
    EXPECT_TRUE(p.recorded.ends_with("# under way: press main.newgame\n")) << "a box may stand for long";
    const std::string text = p.stored("session.txt");
    std::ostringstream printed, wrong;
    EXPECT_EQ(script::run_script(text, "session", printed, wrong), 0) << wrong.str();
    std::string wanted;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with("hash # "))
            wanted += "hash = " + line.substr(7) + "\n";
    EXPECT_EQ(printed.str(), wanted) << text;
    EXPECT_NE(wanted, "");
}

TEST(Session, PlaysInPoundsWhereTheSystemHasNoCountry) {
    program p;
    EXPECT_EQ(p.s.world.currency(3.6F), "£3.60");
}

TEST(Session, ShowsAWatchedScriptStepByStepAndFast) {
    program p;
    p.s.world.saving = false;
    open_session(p.s);
    watching w;
    w.text = "seed 1\npress main.start\nrun 3000\nhash\n";
    w.name = "script";
    w.speed = 0;
    start_watching(p.s, w);
    p.until([&] { return p.s.g.p.now > 0; });
    const auto first = p.s.g.p.now;
    step_watched(w);
    p.until([&] { return p.s.g.p.now > first; });
    EXPECT_LT(p.s.g.p.now, first + 1000) << "one step went far";
    send(p.s, {input::kind::close, screen::main});
    EXPECT_FALSE(p.s.g.p.over) << "the player plays a script that is watched";
    w.speed = 20;
    p.until([&] { return w.told != nullptr && w.told->text().contains("has ended"); }); // and is shown
    stop_watching(w);
    const script::names shown(p.s.g);
    EXPECT_EQ(w.printed.text, "hash = " + script::hash_text(shown) + "\n");
    EXPECT_EQ(p.stored("game.dat"), "");
    p.s.g.p.over = true; // as a script leaves it that closes main
    QTimer::singleShot(0, &p.s.wake, [&] { leave(p.s); });
    EXPECT_EQ(QApplication::exec(), 0);
}

} // namespace

} // namespace hustle::desktop
