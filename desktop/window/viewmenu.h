// The window's own menu, last in the bar: what is seen and heard of the machine, never what it does.
#pragma once

class QMenu;

namespace hustle::desktop {

class mainwindow;
struct session;

// Adds the entries, each with its access key and shortcut, and joins them to the session's settings.
void fill_view_menu(QMenu&, mainwindow&, session&);

// Asks once, in plain words and before the first lamp flashes, whether flashing is to be reduced.
void ask_about_flashing(session&);

} // namespace hustle::desktop
