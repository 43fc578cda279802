// The whole state of the machine in one record. Every handler is a plain function on it.
//
// Money is in pounds; `credits` counts plays of 25p. Sums on singles are made in double and
// rounded once at the store (`add`). A word is compared exactly; one that may come from a file
// owns its text, every other is a view of a literal (core/words.h).
//
// A step counter starts at 0 in a run of the program, and its chain counts from 1 on; where the
// range told begins with 0, that is the only time, or the rest between two runs of the chain.
#pragma once

#include "core/words.h"
#include "panel/panel.h"
#include "panel/world.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace hustle {

using single = float;
using count = std::int16_t;

inline constexpr std::string_view version_text = "2.02";

// One reel.
struct reel_state {
    count pos = 0; // * stop of the strip, 1 to 16; 0 until the files are read
    word sym;      // the symbol on the win line
    count num = 0; // the number on the win line, 0 to 3
    word held;     // flag
};

struct machine {
    // Money and statistics; those marked * live in game.dat.
    single bank = 0;
    single win = 0;
    single moneyin = 0;    // *
    single moneyout = 0;   // *
    single pcent = 0;      // moneyout / moneyin * 100: steers all odds
    single lastwin = 0;    // *
    single hopper = 0;     // *
    single cashbox = 0;    // *
    single winbank = 0;    // *
    single streakbank = 0; // *
    single housecut = 0;   // *
    single credits = 0;    // plays in hand
    single streaktotal = 0;
    single bonuswin = 0;
    single bonuspence = 0;
    single newscore = 0;
    std::array<single, 10> hiscore{};     // hscore.dat, best first
    std::array<std::string, 10> hiname{}; // hscore.dat

    // Settings, all in game.dat but the version.
    count reelspeed = 0;    // 1 fast, 2 slow, 3 random
    count ledcolour = 0;    // 1 red, 2 purple, 3 pink, 4 blue, 5 yellow, 6 green
    std::string soundstate; // setting::on or off
    std::string flashlogo;  // flag::yes or no
    std::string currency;   // setting::gbp or usd
    word version;           // set when the splash ends

    // Reels.
    std::array<reel_state, 3> reels; // `reel(m, 1)` to `reel(m, 3)`
    count spinstep = 0;              // frame of the turning reel, 0 to 9; 1 at rest
    count spinwait = 0;              // ticks of start_spin_in, 0 to 3

    // Awards.
    word award;             // the award being played, or the way the last win came
    word featuremode;       // mode::hilo or feature
    word invincible;        // flag: the guarded run of the board
    word pickstopped;       // flag: the stop button has ended On the Run
    count pickspins = 0;    // spins of On the Run that are left, 8 to 0
    count pickdraw = 0;     // row of its prizes, 1 to 8; the eighth is none
    count winspinsleft = 0; // 3 to 0
    count awarddraw = 0;    // row of the prizes of the other awards, 1 to 8
    count awardwait = 0;    // ticks before an award's spin, 0 to 8; also the step of feature_start, 0 to 29
    count lampphase = 0;    // of feature_start's flash, 0 to 4
    count winspintotal = 0; // whole pounds
    word fastcashway;       // way::up or down
    count exiting = 0;      // 1: the exit has been asked for

    // Holds and their texts.
    word holdsoffered;      // flag::yes while a hold press holds
    word linepromised;      // truth; empty until the first Start
    word holdsbarred;       // truth, spoilt after a BAD HOLD
    word badholdmade;       // truth; empty until the first Start
    count pairholds = 0;    // plays running in which a pair was held, 0 to 3; 3 promises the line
    count textstep = 0;     // of the three text animations of the line, 0 to 73
    count holdsequence = 0; // hold presses of the hidden new game, 0 to 5

