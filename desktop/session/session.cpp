#include "desktop/session/session.h"

#include "core/start.h"
#include "desktop/platform/sound.h"
#include "desktop/window/mainwindow.h"

#include <QApplication>
#include <QMenuBar>
#include <QScreen>
#include <QTime>

#include <algorithm>
#include <cstdio>

namespace hustle::desktop {

namespace {

constexpr int ahead_ms = 8; // between two pictures that are drawn ahead

void arm(session& s) {
    std::int64_t due = 0;
    if (s.g.p.over || s.held > 0 || !s.started || !next_due(s.g.p, due))
        return;
    s.wake.start(
        static_cast<int>(std::clamp<qint64>(due - reading(s.clock, s.g.p, s.real.elapsed()), 0, 60000)));
}

void deliver_due(session& s) {
    if (s.held > 0 || s.g.p.over)
        return;
    deliver(s.g, catch_up(s.clock, s.g.p, s.real.elapsed()));
    refresh(s);
    arm(s);
}

// Splash: a bare picture. Any other: a window of its own that holds nothing up.
screenview* open_window(session& s, screen what) {
    auto* view = new screenview(s, what);
    const QSize size = view->panel_size();
    double zoom = 1;
    if (s.window != nullptr)
        zoom = std::max(0.75, s.window->main_view().width() /
                                  static_cast<double>(s.window->main_view().panel_size().width()));
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    zoom = std::min(zoom, 0.9 * room.height() / size.height());
    const QRect about = s.window != nullptr && s.window->isVisible() ? s.window->geometry() : room;
    view->resize(size * zoom);
    view->move(about.center() - view->rect().center());
    if (what == screen::software)
        view->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    else
        view->setMinimumSize(size / 2);
    return view;
}

// The largest of a few sizes that leaves room on the screen.
void open_main(session& s) {
    s.window = new mainwindow(s);
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QSizeF panel = s.window->main_view().panel_size();
    double zoom = 1;
    for (const double larger : {1.25, 1.5, 1.75, 2.0, 2.5, 3.0})
        if (panel.height() * larger < 0.8 * room.height() && panel.width() * larger < 0.9 * room.width())
            zoom = larger;
    const QSize menu(0, s.window->menuBar()->sizeHint().height());
    s.window->resize((panel * zoom).toSize() + menu);
    s.window->move(room.center() - s.window->rect().center());
}

bool is_main_pair(screen what) { return what == screen::main || what == screen::feature; }

bool is_on_show(const panel& p, screen what) {
    const auto end = p.shown.begin() + p.shown_count;
    return std::find(p.shown.begin(), end, what) != end;
}

void refresh_side(session& s, screen what) {
    screenview*& view = s.side[static_cast<std::size_t>(what)];
    const bool wanted = is_on_show(s.g.p, what);
    if (!wanted && view != nullptr) {
        view->hide();
        view->deleteLater();
        view = nullptr;
    }
    if (!wanted)
        return;
    const bool fresh = view == nullptr;
    if (fresh)
        view = open_window(s, what);
    const QString title = QString::fromStdString(s.g.p.titles[static_cast<std::size_t>(what)]);
    if (view->windowTitle() != title)
        view->setWindowTitle(title);
    view->refresh();
    if (fresh) {
        view->show();
        view->speak();
    }
}

void raise_front(session& s) {
    const screen now = front(s.g.p);
    if (now == s.in_front)
        return;
    s.in_front = now;
    QWidget* top = s.window;
    if (!is_main_pair(now))
        top = s.side[static_cast<std::size_t>(now)];
    if (top == nullptr)
        return;
    top->raise();
    top->activateWindow();
}

// What can wait until the player sees something.
void after_first_frame(session& s) {
    if (s.held > 0) { // a box stands open: later
        QTimer::singleShot(100, &s.wake, [&s] { after_first_frame(s); });
        return;
    }
    s.started = true;
    s.clock.behind = s.real.elapsed() - s.g.p.now;
    open_ears(s.world);
    draw_ahead(s);
    arm(s);
}

void draw_one(session& s) {
    if (s.window == nullptr) { // while the splash stands: main, so that it comes at once
        open_main(s);
        return;
    }
    if (s.window->main_view().draw_one_ahead() || !s.window->isVisible())
        return;
    s.window->main_view().speak();
    screenview& board = s.window->board_view();
    if (board.draw_one_ahead())
        return;
    board.speak();
    s.ahead.stop();
}

} // namespace

void start_session(session& s) {
    s.world.s = &s;
    prepare_world(s.world);
    s.real.start();
    s.wake.setSingleShot(true);
    s.wake.setTimerType(Qt::PreciseTimer);
    QObject::connect(&s.wake, &QTimer::timeout, &s.wake, [&s] { deliver_due(s); });
    s.ahead.setInterval(ahead_ms);
    QObject::connect(&s.ahead, &QTimer::timeout, &s.ahead, [&s] { draw_one(s); });
    reset_game(s.g, QTime::currentTime().msecsSinceStartOfDay());
    boot(s.g);
    settle(s.g);
    refresh(s);
}

void first_painted(session& s) {
    if (qEnvironmentVariableIsSet("HUSTLE_FIRST_FRAME")) {
        std::puts("first frame");
        std::fflush(stdout);
    }
    QTimer::singleShot(0, &s.wake, [&s] { after_first_frame(s); });
}

void end_session(session& s) {
    s.wake.stop();
    s.ahead.stop();
    for (screenview* view : s.side)
        delete view;
    delete s.window;
    close_sound();
}

void send(session& s, const input& in) {
    if (s.held > 0 || s.g.p.over || !s.started)
        return;
    deliver(s.g, catch_up(s.clock, s.g.p, s.real.elapsed()));
    apply(s.g, in);
    settle(s.g);
    refresh(s);
    arm(s);
}

void activated(session& s, screen what) {
    if (s.held > 0 || !s.started || front(s.g.p) == what)
        return;
    s.in_front = what; // it is there already
    send(s, {input::kind::show, what});
}

void refresh(session& s) {
    for (const screen_row& r : screen_rows())
        if (!is_main_pair(r.id))
            refresh_side(s, r.id);
    if (is_on_show(s.g.p, screen::main)) {
        if (s.window == nullptr)
            open_main(s);
        s.window->refresh();
        if (!s.window->isVisible())
            s.window->show();
    }
    if (!s.g.p.over)
        raise_front(s);
}

void draw_ahead(session& s) {
    if (s.started)
        s.ahead.start();
}

hold_machine::hold_machine(session& held) : s(held), since(held.real.elapsed()) {
    ++s.held;
    refresh(s);
}

void hold_machine::release(int counted) {
    --s.held;
    if (s.started)
        s.clock.behind += s.real.elapsed() - since - counted;
}

} // namespace hustle::desktop
