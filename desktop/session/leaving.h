// The ways out of the program that are not the machine's own: they all end in its exit routine.
#pragma once

namespace hustle::desktop {

struct session;

// SIGTERM, SIGINT, SIGHUP and the end of the desktop session leave, from now on.
void watch_for_the_end(session&);

// Leaves as a player does who closes every window in turn, asking nothing: the exit routine, then
// the name form as it stands, then the table. Open boxes are answered with No or OK.
void leave(session&);

// The player closes the window. While the board shows it is asked first: the game in play is lost.
void ask_to_leave(session&);

} // namespace hustle::desktop
