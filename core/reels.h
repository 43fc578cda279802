// Three reels of sixteen stops.
#pragma once

#include "core/game.h"
#include "panel/strip.h"

#include <array>

namespace hustle {

inline const stop_row& strip_stop(int position) {
    return strip[static_cast<std::size_t>(position - 1) % strip.size()];
}

// The picture of a reel on the panel, and its hold button.
inline element reel_picture(int which) { return nth(element::reel1, which); }
inline element hold_button(int which) { return nth(element::hold1, which); }

inline bool is_held(const reel_state& r) { return r.held == flag::yes; }
int held_reels(const machine&); // 0 to 3
void release_reels(machine&);   // none is held
bool all_alike(const machine&); // one symbol on all three
// The numbers on the win line, together.
count numbers_shown(const machine&);

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
