// The windows of a session: which stand open, and which is in front.
#include "desktop/session/ahead.h"
#include "desktop/session/motion.h"
#include "desktop/session/session.h"

#include "desktop/platform/places.h"
#include "desktop/platform/readypicture.h"
#include "desktop/window/geometry.h"
#include "desktop/window/mainwindow.h"

#include <QApplication>

#include <algorithm>

namespace hustle::desktop {

namespace {

// Splash: a bare picture. Any other: a window of its own that holds nothing up and stays above the
// main one, so that a form is never lost behind it.
screenview* open_window(session& s, screen what) {
    auto* view = new screenview(s, what);
    if (what == screen::software) {
        view->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    } else {
        // A dialog by its kind: only of such a one the toolkit tells the window manager whose it is.
        view->setParent(s.window, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                      Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
        view->setMinimumSize(view->panel_size() / 2);
    }
    place_side_window(*view, s.window);
    if (what == screen::software)
        view->take_ready(art::startscreen,
                         read_ready(shipped_folder("pictures") + "/splash.rgbx", splash_size));
    return view;
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
        view->speak();
        view->setFocus(Qt::OtherFocusReason); // else a button takes it, unseen, and Enter presses that
        view->show();
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

} // namespace

void open_main(session& s) {
    s.window = new mainwindow(s);
    place_main_window(*s.window, s.view);
    // Its layout tells it so when it comes up; until then its pictures are drawn ahead for this size.
    const QSize whole = s.window->size();
    s.window->main_view().resize(whole - s.window->bars(whole.width()));
}

void refresh(session& s) {
    set_loudness(s);
    take_in_motion(s);
    for (const screen_row& r : screen_rows())
        if (!is_main_pair(r.id))
            refresh_side(s, r.id);
    if (is_on_show(s.g.p, screen::main)) {
        if (s.window == nullptr)
            open_main(s);
        s.window->refresh();
        if (!s.window->isVisible())
            show_main_window(*s.window, s.view);
        choose_pictures(s);
    }
    if (!s.g.p.over) {
        move_on(s);
        raise_front(s);
    }
}

void come_to_front(session& s) {
    QWidget* top = QApplication::activeModalWidget();
    if (top == nullptr && !is_main_pair(s.in_front))
        top = s.side[static_cast<std::size_t>(s.in_front)];
    if (top == nullptr)
        top = s.window;
    if (top == nullptr)
        return;
    top->setWindowState(top->windowState() & ~Qt::WindowMinimized);
    top->show();
    top->raise();
    top->activateWindow();
}

} // namespace hustle::desktop
