// Keeps what moves beyond the panel going: at the display's rate while something moves, not at all
// while nothing does.
#pragma once

namespace hustle::desktop {

struct session;

// Once, before the first picture.
void start_motion(session&);
// The panel has changed; before its marks are cleared.
void take_in_motion(session&);
// Moves everything on to now, has the views paint what looks different, and waits for the next picture.
void move_on(session&);
// Between two pictures of a display that shows so many a second.
int picture_ms(double rate);

} // namespace hustle::desktop