    // Nudges.
    count nudges = 0;     // in hand, 0 to 5
    count nudgemode = 1;  // 1 add, 2 random, 3 skill
    count nudgedraw = 0;  // 1 to 6; 3 offers nudges
    count nudgestep = 0;  // of the flash of nudges in hand, 0 to 8
    count addstep = 1;    // figure that ADDING NUDGES shows next, 1 to 6; 6 ends it
    count lastfigure = 0; // that random nudges showed before, 0 to 5
    word trailbusy;       // flag: the trail has the stage

    // Payout and transfer.
    count paystep = 0;      // 0 to 10; at 10 the money moves
    count payendstep = 0;   // of the closing flash, 0 to 9
    count transferstep = 0; // 0 to 5; one credit a step from 1 on
    count pausesecs = 0;    // whole seconds of the pause after a repeat chance; 1 from main's load
    count scratch = 0;      // nothing reads it

    // Number trail, Bonus, trail games.
    count trailvalue = 0;    // sum of the numbers; 9 and more is full
    count trailtarget = 0;   // lamp that the run goes to; 0 none, 9 and more is full
    count runnersteps = 0;   // of the Number Runner, 0 to 3
    count climbpair = 1;     // of the Trail Climber's lamps, 1 to 5
    count flashcount = 0;    // of the trail hold, 0 to 10
    count walkstep = 1;      // of the reset walk, 1 to 9: lamp 10 - walkstep goes out
    count selectorlast = 0;  // the height before
    count selectorticks = 0; // jumps made, 0 to 10
    count bonuspick = 0;     // award on the wheel, 1 to 11; 0 before the first Bonus
    count lastbonuspick = 0; // the one before, 0 to 11
    count bonusintro = 1;    // 1 to 9
    count boostcount = 0;    // lamps of a boost, 1 to 5

    // Repeat chance and the roll.
    count repeatintro = 0; // 0 to 10
    count repeatphase = 1; // 1 NO shows, 2 YES shows
    word repeatanswer;     // flag: the one that shows
    word repeatpressed;    // flag
    count repeatcount = 0; // repeats of this jackpot
    count rollstep = 0;    // 1 to 16: stop 17 - rollstep shows; 0 before the first roll

    // Lamps and attract mode.
    count lampstep = 0;    // of butflash, 0 to 6
    count scrollstep = 1;  // of the attract texts
    count attractstep = 0; // of the attract lamps, 0 to 24
    count logoflash = 0;

    count splashticks = 0; // 0 to 35
};

// The fields of the feature board. They keep their values between visits.
struct board {
    // A ladder: the top of its filled bar, the rung of the light that falls, the rungs still to add.
    count cashrung = 0, cashrun = 0, cashsteps = 0;          // rungs 0 to 10
    count featurerung = 0, featurerun = 0, featuresteps = 0; // rungs 0 to 10
    count shots = 0, shotsteps = 0;                          // in hand, and still to add
    count rolltries = 0;             // counted draws of the die, 1 to 30; the thirtieth stands
    count fadestep = 0;              // square that goes out next as the ring opens, 24 to 1; 0 at rest
    count dice = 0, lastdice = 0;    // 1 to 6; 0 before the first visit
    word hilochoice;                 // choice::hi or lo
    count boardpos = 0, movepos = 0; // squares 1 to 24: of the token, and of the light under way to it
    count exitstep = 0;              // of the exit, 0 to 16, and of the bonus win, 1 to 16
    count flashstep = 0;             // of the buttons' flash, 0 to 2
    // The step of whatever says GET READY: the hand-overs and Fast Cash 0 to 22, the shots and the
    // bombs 0 to 20, the extra life 0 to 25. In Fast Cash itself the rung that the next move acts on.
    count readystep = 0;
    count hilostep = 0;   // of the call's flash, 0 to 10
    count dicestep = 0;   // of the turning die, 0 to 13
    count climbstep = 0;  // of the light after a gamble win, 0 to 18; 10 is the top
    count boardphase = 0; // of the exchange's flash, 0 to 2
    count lightphase = 0, logophase = 0, lightticks = 0; // the repeater's: 0 to 2, 0 to 4, 0 to 49

