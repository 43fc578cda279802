// The window of main and of the feature board, with the menu bar.
#pragma once

#include "desktop/window/screenview.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QStackedWidget>

#include <vector>

namespace hustle::desktop {

class hintline;

class mainwindow : public QMainWindow {
public:
    explicit mainwindow(session&);

    // What stands around the panel in a window of that width: the menu bar and the hint line, pixels.
    QSize bars(int width) const;
    // Shows or hides the hint line, as the settings say.
    void show_hints();
    void leave_full_screen();
    // Everything is drawn anew.
    void repaint_all();

    // Shows main or the board, and brings the menu's ticks and the picture up to date.
    void refresh();
    hustle::screen shown_screen() const;
    screenview& main_view() const { return *on_main; }
    // The board's view, made at the first call.
    screenview& board_view();

protected:
    bool event(QEvent*) override;
    void closeEvent(QCloseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    void make_menus();
    void refresh_menus();

    session& played;
    QStackedWidget* stack;
    hintline* hint;
    QAction* full_screen = nullptr;
    screenview* on_main;
    screenview* on_board = nullptr;
    std::vector<std::pair<element, QAction*>> entries;
};

} // namespace hustle::desktop
