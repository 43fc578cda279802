#include "desktop/session/session.h"

#include "desktop/session/ahead.h"
#include "desktop/session/motion.h"

#include "core/start.h"
#include "desktop/platform/sound.h"
#include "desktop/session/leaving.h"
#include "desktop/window/mainwindow.h"
#include "desktop/window/viewmenu.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QTime>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace hustle::desktop {

namespace {

constexpr int flush_ms = 1000; // of the record

void arm(session& s) {
    std::int64_t due = 0;
    if (s.g.p.over || s.held > 0 || !s.started || !next_due(s.g.p, due))
        return;
    s.wake.start(
        static_cast<int>(std::clamp<qint64>(due - reading(s.clock, s.g.p, s.real.elapsed()), 0, 60000)));
}

void after_event(session& s) {
    fill_in_name(s);
    keep_ledgers(s);
    refresh(s);
    arm(s);
}

// Delivers what is due by the clock.
void bring_up(session& s) {
    const std::int64_t until = catch_up(s.clock, s.g.p, s.real.elapsed());
    timer tick{};
    while (!is_loaded(s.g.p, screen::main) && deliver_one(s.g, until, tick))
        if (is_loaded(s.g.p, screen::main))
            record_boot(s.record, s.g);
    record_ticks(s.record, until);
    deliver(s.g, until);
}

void write_record(session& s) {
    if (!s.view.recording)
        end_recording(s.record);
    if (s.held == 0)
        flush_recording(s.record, s.g);
}

void deliver_due(session& s) {
    if (s.held > 0 || s.g.p.over)
        return;
    bring_up(s);
    after_event(s);
}

// What can wait until the player sees something.
void after_first_frame(session& s) {
    if (s.held > 0) { // a box stands open: later
        QTimer::singleShot(100, &s.wake, [&s] { after_first_frame(s); });
        return;
    }
    watch_for_the_end(s);
    open_ears(s.world);
    QApplication::setWindowIcon(program_icon());
    if (s.watched != nullptr) // it has a clock of its own
        return;
    s.started = true;
    s.clock.behind = s.real.elapsed() - s.g.p.now;
    begin_ledgers(s);
    draw_ahead(s);
    arm(s);
    tell_if_unwritable(s.world);
}

} // namespace

void open_session(session& s) {
    s.world.s = &s;
    prepare_world(s.world);
    ask_about_flashing(s);
    s.real.start();
    s.wake.setSingleShot(true);
    s.wake.setTimerType(Qt::PreciseTimer);
    QObject::connect(&s.wake, &QTimer::timeout, &s.wake, [&s] { deliver_due(s); });
    start_drawing_ahead(s);
    start_motion(s);
}

void start_session(session& s) {
    open_session(s);
    const int clock_ms = QTime::currentTime().msecsSinceStartOfDay();
    reset_game(s.g, clock_ms);
    boot(s.g);
    if (s.world.saving && s.view.recording)
        begin_recording(s.record, QFile::encodeName(s.world.data).toStdString(), s.g, clock_ms);
    QObject::connect(&s.second, &QTimer::timeout, &s.second, [&s] { write_record(s); });
    s.second.start(flush_ms);
    refresh(s);
}

void first_painted(session& s) {
    if (qEnvironmentVariableIsSet("HUSTLE_FIRST_FRAME")) {
        std::puts("first frame");
        std::fflush(stdout);
    }
    QTimer::singleShot(0, &s.wake, [&s] { after_first_frame(s); });
}

int loudness(const session& s) { return s.view.muted || s.g.m.soundstate != setting::on ? 0 : s.view.volume; }

void set_loudness(session& s) { set_volume(loudness(s)); }

void set_reduced_flashing(session& s, bool on) {
    QAction* const entry = s.window != nullptr ? s.window->findChild<QAction*>("reduced_flashing") : nullptr;
    s.view.reduced_flashing = on; // no window stands yet: it comes up so
    if (entry != nullptr)
        entry->setChecked(on);
}

void end_session(session& s) {
    if (s.leaving && !s.g.p.over) // the desktop's end did not wait for a box to be gone
        leave(s);
    finish(s.saving);
    flush_recording(s.record, s.g);
    end_recording(s.record);
    if (s.window != nullptr)
        s.view.place = s.window->saveGeometry(); // in full screen: the place that it has otherwise
    if (s.world.saving)                          // else they are another program's
        save_view_settings(s.view);
    s.wake.stop();
    s.picture.stop();
    s.ahead.stop();
    for (screenview*& view : s.side)
        delete std::exchange(view, nullptr);
    delete std::exchange(s.window, nullptr);
    close_sound();
}

void feed(session& s, const input& in) {
    std::string text(in.text);
    std::erase_if(text, [](char c) { return (c >= 0 && c < ' ') || c == 127; }); // no script takes these
    input clean = in;
    clean.text = text;
    record_begun(s.record, s.g, clean);
    apply(s.g, clean);
    record_input(s.record, s.g);
}

void send(session& s, const input& in) {
    if (s.held > 0 || s.g.p.over || !s.started)
        return;
    bring_up(s);
    feed(s, in);
    after_event(s);
}

void activated(session& s, screen what) {
    if (s.held > 0 || !s.started || front(s.g.p) == what)
        return;
    s.in_front = what; // it is there already
    send(s, {input::kind::show, what});
}

hold_machine::hold_machine(session& held) : s(held), since(held.real.elapsed()) {
    ++s.held;
    refresh(s);
}

void hold_machine::release(int counted) {
    --s.held;
    if (s.started)
        s.clock.behind += s.real.elapsed() - since - counted;
    arm(s); // its tick may have come and gone meanwhile
}

} // namespace hustle::desktop