    // Sub-games.
    count shotsatstart = 0;     // shots when the game began: what a draw may reach
    word shotstate;             // shooting
    count shotflash = 0;        // 0 to 2
    count skillwait = 0;        // ticks before the skill stop, 0 to 10
    count skillstep = 0;        // of its swing, 0 to 24
    count randomwait = 0;       // ticks before the random stop, 0 to 10
    count beltphase = 0;        // 0 announce, 1 run, 2 run on, 3 align, 4 show the result
    count beltstep = 0;         // of the phase; running, the characters off the left end
    word beltstrip, beltwindow; // the whole belt, and what has not left the line
    single beltprize1 = 0, beltprize2 = 0, beltprize3 = 0; // pounds; 0 but while they are taken
    // The shock: ticks before it, 0 to 10, then the label that lights, 1 to 8. In the shots game the
    // figure drawn: the rung on offer, 1 to 10; above 10 it is no rung.
    count shockpos = 0;
    count lastshock = 0;  // the label before, 0 to 8
    count shortwait = 0;  // ticks before thin ice and boost, 0 to 10
    count yesnostep = 0;  // 1 NO comes next, 2 YES; 0 before the first
    word yesnoanswer;     // flag; empty before the first tick
    count ladderpick = 0; // 1 features come next, 2 cash; 0 before the first tick
};

// The fields of Entername, the first three, and of Highscore.
struct table_fields {
    std::string entrytext; // the name as told, in front of it blanks up to fifteen characters
    count entrycount = 0;  // blanks put in front, 0 to 15
    count submitflash = 0; // picture of the form's button next: 0 dark, 1 light
    single swapscore = 0;  // pounds; with its name what the sort of the table holds in hand
    std::string swapname;
    count flashrow = 0; // row of the new score, 1 to 10; 0 before the first
    count rowflash = 0; // what the next tick makes of that row: 1 dark, 2 light; 0 nothing yet
    count buttonflash =
        0; // pictures of the buttons next: 0 return and exit dark, 1 light; reset the other way
};

struct game;
using handler = void (*)(game&); // one event's: of a press, a tick, a change of focus

struct game {
    machine m;
    board b;
    table_fields t;
    panel p;
    world& w;

    explicit game(world& outside) : w(outside) {}
};

// A sum is made in double and rounded to single at the store.
inline void add(single& value, double amount) { value = static_cast<single>(value + amount); }
// Steps and figures that run from 1 to n and begin again; one that stands past n begins again too.
inline count next_of(count now, int n) { return static_cast<count>(now >= n ? 1 : now + 1); }
// And downward: 1 is followed by n.
inline count before_of(count now, int n) {
    --now;
    return now < 1 ? static_cast<count>(n) : now;
}

// A wait of n ticks before something begins: true while it lasts.
inline bool still_waiting(count& ticks, int n) {
    if (ticks == n)
        return false;
    ++ticks;
    return true;
}

// The reels by their number, 1 to 3.
inline reel_state& reel(machine& m, int which) { return m.reels[static_cast<std::size_t>(which - 1)]; }
inline const reel_state& reel(const machine& m, int which) {
    return m.reels[static_cast<std::size_t>(which - 1)];
}

// A draw of 1 to n.
inline count draw(game& g, int n) { return static_cast<count>(g.w.draw(n)); }

// Waves and tune commands pass one gate: the sound must be on.
inline void play(game& g, sound s) {
    if (g.m.soundstate == setting::on)
        g.w.play(s);
}
inline void midi(game& g, tune what) {
    if (g.m.soundstate == setting::on)
        g.w.midi(what);
}

// The text line of main, and that of the board.
inline void line(game& g, std::string_view text) { set_caption(g.p, element::displayline, text); }
inline void board_line(game& g, std::string_view text) {
    set_caption(g.p, element::feature_displayline, text);
}

// Holds the machine until the clock's whole seconds have moved on by `seconds`: at most that long.
void hold_the_machine(game&, int seconds);

} // namespace hustle
