// The players of the lab. A policy is a plain function: from what the player sees now, and what it
// remembers, to the next press. It is asked whenever something may have changed and no press is
// under way. A new one is a function and a row.
#pragma once

#include "lab/sight.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace hustle::lab {

inline constexpr element no_press = element::total;

struct move {
    element press = no_press; // no_press: wait and see
    int after = 0;            // ms from now, before the player's reaction time
};

// What a player carries from one look to the next.
struct memory {
    int rung = 8;                // of a gambler: collects here, 1 to 10
    std::uint64_t dice = 1;      // of a player who throws dice
    element last = no_press;     // pressed last
    std::int64_t busy = 0;       // ms: the machine was last seen at something
    std::int64_t rest = -1;      // ms: Start has been lit since; -1 while it is not
    std::int64_t lamps_at = 0;   // ms: the trail lamps last changed
    std::int64_t pressed_at = 0; // ms: of the last press
    std::int64_t stop_at = -1;   // ms: when a lit stop button will be pressed; -1 while none is lit
    int lamps = 0;               // the trail lamps, a bit each
    int held = 0;                // reels held in this play, a bit each
    bool offered = false;        // hold lamps have flashed in this rest
    bool promised = false;       // the machine has told to spin without a hold
    int nudges = 0;              // in hand
    int climb = 0;               // lamps that stood at the last catch of a Trail Climber
    int lost = 0;                // presses without a reason, one after another
    std::int64_t lost_at = 0;    // ms: of the last of them
    int shots = 0;               // with which the shots game began
};

struct policy_row {
    std::string_view name;
    std::string_view text; // what it does, in a line
    move (*play)(const sight&, memory&);
};

std::span<const policy_row> policies();
// Its place in the table; -1 where no policy has that name.
int find_policy(std::string_view name);

// What the players are made of: each gives the press that it wants, or no_press.

// Nothing has been pressed for a minute: time to get on.
inline bool out_of_patience(const sight& s, const memory& m) { return s.now() - m.pressed_at > 60000; }
// A lit stop button is pressed a moment later, with no aim: true when that moment has come.
bool stop_without_aim(const sight&, memory&, element button);
// Whatever must be pressed to get on: Start, a lit stop button, nudges, money.
element get_on(const sight&, memory&);
// The same on the feature board.
element get_on_board(const sight&, memory&);
// New credits when the last one is played: from the bank, or with a new game.
element find_money(const sight&, memory&);
// Start, a moment after the trail has come to rest; pairs are held where the machine offers it.
element play_reels(const sight&, memory&);
// With nudges in hand: the next nudge of the best line in reach, or of any reel.
element use_nudges(const sight&, memory&);
// On main: nudges, holds, and what else must be pressed; no_press while it pays to wait.
element play_main(const sight&, memory&);
// The call of the gamble with the better odds; no_press where none can be made now.
element better_call(const sight&);
// The gamble waits for a call.
bool in_gamble(const sight&);
// A stopper or stop button at the moment that is worth most; no_press while it is not there.
element time_stopper(const sight&, memory&);
element time_board(const sight&, memory&);

move starter(const sight&, memory&);
move holder(const sight&, memory&);
move gambler(const sight&, memory&);
move expert(const sight&, memory&);
move monkey(const sight&, memory&);

} // namespace hustle::lab
