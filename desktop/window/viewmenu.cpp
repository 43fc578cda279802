#include "desktop/window/viewmenu.h"

#include "desktop/session/session.h"
#include "desktop/window/boxes.h"
#include "desktop/window/geometry.h"
#include "desktop/window/mainwindow.h"

#include <QActionGroup>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

namespace hustle::desktop {

namespace {

constexpr int zooms[] = {50, 75, 100, 125, 150, 200, 300}; // percent of the panel's own size
constexpr int volumes[] = {100, 75, 50, 25};               // percent

// Where nothing is saved they are another program's.
void keep_view(const session& s) {
    if (s.world.saving)
        save_view_settings(s.view);
}

// A switch of the settings as an entry with a tick; `after` carries a change out.
template <class After>
QAction* add_switch(QMenu& menu, session& s, const char* text, bool view_settings::*which,
                    const After& after) {
    QAction* action = menu.addAction(text);
    action->setCheckable(true);
    action->setChecked(s.view.*which);
    QObject::connect(action, &QAction::toggled, &menu, [&s, which, after](bool on) {
        s.view.*which = on;
        keep_view(s);
        after();
    });
    return action;
}

void add_full_screen(QMenu& menu, mainwindow& window, session& s) {
    QAction* full = add_switch(menu, s, "&Full Screen", &view_settings::full_screen, [&window, &s] {
        show_main_window(window, s.view);
        window.setFocus();
    });
    full->setObjectName("full_screen");
    full->setShortcuts({QKeySequence(Qt::Key_F11), QKeySequence(Qt::ALT | Qt::Key_Return),
                        QKeySequence(Qt::ALT | Qt::Key_Enter)});
}

void add_zoom(QMenu& menu, mainwindow& window) {
    QMenu* zoom = menu.addMenu("&Zoom");
    for (const int percent : zooms) {
        QAction* action = zoom->addAction(QString("%1 %").arg(percent));
        QObject::connect(action, &QAction::triggered, &window,
                         [&window, percent] { zoom_main_window(window, percent / 100.0); });
    }
    zoom->addSeparator();
    const auto step = [&](const char* text, const QKeySequence& keys, double factor) {
        QAction* action = zoom->addAction(text);
        action->setShortcut(keys);
        QObject::connect(action, &QAction::triggered, &window,
                         [&window, factor] { zoom_main_window(window, factor * main_window_zoom(window)); });
    };
    step("&Larger", QKeySequence(Qt::CTRL | Qt::Key_Plus), 1.25);
    step("&Smaller", QKeySequence(Qt::CTRL | Qt::Key_Minus), 0.8);
}

void add_volume(QMenu& menu, session& s) {
    QMenu* volume = menu.addMenu("&Volume");
    auto* group = new QActionGroup(volume);
    for (const int percent : volumes) {
        QAction* action = volume->addAction(QString("%1 %").arg(percent));
        action->setCheckable(true);
        action->setChecked(s.view.volume == percent);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, volume, [&s, percent] {
            s.view.volume = percent;
            keep_view(s);
        });
    }
    volume->addSeparator();
    add_switch(*volume, s, "&Mute", &view_settings::muted, [] {
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_M));
}

} // namespace

void fill_view_menu(QMenu& menu, mainwindow& window, session& s) {
    add_full_screen(menu, window, s);
    add_zoom(menu, window);
    menu.addSeparator();
    add_switch(menu, s, "&Reduced Flashing", &view_settings::reduced_flashing, [&window] {
        window.repaint_all();
    })->setObjectName("reduced_flashing");
    add_switch(menu, s, "&Hints", &view_settings::hints, [&window] { window.show_hints(); });
    menu.addSeparator();
    add_volume(menu, s);
    QAction* const record = add_switch(menu, s, "Recor&d the Session", &view_settings::recording, [] {});
    QObject::connect(&menu, &QMenu::aboutToShow, record, [&s, record] {
        const bool later = s.view.recording && s.record.file < 0;
        record->setVisible(s.watched == nullptr); // a script is there already
        record->setText(later ? "Recor&d the Session (from the next start)" : "Recor&d the Session");
    });
}

void ask_about_flashing(session& s) {
    if (s.view.flashing_asked)
        return;
    QMessageBox box;
    dress(box, "Before you play");
    box.setIcon(QMessageBox::Question);
    box.setText("Hoard Hustle flashes: lamps and pictures go on and off several times a second.");
    add_plain(box, "This can hurt people with photosensitive epilepsy. With reduced flashing the same lamps "
                   "glow steadily or change slowly, and the game is the same.\n\n"
                   "You can change this at any time in the View menu.");
    QPushButton* reduce = box.addButton("&Reduce flashing", QMessageBox::AcceptRole);
    QPushButton* full = box.addButton("&Flash as the real machine does", QMessageBox::RejectRole);
    box.setDefaultButton(reduce);
    box.setEscapeButton(reduce); // who closes the box has not agreed to flashing
    box.exec();
    s.view.reduced_flashing = box.clickedButton() != static_cast<QAbstractButton*>(full);
    s.view.flashing_asked = true;
    save_view_settings(s.view);
}

} // namespace hustle::desktop
