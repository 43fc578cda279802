// Sessions written down, and scripts that are watched.
#include "core/files.h"
#include "desktop/session/leaving.h"
#include "desktop/session/watch.h"
#include "script/commands.h"
#include "script/dump.h"
#include "tests/window/program.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include <csignal>
#include <sstream>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

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

// What stands in the place of a session or of the one before it; 0 where it could be put there.
int put_in_the_way(std::string_view what, const std::string& session, const std::string& before) {
    if (what == "a folder")
        return ::mkdir(before.c_str(), 0700);
    if (what == "a second name")
        return ::link(session.c_str(), before.c_str());
    if (what == "a pipe")
        return ::unlink(session.c_str()) + ::mkfifo(session.c_str(), 0600);
    return 0;
}

// The last session is what a player who has just met a fault wants to send.
TEST(Session, EmptiesNoSessionThatItCannotKeep) {
    const std::string last = "# the last one\n";
    for (const std::string_view what : {"nothing", "a folder", "a second name", "a pipe"}) {
        program p;
        const std::string folder = p.folder.path().toStdString();
        ASSERT_EQ(save_stored(folder, "session.txt", last), "");
        ASSERT_EQ(put_in_the_way(what, folder + "/session.txt", folder + "/session-before.txt"), 0) << what;
        p.start();
        end_session(p.s);
        const bool recorded = what != "a folder";
        EXPECT_EQ(p.stored("session.txt").starts_with("# A session of Hoard Hustle"), recorded) << what;
        if (what != "a pipe") {
            EXPECT_EQ(p.stored(recorded ? "session-before.txt" : "session.txt"), last) << what;
        }
    }
}

TEST(Session, EndsItsRecordAtAFullDiskWithoutHalfALine) {
    program p;
    p.start();
    flush_recording(p.s.record, p.s.g);
    const std::string there = p.stored("session.txt");
    struct rlimit before {
    }, full{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    full = before;
    full.rlim_cur = there.size() + 5;
    ::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &full);
    send(p.s, {input::kind::press, screen::main, element::start});
    flush_recording(p.s.record, p.s.g);
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(p.stored("session.txt"), there);
    EXPECT_LT(p.s.record.file, 0);
    const auto then = p.s.g.p.now;
    p.until([&] { return p.s.g.p.now > then + 50; }); // and play goes on
}

TEST(Session, IsWrittenDownAsFarAsItsBoundAndSaysSo) {
    program p;
    p.start();
    flush_recording(p.s.record, p.s.g);
    const std::string there = p.stored("session.txt");
    p.s.record.written += longest_session - there.size(); // as much as there may be
    send(p.s, {input::kind::press, screen::main, element::start});
    flush_recording(p.s.record, p.s.g);
    EXPECT_EQ(p.stored("session.txt"),
              there + "# The session goes on, and is longer than is written down.\n");
    EXPECT_LT(p.s.record.file, 0);
    send(p.s, {input::kind::press, screen::main, element::hold1}); // and nothing more is kept for it
    EXPECT_EQ(p.s.record.text, "");
}

// Put there by hand: no line of a script can hold it.
TEST(Session, ReadsWhatNoLineHoldsAsBlanks) {
    program p;
    const std::string folder = p.folder.path().toStdString();
    machine m;
    m.hiname.fill("Ada");
    std::string text = table_text(m);
    for (const char odd : {'\0', '\r'})
        text[text.find("Ada") + 1] = odd; // the second in the next one
    ASSERT_EQ(save_stored(folder, "hscore.dat", text), "");
    p.start();
    EXPECT_EQ(p.s.g.m.hiname[0], "A a");
    EXPECT_EQ(p.s.g.m.hiname[1], "A a");
    EXPECT_EQ(p.s.g.m.hiname[2], "Ada");
    EXPECT_TRUE(p.told.isEmpty());
}

TEST(Session, PlaysInPoundsWhereTheSystemHasNoCountry) {
    program p;
    EXPECT_EQ(p.s.world.currency(3.6F), "£3.60");
}

// As one does that gives out all it knows again and again.
TEST(Session, EndsAWatchedScriptThatLetsNoTimePass) {
    program p;
    p.s.world.saving = false;
    open_session(p.s);
    watching w;
    w.text = "boot\n";
    for (int i = 0; i < 500'000; ++i)
        w.text += "dump\n";
    start_watching(p.s, w);
    p.s.real.start();
    p.until([&] { return p.s.real.elapsed() > 200; });
    stop_watching(w);
    EXPECT_FALSE(w.ended);
    EXPECT_LE(w.printed.text.size(), beginning::most);
    EXPECT_NE(w.printed.text, "");
}

TEST(Session, WatchesAtTheSpeedThatIsChosenAndTellsWhatDoesNotHold) {
    program p;
    p.s.world.saving = false;
    open_session(p.s);
    watching w;
    w.text = "press main.start\nrun 100000\nexpect credits 18\n";
    w.name = "<b>script</b>";
    start_watching(p.s, w);
    p.until([&] { return w.told != nullptr && p.s.g.p.now > 0; });
    const auto entry = [&](const QString& text) {
        for (QAction* a : p.s.window->findChildren<QAction*>())
            if (a->text() == text)
                return a;
        return new QAction(&p.s.wake); // none such
    };
    EXPECT_TRUE(entry("1 x")->isChecked());
    QStringList lines;
    for (const QLabel* line : p.s.window->findChildren<QLabel*>())
        lines += line->text();
    EXPECT_TRUE(lines.contains("A script is watched: Right goes one step on")) << "and not how to play";
    for (const auto& [text, speed] :
         {std::pair{"20 x", 20.0}, {"4 x", 4.0}, {"0.25 x", 0.25}, {"Still", 0.0}}) {
        entry(text)->trigger();
        EXPECT_EQ(w.speed, speed) << text;
    }
    entry("1 x")->trigger();
    QTest::keyClick(p.s.window, Qt::Key_Right);
    EXPECT_EQ(w.speed, 0);
    EXPECT_TRUE(entry("Still")->isChecked());
    EXPECT_FALSE(entry("1 x")->isChecked());
    const auto stood = p.s.g.p.now;
    p.until([&] { return p.s.g.p.now > stood; });
    EXPECT_TRUE(
        w.told->text().startsWith(QString("  %1 s").arg(static_cast<double>(p.s.g.p.now) / 1000, 0, 'f', 2)))
        << w.told->text().toStdString();
    w.reach = 1e9;
    entry("20 x")->trigger();
    p.until([&] { return w.told->text().contains("has ended"); });
    EXPECT_EQ(w.told->toolTip(), "&lt;b&gt;script&lt;/b&gt;:3: expected credits = 18, found 19\n");
    EXPECT_EQ(w.status, 1);
    EXPECT_LT(w.told->x() + w.told->sizeHint().width(), p.s.window->width()) << "else it is not shown at all";
    EXPECT_EQ(w.told->textFormat(), Qt::PlainText);
    stop_watching(w);
    EXPECT_FALSE(w.worker.joinable()) << "what it wrote can be read now";
}

TEST(Session, ShowsAWatchedScriptStepByStepAndFast) {
    program p;
    p.s.world.saving = false;
    open_session(p.s);
    watching w;
    w.text = "seed 1\npress main.start\nrun 3000\nhash\n";
    w.name = "script";
    w.speed = 0;
    step_watched(w); // a hasty hand, before there is anything to step through
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
