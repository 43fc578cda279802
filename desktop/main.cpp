#include "desktop/platform/places.h"
#include "desktop/session/onlyone.h"
#include "desktop/session/session.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace {

constexpr const char* help_text =
    "Hoard Hustle: a simulation of a UK fruit machine with a 15 pound jackpot.\n"
    "\n"
    "  hoardhustle                     starts the machine\n"
    "  hoardhustle --reduced-flashing  with no lamp flashing fast, from now on\n"
    "  hoardhustle --full-flashing     with all lamps as the machine has them, from now on\n"
    "  hoardhustle --version           tells the version\n"
    "  hoardhustle --help              tells this\n"
    "\n"
    "HUSTLE_DATA=FOLDER  where game.dat and hscore.dat stand\n"
    "HUSTLE_SEED=N       draws that repeat from run to run\n";

constexpr const char* no_display =
    "Hoard Hustle needs a screen to play on, and there is none here.\n"
    "Start it from a desktop session, or set DISPLAY to an X server; over ssh, use ssh -X.\n";

bool has_display() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (const char* value = std::getenv(name); value != nullptr && *value != '\0')
            return true;
    return false;
#else
    return true;
#endif
}

// The toolkit ends a program that cannot reach its screen with a core dump; a word is better.
void tell_message(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg) {
        std::fputs(no_display, stderr);
        std::fprintf(stderr, "(%s)\n", qPrintable(text.simplified()));
        std::_Exit(1);
    }
    if (type == QtCriticalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

// What the command line says of the settings; nothing where it says nothing.
std::optional<bool> reduced_flashing;

// Negative: go on and play. Otherwise the exit status.
int read_arguments(int count, char** arguments) {
    for (int i = 1; i < count; ++i) {
        if (std::strcmp(arguments[i], "--version") == 0) {
            std::printf("hoardhustle %s\n", hustle::version_text.data());
            return 0;
        }
        if (std::strcmp(arguments[i], "--help") == 0) {
            std::fputs(help_text, stdout);
            return 0;
        }
        const bool reduced = std::strcmp(arguments[i], "--reduced-flashing") == 0;
        if (reduced || std::strcmp(arguments[i], "--full-flashing") == 0) {
            reduced_flashing = reduced;
            continue;
        }
        std::fprintf(stderr, "hoardhustle: unknown argument %s; --help tells what there is\n", arguments[i]);
        return 2;
    }
    return -1;
}

// One program plays on the files of a folder. False where this one has nothing to do.
bool settle_who_plays(hustle::desktop::only_one& one, hustle::desktop::session& session) {
    using namespace hustle::desktop;
    const QString folder = data_folder();
    for (bool deaf = false; !claim_folder(one, folder); deaf = true)
        switch (ask_second(deaf)) {
        case second::to_front:
            if (call_to_front(folder))
                return false;
            break;
        case second::play_unsaved: session.world.saving = false; return true;
        case second::leave: return false;
        }
    listen_for_calls(one, folder, [&session] { come_to_front(session); });
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const int status = read_arguments(argc, argv);
    if (status >= 0)
        return status;
    if (!has_display()) {
        std::fputs(no_display, stderr);
        return 1;
    }
    qInstallMessageHandler(tell_message);
    QApplication application(argc, argv);
    QApplication::setApplicationName("hoardhustle");
    QApplication::setDesktopFileName("hoardhustle");
    QApplication::setQuitOnLastWindowClosed(false);
    hustle::desktop::session session;
    session.view = hustle::desktop::load_view_settings();
    if (reduced_flashing) {
        session.view.reduced_flashing = *reduced_flashing;
        session.view.flashing_asked = true;
    }
    hustle::desktop::only_one one;
    if (!settle_who_plays(one, session))
        return 0;
    hustle::desktop::start_session(session);
    const int result = session.g.p.over ? 0 : QApplication::exec();
    hustle::desktop::end_session(session);
    return result;
}
