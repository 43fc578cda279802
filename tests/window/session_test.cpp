// A session in its windows, without a screen: what the player has is kept whatever ends the program.
#include "core/files.h"
#include "core/play.h"
#include "core/upward.h"
#include "desktop/platform/sound.h"
#include "desktop/session/leaving.h"
#include "desktop/session/onlyone.h"
#include "screens/events.h"
#include "tests/window/program.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QSessionManager>
#include <QTemporaryDir>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <optional>
#include <thread>
#include <utility>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace hustle::desktop {

namespace {

TEST(Session, LeavesOnASignalLikeAPlayerWhoClosesEveryWindow) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        program p;
        p.s.view.player = "ANNA";
        p.start();
        p.s.g.m.bank = 50;
        ::raise(signal);
        p.until_over();
        machine read;
        ASSERT_TRUE(read_table_text(read, p.stored("hscore.dat"))) << signal;
        EXPECT_EQ(read.hiscore[0], 50);
        EXPECT_EQ(read.hiname[0], "           ANNA");
        EXPECT_TRUE(read_game_text(read, p.stored("game.dat")));
    }
}

// A handler that runs between a call that fails and the look at why must not change the reason.
TEST(Session, ASignalLeavesTheReasonOfAFailedCall) {
    program p;
    p.start();
    for (int full = 0; full < 20'000; ++full) // nobody empties the pair while the loop runs
        ::raise(SIGHUP);
    errno = ENOSPC;
    ::raise(SIGHUP);
    EXPECT_EQ(errno, ENOSPC);
    p.until_over();
}

TEST(Session, WaitsAtItsEndForASaveThatIsUnderWay) {
    program p;
    p.start();
    bool done = false;
    p.s.saving.saved = [&](const std::string&) { // on the saver's thread
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        done = true;
    };
    save_soon(p.s.saving, "text");
    end_session(p.s);
    EXPECT_TRUE(done);
    EXPECT_EQ(p.stored("game.dat"), "text");
}

TEST(Session, LeavesAlsoWhileABoxAsks) {
    program p;
    p.start();
    p.hand.stop(); // nobody answers
    QTimer::singleShot(50, [] { ::raise(SIGTERM); });
    send(p.s, {input::kind::press, screen::main, element::transfer}); // nothing in the bank: a box
    p.until_over();
    machine read;
    EXPECT_TRUE(read_game_text(read, p.stored("game.dat")));
}

// As the desktop's session manager does it: the wish, and then the end, whatever stands before the player.
TEST(Session, LosesNothingAtTheEndOfTheDesktopsSession) {
    for (const bool asks : {false, true}) {
        program p;
        p.s.view.player = "ANNA";
        p.start();
        p.hand.stop();
        alignas(QSessionManager) char manager[sizeof(QSessionManager)] = {}; // only the toolkit can make one
        QTimer::singleShot(50, [&] {
            emit qGuiApp->commitDataRequest(reinterpret_cast<QSessionManager&>(manager));
            QCoreApplication::quit();
        });
        if (asks)
            send(p.s, {input::kind::press, screen::main, element::transfer}); // nothing in the bank: a box
        p.s.g.m.bank = 50;
        if (!asks)
            p.until([] { return false; });
        end_session(p.s);
        machine read;
        EXPECT_TRUE(read_game_text(read, p.stored("game.dat"))) << asks;
        ASSERT_TRUE(read_table_text(read, p.stored("hscore.dat"))) << asks;
        EXPECT_EQ(read.hiscore[0], 50);
    }
}

TEST(Session, SavesTheLedgersAfterEachPlayAndAnOptionAtOnce) {
    program p;
    p.start();
    apply(p.s.g, {input::kind::press, screen::main, element::start});
    keep_ledgers(p.s);
    finish(p.s.saving);
    EXPECT_EQ(p.stored("game.dat"), "") << "a play that runs is not saved";
    apply(p.s.g, {input::kind::press, screen::main, element::sreelspin});
    keep_ledgers(p.s);
    finish(p.s.saving);
    machine read;
    ASSERT_TRUE(read_game_text(read, p.stored("game.dat")));
    EXPECT_EQ(read.reelspeed, 2);
    for (int i = 0; i < 100'000 && machine_busy(p.s.g); ++i)
        deliver(p.s.g, p.s.g.p.now + 10);
    keep_ledgers(p.s);
    finish(p.s.saving);
    EXPECT_EQ(p.stored("game.dat"), game_text(p.s.g.m));
    EXPECT_GT(p.s.g.m.moneyin, 100);
    QFile::remove(p.folder.filePath("game.dat"));
    keep_ledgers(p.s);
    finish(p.s.saving);
    EXPECT_EQ(p.stored("game.dat"), "") << "what is saved is not saved again";
}

TEST(Session, TellsAnUnreadableFileAndLeavesIt) {
    program p;
    QDir(p.folder.path()).mkdir("game.dat");
    p.button = "&Do Without";
    p.start();
    ASSERT_EQ(p.told.size(), 1);
    EXPECT_TRUE(p.told[0].contains("game.dat is there but cannot be read")) << p.told[0].toStdString();
    EXPECT_FALSE(may_write(p.s.world, store::game_dat));
    send(p.s, {input::kind::press, screen::main, element::sreelspin}); // which is kept at once
    finish(p.s.saving);
    const auto then = p.s.g.p.now;
    p.until([&] { return p.s.g.p.now > then + 50; });
    EXPECT_EQ(p.told.size(), 1) << "and nobody tries to write it";
    ask_to_leave(p.s);
    p.until_over();
    EXPECT_TRUE(p.told.at(1).contains("game.dat is not saved")) << p.told[1].toStdString();
    EXPECT_TRUE(QDir(p.folder.filePath("game.dat")).exists());
    EXPECT_NE(p.stored("hscore.dat"), "");
}

TEST(Session, TellsAtTheStartThatNothingCanBeSavedAndTriesAgainAtTheEnd) {
    program p;
    const QString place = p.folder.filePath("games");
    QFile in_the_way(place);
    ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly));
    qputenv("HUSTLE_DATA", place.toUtf8());
    p.start();
    p.until([&] { return !p.told.isEmpty(); });
    EXPECT_TRUE(p.told.at(0).contains("Nothing can be saved")) << p.told[0].toStdString();
    p.hand.stop();
    QTimer repair;
    QObject::connect(&repair, &QTimer::timeout, &repair, [&] { // while the box asks
        if (QApplication::activeModalWidget() == nullptr)
            return;
        in_the_way.remove();
        QDir().mkdir(place);
        p.button = "&Try Again";
        p.answer();
    });
    repair.start(20);
    ask_to_leave(p.s);
    p.until_over();
    EXPECT_TRUE(p.told.at(1).contains("game.dat is not saved")) << p.told[1].toStdString();
    EXPECT_NE(p.stored("games/game.dat"), "");
    EXPECT_NE(p.stored("games/hscore.dat"), "");
}

