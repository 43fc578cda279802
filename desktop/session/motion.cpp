#include "desktop/session/motion.h"

#include "desktop/session/session.h"
#include "desktop/window/mainwindow.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace hustle::desktop {

namespace {

// The view of a screen that has one; null otherwise.
screenview* view_of(session& s, screen what) {
    if (what != screen::main && what != screen::feature)
        return s.side[static_cast<std::size_t>(what)];
    if (s.window == nullptr || s.window->shown_screen() != what)
        return nullptr;
    return what == screen::main ? &s.window->main_view() : &s.window->board_view();
}

} // namespace

int picture_ms(double rate) { return std::clamp(static_cast<int>(1000 / std::max(rate, 1.0)), 6, 33); }

void start_motion(session& s) {
    s.picture.setSingleShot(true);
    s.picture.setTimerType(Qt::PreciseTimer);
    QObject::connect(&s.picture, &QTimer::timeout, &s.picture, [&s] { move_on(s); });
}

void take_in_motion(session& s) {
    if (s.show.reduced != s.view.reduced_flashing)
        set_reduced(s.show, s.g, s.view.reduced_flashing);
    take_in(s.show, s.g, s.real.elapsed());
}

void move_on(session& s) {
    const int next = advance(s.show, s.g, s.real.elapsed());
    for (const patch& p : s.show.patches)
        if (screenview* view = view_of(s, p.where))
            view->repaint_area(p.area);
    s.show.patches.clear();
    if (next >= 0)
        s.picture.start(std::max(next, picture_ms(QGuiApplication::primaryScreen()->refreshRate())));
}

} // namespace hustle::desktop
