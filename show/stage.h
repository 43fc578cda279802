// What the eye sees beyond the panel: reels that roll, the belt that runs on between its ticks, the
// win that glows, lamps held steady. Below every front end, so that all of them show the same.
//
// A front end keeps one `stage`. After each batch of events, before it clears the panel's `touched`
// marks, it calls `take_in`; before each picture it calls `advance`, which moves everything on and
// tells when the next picture is wanted. What both find to look different, beyond the elements that
// are marked, they add to `patches`; the front end empties that when it has taken it. They read the
// machine and never change it: what the panel holds stands at once for the logic and for reading
// aloud.
//
// All times are real milliseconds of one clock of the front end's own, never going back.
#pragma once

#include "core/game.h"
#include "panel/sheet.h"

#include <array>
#include <cstdint>
#include <vector>

namespace hustle {

// One reel on its strip. A position counts stops from 0 (stop 1) to below 16 and names the place on
// the strip that stands on the win line: 2.25 is a quarter of a stop below the middle of stop 3.
// The strip runs downwards, so the position falls.
struct reel_motion {
    enum class phase : std::uint8_t { rests, rolls, settles } now = phase::rests;
    bool on_strip = false; // false: the element shows no stop of the strip; paint its own picture
    double at = 0;         // the position to paint
    double blur = 0;       // stops that run past while the eye takes one picture; 16: one even smear
    art seen = art::none;  // the picture that was last taken in
    std::int64_t since = 0;
    std::int64_t moved = 0;
    double from = 0; // position at `since`, counted from the target upwards
    double to = 0;
    bool steps = false; // it settles by one stop, at a nudge
};

// A line whose text runs on to the left: `columns` columns of dots (six to a letter) beyond what
// was written, toward what is written next. Never behind it.
struct belt_motion {
    bool runs = false; // it stands otherwise
    int columns = 0;   // 0 to 5
    std::int64_t since = 0;
};

// A coin on its way from the win line up to the bank's figures; pixels of the panel.
struct coin {
    std::int64_t born;
    double x = 0, y = 0;
    double opacity = 0; // 0 to 1
};

struct win_motion {
    bool shows = false; // a win stands on main
    bool line = false;  // three symbols on the win line made it: they pulse
    double glow = 0;    // of the win line's frame, 0 to 1
    double swell = 1;   // size of the three symbols, 1 to 1.06
    std::int64_t since = 0;
    single bank = 0; // as last seen
    std::vector<coin> coins;
    std::int64_t last_coin = -1000; // when the last one left
};

// What a lamp was told in the last second, and what it shows instead where that flashes too fast.
struct lamp_history {
    bool known = false;
    bool held = false;
    int quick = 0;                         // changes in a row that came too fast
    element_state told;                    // the last look that it was told
    element_state shown;                   // the look to paint while `held`
    std::int64_t since = 0;                // of the last change that it was told
    std::array<std::int64_t, 6> painted{}; // the last changes that the eye got, oldest first
};

// A part of a screen that looks different.
struct patch {
    screen where;
    rect area; // twips
};

struct stage {
    bool reduced = false;     // Reduced Flashing: nothing flashes more than three times a second
    bool still_logo = false;  // the logo keeps its first look: Flashing Logo Off
    element_state logo;       // that look
    element_state dark_start; // of the board's Start while the machine hides it: no hole is seen
    std::array<reel_motion, 3> reels{};
    belt_motion belt;
    win_motion win;
    std::array<lamp_history, element_count> lamps;
    std::vector<element> held; // the lamps that are held now
    std::vector<patch> patches;
    bool fresh = true; // nothing has been taken in yet
};

// The switch may be thrown at any time; everything should be painted anew after it.
void set_reduced(stage&, const game&, bool on);

void take_in(stage&, const game&, std::int64_t now);

// Moves everything on to `now` and answers in how many ms the next picture is wanted: 0 as soon as
// the display can; -1: not until something is taken in.
int advance(stage&, const game&, std::int64_t now);

// The look to paint of an element: the panel's own, or the one that it is held at.
const element_state& shown(const stage&, const panel&, element);

// The band of the win line across the three reels on main, and where the coins fly; twips.
rect win_line_area();
rect coin_area();
inline constexpr int coin_size = 36; // pixels of the panel across

// The stop, 1 to 16, whose picture this is in either currency; 0 for any other art.
int stop_of(art);

} // namespace hustle
