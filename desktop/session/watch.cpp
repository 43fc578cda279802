#include "desktop/session/watch.h"

#include "desktop/platform/sound.h"
#include "desktop/session/session.h"
#include "desktop/window/cabinetcolours.h"
#include "desktop/window/mainwindow.h"
#include "script/commands.h"
#include "script/scriptworld.h"

#include <QActionGroup>
#include <QLabel>
#include <QToolBar>

#include <ostream>

namespace hustle::desktop {

namespace {

constexpr int picture_ms = 16;
constexpr double still = 0, fastest = 20;

constexpr const char* bar_style = "QToolBar { background: @ground; border: none; padding: 2px; }"
                                  "QToolBar QToolButton, QToolBar QLabel { color: @cream; }"
                                  "QToolBar QToolButton { padding: 3px 8px; border-radius: 4px; }"
                                  "QToolBar QToolButton:checked { background: @violet; color: @ivory; }";

struct stop {}; // leaves the script

// On the script's thread: waits until the machine may go on from here.
void wait_here(watching& w, game& g, bool at_end) {
    std::unique_lock held(w.lock);
    w.waits = &g;
    w.ended = at_end;
    w.changed.wait(held, [&] { return w.stopped || (!at_end && w.allowed >= g.p.now); });
    w.waits = nullptr;
    if (w.stopped && !at_end)
        throw stop{};
}

// A script that lets no time pass can be ended as well.
void look_for_the_stop(watching& w) {
    const std::scoped_lock held(w.lock);
    if (w.stopped)
        throw stop{};
}

void run_it(watching& w) {
    std::ostream printed(&w.printed), failed(&w.failed);
    try {
        script::watch_script(
            w.text, w.name, printed, failed, [&](game& g) { wait_here(w, g, false); },
            [&](game& g, int status) {
                w.status = status;
                wait_here(w, g, true);
            },
            [&] { look_for_the_stop(w); });
    } catch (const stop&) {
    }
}

// The last of the sounds that have come since.
void play_new_sounds(std::string& sounds) {
    const std::size_t last = sounds.rfind(' ');
    const std::string_view wanted = std::string_view(sounds).substr(last == std::string::npos ? 0 : last + 1);
    for (std::size_t i = 0; i < sound_count; ++i)
        if (name(static_cast<sound>(i)) == wanted)
            play_wave(static_cast<sound>(i));
    sounds.clear();
}

// Into the window's own machine, with what has to be painted anew.
void copy_state(game& from, game& to) {
    to.m = from.m;
    to.b = from.b;
    to.t = from.t;
    to.p = from.p;
    for (std::size_t e = 0; e < element_count; ++e)
        at(from.p, static_cast<element>(e)).touched = false;
}

// The time, and at the end what did not hold: as much as there is room for, all of it where the mouse rests.
void tell_state(const session& s, const watching& w) {
    QString text = QString("  %1 s").arg(static_cast<double>(s.g.p.now) / 1000, 0, 'f', 2);
    if (w.ended) {
        text += "   the script has ended";
        if (const QString wrong = QString::fromStdString(w.failed.text).simplified(); !wrong.isEmpty())
            text += ": " + wrong;
        w.told->setToolTip(QString::fromStdString(w.failed.text).toHtmlEscaped());
    }
    const int room = std::max(100, s.window->width() - w.told->x() - 30);
    w.told->setText(w.told->fontMetrics().elidedText(text, Qt::ElideRight, room));
}

void show_state(session& s, watching& w) {
    const std::unique_lock held(w.lock);
    if (w.waits == nullptr)
        return;
    copy_state(*w.waits, s.g);
    play_new_sounds(static_cast<script::scriptworld&>(w.waits->w).sounds);
    refresh(s);
    if (w.told != nullptr)
        tell_state(s, w);
}

void let_on(watching& w) {
    const std::scoped_lock held(w.lock);
    w.allowed = static_cast<std::int64_t>(w.reach);
    w.changed.notify_all();
}

void add_bar(session& s, watching& w) {
    auto* const bar = new QToolBar("Watch", s.window);
    bar->setMovable(false);
    bar->setStyleSheet(in_cabinet_colours(bar_style));
    auto* const speeds = new QActionGroup(bar);
    for (const double speed : {still, 0.25, 1.0, 4.0, fastest}) {
        QAction* const action = bar->addAction(speed == still ? "Still" : QString("%1 x").arg(speed));
        action->setCheckable(true);
        action->setChecked(speed == w.speed);
        speeds->addAction(action);
        QObject::connect(action, &QAction::triggered, bar, [&w, speed] { w.speed = speed; });
    }
    QAction* const step = bar->addAction("Step");
    step->setShortcut(Qt::Key_Right);
    step->setToolTip("To the next moment at which something happens (Right)");
    QObject::connect(step, &QAction::triggered, bar, [&w, speeds] {
        w.speed = still;
        speeds->actions().constFirst()->setChecked(true);
        step_watched(w);
    });
    w.told = new QLabel(bar);
    w.told->setTextFormat(Qt::PlainText); // a message shows lines of a stranger's script
    bar->addWidget(w.told);
    s.window->addToolBar(Qt::BottomToolBarArea, bar);
}

} // namespace

void start_watching(session& s, watching& w) {
    s.watched = &w;
    w.worker = std::jthread([&w] { run_it(w); });
    w.real.start();
    QObject::connect(&w.look, &QTimer::timeout, &w.look, [&s, &w] {
        w.reach += static_cast<double>(w.real.restart()) * w.speed;
        show_state(s, w);
        if (w.told == nullptr && s.window != nullptr)
            add_bar(s, w);
        let_on(w);
    });
    w.look.start(picture_ms);
}

void stop_watching(watching& w) {
    w.look.stop();
    {
        const std::scoped_lock held(w.lock);
        w.stopped = true;
        w.changed.notify_all();
    }
    if (w.worker.joinable())
        w.worker.join();
}

void step_watched(watching& w) {
    {
        const std::scoped_lock held(w.lock);
        if (w.waits == nullptr || w.ended)
            return;
        w.reach = static_cast<double>(w.waits->p.now);
    }
    let_on(w);
}

} // namespace hustle::desktop
