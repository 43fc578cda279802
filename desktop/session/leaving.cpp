#include "desktop/session/leaving.h"

#include "desktop/session/session.h"
#include "desktop/window/boxes.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QSessionManager>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace hustle::desktop {

namespace {

constexpr int again_ms = 10;    // while a box or a wait comes to its end
constexpr int most_windows = 8; // closed in turn

int wake_end = -1; // of the pair that wakes the event loop; a signal handler may only write

void on_signal(int) {
    const int kept = errno;
    const char byte = 1;
    [[maybe_unused]] const ssize_t ignored = ::write(wake_end, &byte, 1);
    errno = kept;
}

// The window whose close leads on to the end.
screen next_to_close(const game& g) {
    if (is_loaded(g.p, screen::Entername))
        return screen::Entername;
    return g.m.exiting == 1 && is_loaded(g.p, screen::Highscore) ? screen::Highscore : screen::main;
}

void refuse_boxes() {
    if (QWidget* const box = QApplication::activeModalWidget()) {
        if (auto* const dialog = qobject_cast<QDialog*>(box))
            dialog->reject();
        else
            box->close();
    }
}

} // namespace

void watch_for_the_end(session& s) {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends.data()) == 0) {
        wake_end = ends[0];
        auto* const ear = new QSocketNotifier(ends[1], QSocketNotifier::Read, &s.wake);
        QObject::connect(ear, &QSocketNotifier::activated, ear, [&s, from = ends[1]] {
            std::array<char, 16> bytes{};
            [[maybe_unused]] const ssize_t ignored = ::read(from, bytes.data(), bytes.size());
            leave(s);
        });
        struct sigaction action {};
        action.sa_handler = on_signal;
        action.sa_flags = SA_RESTART;
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            struct sigaction before {};
            ::sigaction(signal, nullptr, &before);
            if (before.sa_handler != SIG_IGN) // as under nohup
                ::sigaction(signal, &action, nullptr);
        }
    }
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, &s.wake,
                     [&s](QSessionManager&) { leave(s); });
}

void leave(session& s) {
    if (s.watched != nullptr) // nothing of it is kept, and its machine may be over
        return QCoreApplication::exit(0);
    s.leaving = true;
    if (s.held > 0 || QApplication::activeModalWidget() != nullptr) {
        refuse_boxes();
        QTimer::singleShot(again_ms, &s.wake, [&s] { leave(s); });
        return;
    }
    for (int i = 0; i < most_windows && !s.g.p.over; ++i)
        send(s, {input::kind::close, next_to_close(s.g)});
    if (!s.g.p.over) // nothing has been played yet
        QCoreApplication::exit(0);
}

void ask_to_leave(session& s) {
    if (s.watched != nullptr)
        return QCoreApplication::exit(0);
    if (!s.started)
        return;
    if (s.held > 0) { // a wait of the machine's: the wish is not forgotten over it
        QTimer::singleShot(again_ms, &s.wake, [&s] { ask_to_leave(s); });
        return;
    }
    if (is_loaded(s.g.p, screen::feature) && s.g.m.exiting != 1) {
        hold_machine hold(s);
        QMessageBox box(QMessageBox::Question, {}, "Leave, and lose this game?",
                        QMessageBox::Yes | QMessageBox::No, box_parent());
        dress(box, "Hoard Hustle");
        add_plain(box, "What is on the board is not paid. What is in the bank counts for the table.");
        box.setDefaultButton(QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
        const int answer = box.exec();
        hold.release(0);
        if (answer != QMessageBox::Yes)
            return;
    }
    send(s, {input::kind::close, screen::main});
}

} // namespace hustle::desktop
