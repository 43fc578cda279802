// Three reels of sixteen stops.
#pragma once

#include "core/game.h"
#include "panel/strip.h"

#include <array>

namespace hustle {

inline const stop_row& strip_stop(int position) {
    return strip[static_cast<std::size_t>(position - 1) % strip.size()];
}

// The values of one reel, for routines that serve all three.
struct reel_fields {
    count& pos;
    word& sym;
    count& num;
    word& held;
    element picture;
    element button;
};
reel_fields reel(game&, int which); // 1 to 3

// Position, symbol, picture and number of a reel, all at once.
void set_stop(game&, int which, int position);
// Symbol and picture only: what awards show.
void show_stop(game&, int which, int position);
// The picture of a symbol word that was promised; nothing where the word is none of the seven.
void show_forced(game&, int which);
// The picture that a reel shows for a symbol word that was promised; art::none for another word.
art forced_picture(int which, word symbol);
// Shows the spin frames of a step on the reels of the chain `which` that are not held.
void show_spin_frames(game&, int which, int step);

void drawreel1(game&);
void drawreel2(game&);
void drawreel3(game&);
void showforced1(game&);
void showforced2(game&);
void showforced3(game&);

} // namespace hustle
