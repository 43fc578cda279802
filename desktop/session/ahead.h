// Pictures that are likely to come are drawn in idle moments, one at a time; those of a screen that is
// neither on show nor about to be are let go.
#pragma once

namespace hustle::desktop {

struct session;

struct kept_pictures {
    bool main = true, board = false;
};

void start_drawing_ahead(session&);
// Draws coming pictures again, after a change of size.
void draw_ahead(session&);
// Chooses by the panel whose pictures are held from now on.
void choose_pictures(session&);

} // namespace hustle::desktop
