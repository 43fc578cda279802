#include "desktop/platform/places.h"
#include "desktop/session/onlyone.h"
#include "desktop/session/session.h"
#include "desktop/session/watch.h"
#include "script/reading.h"

#include <CLI/CLI.hpp>
#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr const char* no_display =
    "Hoard Hustle needs a screen to play on, and there is none here.\n"
    "Start it from a desktop session, or set DISPLAY to an X server; over ssh, use ssh -X.\n";

// The toolkit would play in the folder whose name it makes of such bytes.
bool names_a_folder() { return QUtf8StringView(qgetenv("HUSTLE_DATA")).isValidUtf8(); }

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

// Pictures come and go. The allocator would learn from the first that goes to keep the next ones in its
// heap, where they are not given back to the system; and threads that take turns need no heap each.
void keep_large_pieces_apart() {
#ifdef __GLIBC__
    ::mallopt(M_MMAP_THRESHOLD, 64 * 1024);
    ::mallopt(M_ARENA_MAX, 1);
#endif
}

struct options {
    bool reduced_flashing = false, full_flashing = false;
    std::string watch; // a panel script; empty: the player plays
};

// Negative: go on and play. Otherwise the exit status.
int read_arguments(options& to, int count, char** arguments) {
    CLI::App app("Hoard Hustle: a simulation of a UK fruit machine with a 15 pound jackpot.", "hoardhustle");
    app.set_version_flag("--version", "hoardhustle " + std::string(hustle::version_text));
    auto* const reduced = app.add_flag("--reduced-flashing", to.reduced_flashing,
                                       "No lamp is painted flashing fast, from now on");
    app.add_flag("--full-flashing", to.full_flashing, "All lamps as the machine has them, from now on")
        ->excludes(reduced);
    app.add_option("--watch", to.watch, "Plays a panel script, as session.txt is one, to be watched")
        ->type_name("SCRIPT")
        ->check(CLI::ExistingFile);
    app.footer("HUSTLE_DATA=FOLDER  where the stored games stand\n"
               "HUSTLE_SEED=N       draws that repeat from run to run");
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& end) {
        return app.exit(end) == 0 ? 0 : 2;
    }
    return -1;
}

// Plays a script in the window.
int watch_a_script(hustle::desktop::session& session, const std::string& path) {
    using namespace hustle::desktop;
    watching watched;
    if (const std::string wrong = hustle::script::read_script_file(path, watched.text); !wrong.empty()) {
        std::fprintf(stderr, "hoardhustle: %s %s\n", hustle::script::printable(path).c_str(), wrong.c_str());
        return 2;
    }
    watched.name = path;
    session.world.saving = false;
    open_session(session);
    start_watching(session, watched);
    const int result = QApplication::exec();
    stop_watching(watched);
    end_session(session);
    std::fputs(watched.failed.text.c_str(), stderr);
    return result != 0 ? result : watched.status;
}

// One program plays on the files of a folder. False where this one has nothing to do.
bool settle_who_plays(hustle::desktop::only_one& one, hustle::desktop::session& session,
                      const options& chosen) {
    using namespace hustle::desktop;
    const wish with = chosen.reduced_flashing ? wish::reduced_flashing
                      : chosen.full_flashing  ? wish::full_flashing
                                              : wish::to_front;
    const QString folder = data_folder();
    for (bool deaf = false; !claim_folder(one, folder); deaf = true)
        switch (ask_second(deaf)) {
        case second::to_front:
            if (call_to_front(folder, with))
                return false;
            break;
        case second::play_unsaved: session.world.saving = false; return true;
        case second::leave: return false;
        }
    listen_for_calls(one, folder, [&session](wish asked) {
        if (asked != wish::to_front)
            set_reduced_flashing(session, asked == wish::reduced_flashing);
        come_to_front(session);
    });
    return true;
}

} // namespace

int main(int argc, char** argv) {
    options chosen;
    const int status = read_arguments(chosen, argc, argv);
    if (status >= 0)
        return status;
    if (!names_a_folder()) {
        std::fputs("hoardhustle: the name of the folder in HUSTLE_DATA is no UTF-8\n", stderr);
        return 2;
    }
    if (!has_display()) {
        std::fputs(no_display, stderr);
        return 1;
    }
    keep_large_pieces_apart();
    qInstallMessageHandler(tell_message);
    QApplication application(argc, argv);
    QApplication::setApplicationName("hoardhustle");
    QApplication::setDesktopFileName("hoardhustle");
    QApplication::setQuitOnLastWindowClosed(false);
    hustle::desktop::session session;
    session.view = hustle::desktop::load_view_settings();
    if (chosen.reduced_flashing || chosen.full_flashing) {
        session.view.reduced_flashing = chosen.reduced_flashing;
        session.view.flashing_asked = true;
    }
    if (!chosen.watch.empty())
        return watch_a_script(session, chosen.watch);
    hustle::desktop::only_one one;
    if (!settle_who_plays(one, session, chosen))
        return 0;
    if (session.world.saving && (chosen.reduced_flashing || chosen.full_flashing))
        save_view_settings(session.view); // however this session ends
    hustle::desktop::start_session(session);
    const int result = session.g.p.over ? 0 : QApplication::exec();
    hustle::desktop::end_session(session);
    return session.world.lost ? 1 : result;
}
