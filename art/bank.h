// Who draws what. Each artist draws the pictures of one family; the number tells it which one.
#pragma once

#include "art/pen.h"

namespace hustle {

using artist = void (*)(pen&, int which);

constexpr int lit = 100; // added to the number of a lamp that is lit

void draw_reel(pen&, int stop);           // 1 to 16; 100 more: with a dollar sign
void draw_spinning_reel(pen&, int phase); // 1 to 4
void draw_reelpaper(pen&, int);           // a reel from behind its symbols to before them
void draw_reelstrip(pen&, int which);     // all sixteen stops one below the other; 100: dollars
void draw_reelglass(pen&, int);
void draw_coin(pen&, int which); // 0 pounds, 100 dollars
void draw_strip(pen&, int);      // all sixteen stops, stop 1 on top
void draw_strip_marker(pen&, int);

void draw_die(pen&, int face);           // 1 to 6
void draw_spinning_die(pen&, int phase); // 1 to 4

void draw_button(pen&, int which);       // a key of buttons.cpp
void draw_nudge_ladder(pen&, int which); // the one rung lit, 0 none; 10 more: all rungs up to it
void draw_nudge_lamp(pen&, int which);

void draw_square(pen&, int square); // 1 to 24

void draw_title(pen&, int which); // 1 gold, 2 neon
void draw_back(pen&, int);
void draw_buttonbar(pen&, int);
void draw_reelframe(pen&, int);
void draw_lineframe(pen&, int);
void draw_still(pen&, int which); // 1 to 3
void draw_transfer(pen&, int);
void draw_trailheld(pen&, int);

void draw_ring_centre(pen&, int);
void draw_bomb(pen&, int which);
void draw_shotspanel(pen&, int);
void draw_dicepanel(pen&, int);
void draw_extralife(pen&, int);
void draw_lose(pen&, int);

void draw_startscreen(pen&, int);
void draw_wins(pen&, int which); // 0 pounds, 1 dollars
void draw_statisticsback(pen&, int);
void draw_highscoreback(pen&, int);
void draw_icon(pen&, int);

} // namespace hustle
