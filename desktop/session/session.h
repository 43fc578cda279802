// One machine in its windows: the record that ties the game to the real clock and to what is on
// the screen, and the few functions that move it on.
//
// The machine's clock follows the real one. It stands while a message box is open.
#pragma once

#include "desktop/session/ahead.h"
#include "desktop/session/ledgers.h"
#include "desktop/session/nameform.h"
#include "desktop/session/qtworld.h"
#include "desktop/session/recorder.h"
#include "desktop/session/saver.h"
#include "desktop/window/viewsettings.h"
#include "screens/dispatch.h"
#include "show/clock.h"
#include "show/stage.h"

#include <QElapsedTimer>
#include <QTimer>

#include <array>

namespace hustle::desktop {

class mainwindow;
struct watching;
class screenview;

struct session {
    qtworld world;
    game g{world};

    view_settings view;

    QElapsedTimer real;
    machine_clock clock;
    int held = 0; // above 0 while a box or a blocking wait holds the machine
    bool started = false;
    bool seen = false;    // something has been painted
    bool leaving = false; // ended from outside: nothing is asked any more
    QTimer wake;          // the next tick
    QTimer ahead;         // draws pictures that will be needed, one at a time
    kept_pictures kept;   // whose pictures are held
    stage show;           // what moves beyond the panel
    QTimer picture;       // the next picture of it

    kept_ledgers ledgers;
    saver saving;
    name_form name;
    recorder record;
    watching* watched = nullptr; // the script that is played in place of the player; null: none
    QTimer second;               // between two flushes of the record

    mainwindow* window = nullptr;                 // of main and of the board
    std::array<screenview*, screen_count> side{}; // windows of the other screens, null while closed
    screen in_front = screen::software;           // as the windows last had it
};

// Makes the session ready for its windows: folders, timers, nothing of the machine yet.
void open_session(session&);
// Boots the machine into its windows; its clock starts with the first painted frame.
void start_session(session&);
// A view has been painted for the first time in this session: now the clock may start.
void first_painted(session&);
// Lets the player see it: the window in front, also where it was minimised.
void come_to_front(session&);
// The switch of the View menu, from outside.
void set_reduced_flashing(session&, bool on);
// Closes what is still open.
void end_session(session&);

// Applies one input that is the window's own, at the time that the machine has reached.
void feed(session&, const input&);
// Brings the machine up to the clock and applies one input. Nothing happens while it is held.
void send(session&, const input&);
// A window has been activated by the player.
void activated(session&, screen);

// Brings the windows into step with the panel.
void refresh(session&);
// The volume that the settings and the machine's own switch ask for, in percent of the loudest; 0: silence.
int loudness(const session&);
// Brings the sound to it.
void set_loudness(session&);
// Makes the window of main, before it is shown.
void open_main(session&);

// While one of these lives no tick is delivered and no input taken.
struct hold_machine {
    session& s;
    qint64 since; // real ms
    explicit hold_machine(session&);
    hold_machine(const hold_machine&) = delete;
    hold_machine& operator=(const hold_machine&) = delete;
    // The clock goes on from where it was, but for `counted` ms that the machine adds by itself.
    void release(int counted);
};

} // namespace hustle::desktop