TEST(Session, SavesElsewhereWhereThePlayerWishes) {
    program p;
    QDir(p.folder.path()).mkdir("game.dat");
    const QString other = p.folder.filePath("other");
    QDir().mkdir(other);
    ASSERT_EQ(save_stored(other.toStdString(), "game.dat", "another machine's"), "");
    p.otherwise = "&No";
    p.start();
    p.button = "Save &Elsewhere...";
    bool refused = false;
    QTimer chooser;
    QObject::connect(&chooser, &QTimer::timeout, &chooser, [&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        if (!std::exchange(refused, true)) // the box asks again
            return dialog->reject();
        if (!p.told.filter("Replace it?").isEmpty()) { // asked once, and not replaced
            EXPECT_EQ(p.stored("other/game.dat"), "another machine's");
            p.otherwise = "&Yes";
        }
        dialog->selectFile(other);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    chooser.start(20);
    ask_to_leave(p.s);
    p.until_over();
    machine read;
    EXPECT_TRUE(read_game_text(read, p.stored("other/game.dat")));
    EXPECT_TRUE(QDir(p.folder.filePath("game.dat")).exists());
    EXPECT_NE(p.stored("hscore.dat"), "") << "a file of its own place";
}

// The mixing module is loaded by the name of its one entry: where that is lost, there is silence and no
// message.
TEST(Session, HasItsSounds) {
    program p;
    p.start();
    std::string state =
        sound_state(); // waits two seconds for a device that opens, and this machine may be busy
    for (int tries = 0; tries < 15 && state.find("dummy") == std::string::npos; ++tries)
        state = sound_state();
    EXPECT_NE(state.find("dummy"), std::string::npos) << state;
}

TEST(Session, HoldsTheMachineThroughAWaitAndGoesOnBehindIt) {
    program p;
    p.start();
    const auto then = p.s.g.p.now;
    const auto credits = p.s.g.m.credits;
    QTimer::singleShot(20, [&] { send(p.s, {input::kind::press, screen::main, element::start}); });
    QElapsedTimer since;
    since.start();
    p.s.world.wait(60);
    EXPECT_GE(since.elapsed(), 60);
    EXPECT_EQ(p.s.g.p.now, then);
    EXPECT_EQ(p.s.g.m.credits, credits) << "a press in the wait";
    p.until([&] { return p.s.g.p.now > then; });
}

TEST(Session, AsksBeforeAGameOnTheBoardIsLost) {
    program p;
    p.start();
    load_screen(p.s.g, screen::feature);
    settle(p.s.g);
    refresh(p.s);
    p.button = "&No";
    p.s.window->close();
    ASSERT_EQ(p.told, QStringList{"Leave, and lose this game?"});
    EXPECT_FALSE(p.s.g.p.over);
    const auto then = p.s.g.p.now;
    p.until([&] { return p.s.g.p.now > then + 100; }); // the machine goes on
    send(p.s, {input::kind::press, screen::main, element::newgame});
    EXPECT_EQ(p.costs.size(), 2);
    EXPECT_TRUE(p.costs.first().contains("not paid")) << p.costs.first().toStdString();
    EXPECT_TRUE(p.costs.last().contains("The money in the bank")) << p.costs.last().toStdString();
    p.button = "&Yes";
    p.s.window->close();
    p.until_over();
    EXPECT_NE(p.stored("game.dat"), "");
}

TEST(Session, IsTheOnlyOneOnItsFiles) {
    const QTemporaryDir folder;
    const pid_t child = ::fork();
    if (child == 0) { // claims the folder and is killed as it listens
        only_one one;
        const bool mine = claim_folder(one, folder.path());
        listen_for_calls(one, folder.path(), [](wish) {});
        ::_exit(mine ? ::kill(::getpid(), SIGKILL) : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));

    std::optional<only_one> first(std::in_place);
    only_one second;
    ASSERT_TRUE(claim_folder(*first, folder.path())) << "the lock outlived its process";
    EXPECT_FALSE(claim_folder(second, folder.path()));
    EXPECT_FALSE(call_to_front(folder.path(), wish::to_front)) << "nobody listens yet";
    bool called = false;
    listen_for_calls(*first, folder.path(), [&](wish asked) { called = asked == wish::reduced_flashing; });
    bool answered = false;
    std::thread caller([&] { answered = call_to_front(folder.path(), wish::reduced_flashing); });
    while (!called)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
    caller.join();
    EXPECT_TRUE(answered);
    const QTemporaryDir other;
    ASSERT_EQ(::mkfifo(other.filePath("hoardhustle.lock").toUtf8().constData(), 0600), 0);
    EXPECT_TRUE(claim_folder(second, other.path())) << "and did not wait for a writer";
    for (const char* const left : {"", "nonsense"}) { // by a power cut
        const QTemporaryDir again;
        QFile lock(again.filePath("hoardhustle.lock"));
        ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
        lock.write(left);
        lock.close();
        only_one after;
        EXPECT_TRUE(claim_folder(after, again.path()));
        EXPECT_FALSE(claim_folder(second, again.path())) << "and it is ours";
    }
    const QString socket = QFile::decodeName(first->ear.place);
    EXPECT_TRUE(QFile::exists(socket));
    first.reset();
    EXPECT_FALSE(QFile::exists(socket));
}

} // namespace

} // namespace hustle::desktop
