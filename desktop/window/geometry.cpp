#include "desktop/window/geometry.h"

#include "desktop/window/mainwindow.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace hustle::desktop {

namespace {

constexpr double steps[] = {3.0, 2.5, 2.0, 1.75, 1.5, 1.25, 1.0, 0.9, 0.8, 0.75, 0.6, 0.5};
constexpr double smallest = 0.4;
// What a window manager may draw around a window whose frame is not known yet.
constexpr QSize frame(12, 44);

QRect work_area(const QWidget& window) {
    const QScreen* screen = window.screen() != nullptr ? window.screen() : QGuiApplication::primaryScreen();
    return screen->availableGeometry();
}

// Moves a window so that it lies in the work area with its frame.
void keep_on_screen(QWidget& window, const QRect& area) {
    const QSize whole = window.frameGeometry().size().expandedTo(window.size() + frame);
    const int x =
        std::clamp(window.pos().x(), area.left(), std::max(area.left(), area.right() - whole.width() + 1));
    const int y =
        std::clamp(window.pos().y(), area.top(), std::max(area.top(), area.bottom() - whole.height() + 1));
    if (window.pos() != QPoint(x, y)) // a frame that is not known yet would move it at each start
        window.move(x, y);
}

} // namespace

QSize fitting_size(QSize panel, QSize around, QSize area) {
    const auto fits = [&](double zoom) {
        return panel.width() * zoom + around.width() <= 0.95 * area.width() &&
               panel.height() * zoom + around.height() <= 0.95 * area.height();
    };
    for (const double zoom : steps)
        if (fits(zoom))
            return panel * zoom;
    const double width = (0.95 * area.width() - around.width()) / panel.width();
    const double height = (0.95 * area.height() - around.height()) / panel.height();
    return panel * std::max(smallest, std::min(width, height));
}

void place_main_window(mainwindow& window, const view_settings& view) {
    if (!view.place.isEmpty() && window.restoreGeometry(view.place)) {
        const QRect area = work_area(window);
        const QSize room = area.size() - frame;
        if (window.width() > room.width() || window.height() > room.height())
            window.resize(window.size().boundedTo(room));
        keep_on_screen(window, area);
        return;
    }
    const QRect area = work_area(window);
    const QSize panel =
        fitting_size(window.main_view().panel_size(), window.bars(area.width()) + frame, area.size());
    window.resize(panel + window.bars(panel.width()));
    window.move(area.center() - QRect(QPoint(0, 0), window.size() + frame).center());
    keep_on_screen(window, area);
}

void show_main_window(mainwindow& window, const view_settings& view) {
    window.setWindowState(window.windowState().setFlag(Qt::WindowFullScreen, view.full_screen));
    window.show();
}

void zoom_main_window(mainwindow& window, double zoom) {
    window.leave_full_screen();
    if (window.isMaximized())
        window.showNormal();
    const QRect area = work_area(window);
    const QSize wanted = (QSizeF(window.main_view().panel_size()) * std::max(zoom, smallest)).toSize();
    window.resize((wanted + window.bars(wanted.width())).boundedTo(area.size() - frame));
    keep_on_screen(window, area);
}

double main_window_zoom(const mainwindow& window) {
    return window.main_view().width() / static_cast<double>(window.main_view().panel_size().width());
}

void place_side_window(screenview& view, const mainwindow* over) {
    const QRect area = work_area(over != nullptr ? static_cast<const QWidget&>(*over) : view);
    const QSize size = view.panel_size();
    const double wanted = over != nullptr ? std::max(0.75, main_window_zoom(*over)) : 1;
    const double room = 0.9 * std::min(area.width() / static_cast<double>(size.width()),
                                       (area.height() - frame.height()) / static_cast<double>(size.height()));
    view.resize((QSizeF(size) * std::min(wanted, room)).toSize());
    const QRect about = over != nullptr && over->isVisible() ? over->geometry() : area;
    view.move(about.center() - view.rect().center());
    keep_on_screen(view, area);
}

} // namespace hustle::desktop
