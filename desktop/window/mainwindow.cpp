#include "desktop/window/mainwindow.h"

#include "desktop/session/leaving.h"
#include "desktop/session/session.h"
#include "desktop/window/cabinetcolours.h"
#include "desktop/window/hintline.h"
#include "desktop/window/keys.h"
#include "desktop/window/viewmenu.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace hustle::desktop {

namespace {

QString words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Each entry of a menu gets the first of its letters that no other one has.
QString with_mnemonic(QString caption, QString& taken) {
    for (qsizetype i = 0; i < caption.size(); ++i) {
        const QChar letter = caption[i].toLower();
        if (!letter.isLetter() || taken.contains(letter))
            continue;
        taken += letter;
        return caption.insert(i, '&');
    }
    return caption;
}

} // namespace

mainwindow::mainwindow(session& s) : played(s), stack(new QStackedWidget(this)) {
    on_main = new screenview(s, hustle::screen::main, stack);
    stack->addWidget(on_main);
    stack->setMinimumSize(280, 197);
    hint = new hintline(this);
    auto* middle = new QWidget(this);
    auto* column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(stack, 1);
    column->addWidget(hint);
    setCentralWidget(middle);
    make_menus();
    show_hints();
}

QSize mainwindow::bars(int width) const {
    return {0, menuBar()->sizeHint().height() + (played.view.hints ? hintline::height_at(width) : 0)};
}

void mainwindow::show_hints() {
    hint->setVisible(played.view.hints);
    hint->tell(played.g, played.watched != nullptr);
}

void mainwindow::repaint_all() {
    on_main->update();
    if (on_board != nullptr)
        on_board->update();
}

screenview& mainwindow::board_view() {
    if (on_board == nullptr) {
        on_board = new screenview(played, hustle::screen::feature, stack);
        stack->addWidget(on_board);
        on_board->resize(stack->size());
    }
    return *on_board;
}

// The menu in the colours of the cabinet.
constexpr const char* menu_style =
    "QMenuBar { background: @ground; color: @cream; border-bottom: 1px solid @groove; padding: 2px; }"
    "QMenuBar::item { background: transparent; padding: 3px 10px; }"
    "QMenuBar::item:selected { background: @violet; color: @ivory; border-radius: 4px; }"
    "QMenu { background: @ground; color: @cream; border: 1px solid @rim; padding: 4px; }"
    "QMenu::item { padding: 4px 28px 4px 26px; border-radius: 4px; }"
    "QMenu::item:selected { background: @violet; color: @ivory; }"
    "QMenu::separator { height: 1px; background: @groove; margin: 4px 8px; }"
    "QMenu::indicator { width: 10px; height: 10px; left: 8px; border-radius: 5px; border: 1px solid @rim; "
    "}"
    "QMenu::indicator:checked { background: @gold; }";

void mainwindow::make_menus() {
    menuBar()->setStyleSheet(in_cabinet_colours(menu_style));
    QMenu* menu = nullptr;
    std::string_view title;
    QString taken;
    for (const menu_row& r : menu_rows()) {
        if (menu == nullptr || r.menu != title) {
            title = r.menu;
            menu = menuBar()->addMenu("&" + words(title));
            taken.clear();
        }
        if (r.entry == element::total) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(with_mnemonic(words(row(r.entry).text), taken));
        action->setCheckable(title == "Options");
        QObject::connect(action, &QAction::triggered, this, [this, e = r.entry] {
            send(played, {input::kind::press, hustle::screen::main, e});
            refresh_menus(); // the toolkit has moved the tick by itself
        });
        entries.emplace_back(r.entry, action);
    }
    fill_view_menu(*menuBar()->addMenu("&View"), *this, played);
    full_screen = findChild<QAction*>("full_screen");
    auto* quit = new QAction(this);
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    QObject::connect(quit, &QAction::triggered, this, &QWidget::close);
    addAction(quit);
    for (QAction* action : findChildren<QAction*>()) // in the side windows too
        action->setShortcutContext(Qt::ApplicationShortcut);
}

void mainwindow::leave_full_screen() {
    if (isFullScreen())
        full_screen->setChecked(false);
}

void mainwindow::refresh_menus() {
    for (const auto& [e, action] : entries) {
        element_state& state = at(played.g.p, e);
        state.touched = false;
        action->setEnabled(state.enabled);
        action->setVisible(state.visible);
        if (action->isCheckable())
            action->setChecked(state.checked);
    }
}

screen mainwindow::shown_screen() const {
    return is_loaded(played.g.p, hustle::screen::feature) ? hustle::screen::feature : hustle::screen::main;
}

void mainwindow::refresh() {
    const panel& p = played.g.p;
    for (const auto& [e, action] : entries)
        if (at(p, e).touched) {
            refresh_menus();
            break;
        }
    screenview* view = shown_screen() == hustle::screen::feature ? &board_view() : on_main;
    if (stack->currentWidget() != view) {
        stack->setCurrentWidget(view);
        view->setFocus(Qt::OtherFocusReason);
        view->update();
    }
    const QString title = QString::fromStdString(p.titles[static_cast<std::size_t>(shown_screen())]);
    if (windowTitle() != title)
        setWindowTitle(title);
    view->refresh();
    if (played.view.hints)
        hint->tell(played.g, played.watched != nullptr);
}

bool mainwindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        activated(played, shown_screen());
    return QMainWindow::event(event);
}

// Only the machine's own way out ends the program.
void mainwindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    ask_to_leave(played);
}

// Keys reach the machine whatever has the focus in its window.
void mainwindow::keyPressEvent(QKeyEvent* event) {
    const int code = event->isAutoRepeat() ? 0 : machine_key(*event);
    if (code != 0)
        send(played, {input::kind::key, shown_screen(), element::total, code});
    else if (event->key() == Qt::Key_Escape && isFullScreen())
        leave_full_screen();
    else
        event->ignore();
}

} // namespace hustle::desktop
