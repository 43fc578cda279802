// One machine with one player on it: the real machine, every tick of it, in a world where nothing
// is heard or written; and the counts.
#pragma once

#include "lab/policies.h"
#include "lab/tally.h"
#include "lab/terms.h"
#include "panel/stillworld.h"

#include <array>
#include <span>
#include <string>

namespace hustle::lab {

// Boxes are answered with Yes: a player who has pressed New means it.
struct labworld final : stillworld {
    bool asked = false;          // since it was last set to false
    std::span<const int> queued; // the next draws, before the generator

    int draw(int n) override {
        if (queued.empty())
            return splitmix_draw(state, n);
        const int k = queued.front();
        queued = queued.subspan(1);
        return k;
    }
    bool box(const message& m) override {
        asked |= m.yes_or_no;
        return true;
    }
};

// What the lab has seen of the machine: it decides the source of a payout.
struct watch {
    source way = source::unknown; // of a payout that would begin now
    bool free_spin = false;       // since the last stake: a promised spin, a winning nudge, Reel Skill
    bool nudged = false;
    bool skill = false;
    bool paying = false;         // a step of the running payout has been paid
    std::array<timer, 8> live{}; // chains that have been counted and still run
    int live_count = 0;
};

// How the machine stood before a press or a payout tick.
struct before {
    single bank = 0;
    single win = 0;
    single credits = 0;
    count nudges = 0;
    bool wheel = false; // the Bonus wheel turned
    bool holds = false; // were offered
};

// The play under way.
struct current_play {
    bool begun = false;
    number paid = 0;   // units
    number staked = 0; // units
    std::size_t band = 0;
};

struct seat {
    labworld world;
    game g{world};
    terms t;
    decltype(policy_row::play) policy = nullptr; // of the terms
    std::int64_t patience = 0;                   // ms on the machine's clock
    int machine = 0;                             // its number in the run
    int stream = 0;                              // 0: the machine that counts; from 1: its ways home
    memory player;
    watch seen;
    before was;
    current_play play;
    tally sum;

    number dry = 0;             // plays since the last that paid
    number warm_left = 0;       // plays that are still left out
    std::int64_t began_at = 0;  // ms: the first counted play
    std::int64_t last_play = 0; // ms: the last stake
    std::array<number, window_plays.size()> window_staked{}, window_banked{};
    std::size_t next_look = 0;

    element next_press = no_press; // the player's hand is on its way
    std::int64_t press_at = 0;
    bool stuck = false; // no new play has come for the whole of the player's patience

    std::string* script = nullptr; // the presses as a panel script, where one is asked for
    std::int64_t script_now = 0;
};

// A machine of the run, booted, with its player before it. `stream` 0 is the machine that counts.
// Where `script` is not null, the commands that lead the script runner the same way are added.
void sit_down(seat&, const terms&, int machine, int stream = 0, std::string* script = nullptr);
// Plays until `until` plays are counted, or the machine is stuck.
void play_on(seat&, number until);
// The terms of a way home, by its place in `home_from`.
terms home_terms(const terms&, int way);
// Adds a machine's two ways home to its tally; false where the player got stuck there.
bool play_home(seat& scratch, const terms&, int machine, tally& into);
// The ledgers at the start, as the stored file holds them.
std::string first_file(const terms&);

// What the seat notices: after each tick, before and after each press.
void notice_tick(seat&, timer);
void before_press(seat&);
void after_press(seat&, element);
// A stake has been taken: the play before it is over and counted, and the next one begins.
void end_play(seat&);

} // namespace hustle::lab
