// What the window says in boxes and notes, and what it does when nothing may or can be saved.
#include "core/files.h"
#include "desktop/platform/places.h"
#include "desktop/session/leaving.h"
#include "desktop/session/onlyone.h"
#include "tests/window/program.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QPointer>
#include <QPushButton>

#include <csignal>

namespace hustle::desktop {

namespace {

// The boxes that stand open and hold nothing up.
template <class Box> QList<Box*> notes() {
    QList<Box*> found;
    for (QWidget* const w : QApplication::topLevelWidgets())
        if (auto* const box = qobject_cast<Box*>(w); box != nullptr && box->isVisible() && !box->isModal())
            found << box;
    return found;
}

void expect_gone_after(QWidget* note) {
    const QPointer<QWidget> kept = note;
    note->close();
    QCoreApplication::sendPostedEvents(note, QEvent::DeferredDelete);
    EXPECT_TRUE(kept.isNull()) << "it is not let go";
}

void write(const QString& path, const char* text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

void choose(program& p, element option) {
    apply(p.s.g, {input::kind::press, screen::main, option});
    keep_ledgers(p.s);
    finish(p.s.saving);
    QCoreApplication::sendPostedEvents(&p.s.wake); // what the saver tells
}

TEST(Session, TellsOnceThatASaveFailsAndTriesAgain) {
    program p;
    const QString place = p.folder.filePath("games");
    QDir().mkdir(place);
    qputenv("HUSTLE_DATA", place.toUtf8());
    p.start();
    ++p.s.held; // the machine changes by our hand alone
    keep_ledgers(p.s);
    finish(p.s.saving);
    EXPECT_EQ(p.stored("games/game.dat"), "") << "nothing has been played";
    const element options[][3] = {{element::sreelspin, element::bluedisp, element::floff},
                                  {element::rreelspin, element::soundoff, element::flon}};
    for (const auto& option : options) {
        QDir(place).removeRecursively();
        choose(p, option[0]);
        ASSERT_EQ(notes<QMessageBox>().size(), 1);
        QMessageBox* const note = notes<QMessageBox>().first();
        program::is_fit_for_all(*note);
        EXPECT_TRUE(note->text().contains("not on the disk: No such file")) << note->text().toStdString();
        EXPECT_TRUE(note->informativeText().contains("game.dat could not be saved in " + place));
        choose(p, option[1]);
        EXPECT_EQ(notes<QMessageBox>().size(), 1) << "it is told once";
        QDir().mkdir(place);
        keep_ledgers(p.s);
        finish(p.s.saving);
        EXPECT_EQ(p.stored("games/game.dat"), "") << "at each tick it would wear the disk out";
        choose(p, option[2]);
        EXPECT_EQ(p.stored("games/game.dat"), game_text(p.s.g.m));
        expect_gone_after(note);
    }
    choose(p, element::ds);
    EXPECT_TRUE(notes<QMessageBox>().isEmpty());
    --p.s.held;
}

TEST(Session, LeavesThoughNothingCanBeSaved) {
    program p;
    const QString place = p.folder.filePath("games");
    write(place, "in the way");
    qputenv("HUSTLE_DATA", place.toUtf8());
    p.start();
    p.until([&] { return !p.told.isEmpty(); });
    EXPECT_TRUE(p.costs.first().contains("The machine plays all the same"));
    ::testing::internal::CaptureStderr();
    leave(p.s);
    p.until_over();
    EXPECT_NE(::testing::internal::GetCapturedStderr().find("game.dat is not saved: "), std::string::npos);
    EXPECT_EQ(p.told.size(), 1) << "nobody is there to answer";
    EXPECT_TRUE(p.s.world.lost) << "and whoever started it learns so";
    EXPECT_TRUE(notes<QMessageBox>().isEmpty());
}

TEST(Session, LeavesNothingBehindWherePlayedWithoutSaving) {
    for (const bool saving : {false, true}) {
        program p;
        for (const char* const name :
             {"game.dat.new", "hscore.dat.new"}) // of a save that runs, or was killed
            write(p.folder.filePath(name), "half");
        p.s.world.saving = saving;
        p.s.view.recording = !saving;
        p.start();
        choose(p, element::sreelspin);
        send(p.s, {input::kind::close, screen::main});
        EXPECT_TRUE(p.s.g.p.over && p.told.isEmpty());
        end_session(p.s);
        const QStringList left = QDir(p.folder.path()).entryList(QDir::Files, QDir::Name);
        EXPECT_EQ(left, saving ? QStringList({"game.dat", "hscore.dat", "view.ini"})
                               : QStringList({"game.dat.new", "hscore.dat.new"}))
            << left.join(' ').toStdString();
    }
}

TEST(Session, NeverWritesOverADamagedFileThatCannotBeSetAside) {
    program p;
    write(p.folder.filePath("game.dat"), "nonsense");
    write(p.folder.filePath("game.dat.damaged"), "");
    for (int n = 2; n <= 99; ++n)
        write(p.folder.filePath(QString("game.dat.damaged-%1").arg(n)), "");
    p.start();
    EXPECT_FALSE(may_write(p.s.world, store::game_dat));
    EXPECT_TRUE(may_write(p.s.world, store::hscore_dat));
    choose(p, element::sreelspin);
    EXPECT_EQ(p.stored("game.dat"), "nonsense");
    EXPECT_TRUE(notes<QMessageBox>().isEmpty()) << "nobody tried";
}

TEST(Session, ForgetsNoWishToLeaveInAWait) {
    for (const bool by_signal : {true, false}) {
        program p;
        p.start();
        QTimer::singleShot(
            20, [&] { by_signal ? static_cast<void>(::raise(SIGTERM)) : void(p.s.window->close()); });
        p.s.world.wait(150);
        p.until_over();
        EXPECT_NE(p.stored("game.dat"), "") << by_signal;
    }
}

TEST(Session, GoesOnUnderASignalThatItsStarterIgnores) {
    std::signal(SIGHUP, SIG_IGN); // as nohup does
    program p;
    p.start();
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

TEST(Session, ASecondProgramIsAskedWhatItShallDo) {
    program p; // its hand
    for (const bool deaf : {false, true}) {
        const std::pair<const char*, second> answers[] = {{"&Go to It", second::to_front},
                                                          {"&Play without Saving", second::play_unsaved},
                                                          {"to close the box", second::leave}};
        for (const auto& [button, wanted] : answers) {
            p.button = button;
            EXPECT_EQ(ask_second(deaf), wanted) << button;
            EXPECT_EQ(p.told.last().contains("does not answer"), deaf);
            EXPECT_TRUE(p.costs.last().contains("cannot save into the same files"));
        }
    }
}

TEST(Session, TellsWhereAPageIsThatNoBrowserShows) {
    const program p;
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "");
    for (const auto& [which, file] : {std::pair{page::help, "index.html"}, {page::home, "home.html"}}) {
        session s;
        s.world.browse(which);
        ASSERT_EQ(notes<QMessageBox>().size(), 1);
        QMessageBox* const note = notes<QMessageBox>().first();
        program::is_fit_for_all(*note);
        EXPECT_TRUE(QFile::exists(note->text().section('\n', -1))) << note->text().toStdString();
        EXPECT_TRUE(note->text().endsWith(file));
        EXPECT_TRUE(note->textInteractionFlags() & Qt::TextSelectableByMouse);
        expect_gone_after(note);
    }
    qputenv("PATH", path);
}

TEST(Session, TellsOfItsSystem) {
    program p;
    p.s.world.data = "/a/folder";
    EXPECT_TRUE(p.s.world.system_info());
    ASSERT_EQ(notes<QDialog>().size(), 1);
    QDialog* const box = notes<QDialog>().first();
    EXPECT_EQ(box->windowTitle(), "System Info");
    const auto* const words = box->findChild<QLabel*>();
    for (const QString part : {"Hoard Hustle ", "Toolkit: Qt ", "platform offscreen",
                               "Sound: no sound device", "Stored files: /a/folder"})
        EXPECT_TRUE(words->text().contains(part)) << part.toStdString();
    EXPECT_EQ(words->accessibleName(), words->text());
    EXPECT_TRUE(words->textInteractionFlags() & Qt::TextSelectableByKeyboard);
    for (QPushButton* const button : box->findChildren<QPushButton*>())
        if (button->text() == "&Copy")
            button->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), words->text());
    for (QPushButton* const button : box->findChildren<QPushButton*>())
        if (button->text() == "Close")
            button->click();
    EXPECT_FALSE(box->isVisible());
    expect_gone_after(box);
}

TEST(Session, TellsAmountsAsThePlayersCountryDoes) {
    const QLocale german(QLocale::German, QLocale::Germany), home(QLocale::English, QLocale::UnitedKingdom);
    EXPECT_EQ(amount_as_told(home, 3.6F), "£3.60");
    EXPECT_EQ(amount_as_told(german, 3.6F), "3,60\u00a0€");
    EXPECT_TRUE(plays_in_pounds(home) && plays_in_pounds(QLocale::c()));
    for (const QLocale& abroad : {german, QLocale(QLocale::English, QLocale::UnitedStates),
                                  QLocale(QLocale::Welsh, QLocale::UnitedKingdom)})
        EXPECT_FALSE(plays_in_pounds(abroad)) << abroad.name().toStdString();
}

TEST(Session, DrawsItsOwnChanceWhereNoSeedIsGiven) {
    program p;
    qtworld other;
    qunsetenv("HUSTLE_SEED");
    prepare_world(p.s.world);
    prepare_world(other);
    EXPECT_NE(p.s.world.state, other.state);
}

TEST(Session, FindsItsFolders) {
    const program p;
    const QString beside = QCoreApplication::applicationDirPath();
    EXPECT_EQ(shipped_folder("sounds"), beside + "/sounds");
    EXPECT_EQ(shipped_folder("none"), beside + "/none");
    EXPECT_TRUE(QFile::exists(shipped_module("hustlemixer")));
    EXPECT_EQ(shipped_module("none"), beside + "/none.so");
    qputenv("HUSTLE_DATA", p.folder.filePath("not/yet").toUtf8());
    EXPECT_EQ(data_folder(), p.folder.filePath("not/yet"));
    EXPECT_TRUE(QDir(p.folder.filePath("not/yet")).exists());
    qunsetenv("HUSTLE_DATA");
    EXPECT_EQ(data_folder(), beside) << "which can be written to";
}

} // namespace

} // namespace hustle::desktop
