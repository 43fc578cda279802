// The whole state of the machine in one record. Every handler is a plain function on it.
//
// Money is in pounds; `credits` counts plays of 25p. Sums on singles are made in double and
// rounded once at the store (`add`). A word is compared exactly; one that may come from a file
// owns its text, every other is a view of a literal.
#pragma once

#include "panel/panel.h"
#include "panel/world.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace hustle {

using single = float;
using count = std::int16_t;
using word = std::string_view;

inline constexpr std::string_view version_text = "2.02";

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
    std::string soundstate; // "on" or "off"
    std::string flashlogo;  // "yes" or "no"
    std::string currency;   // "gbp" or "usd"
    word version;           // set when the splash ends

    // Reels.
    count reel1pos = 0, reel2pos = 0, reel3pos = 0; // * 1 to 16
    word reel1sym, reel2sym, reel3sym;              // the symbols on the win line
    count reel1num = 0, reel2num = 0, reel3num = 0; // the numbers on the win line, 0 to 3
    word reel1held, reel2held, reel3held;           // "yes" or "no"
    count spinstep = 0;
    count spinwait = 0; // ticks of start_spin_in

    // Awards.
    word award;       // the award being played, or the way the last win came
    word featuremode; // "hilo" or "feature"
    word invincible;  // "yes": the guarded run of the board
    word pickstopped;
    count pickspins = 0;
    count pickdraw = 0;
    count winspinsleft = 0;
    count awarddraw = 0;
    count awardwait = 0;    // also the step of feature_start, 0 to 29
    count lampphase = 0;    // of feature_start's flash, 0 to 4
    count winspintotal = 0; // whole pounds
    word fastcashway;       // "up" or "down"
    count exiting = 0;

    // Holds and their texts.
    word holdsoffered; // "yes" while a hold press holds
    word linepromised; // "true", "false"; empty until the first Start
    word holdsbarred;  // "true", "false", or "False" after a BAD HOLD
    word badholdmade;  // "true", "false"; empty until the first Start
    count pairholds = 0;
    count textstep = 0;
    count holdsequence = 0;

    // Nudges.
    count nudges = 0;
    count nudgemode = 1; // 1 add, 2 random, 3 skill
    count nudgedraw = 0;
    count nudgestep = 0;
    count addstep = 1;
    count lastfigure = 0;
    word trailbusy;

    // Payout and transfer.
    count paystep = 0;
    count payendstep = 0;
    count transferstep = 0;
    count pausesecs = 0; // whole seconds of the pause after a repeat chance; 1 from main's load
    count scratch = 0;

    // Number trail, Bonus, trail games.
    count trailvalue = 0;
    count trailtarget = 0;
    count runnersteps = 0;
    count climbpair = 1;
    count flashcount = 0;
    count walkstep = 1;
    count selectorlast = 0;
    count selectorticks = 0;
    count bonuspick = 0;
    count lastbonuspick = 0;
    count bonusintro = 1;
    count boostcount = 0;

    // Repeat chance and the roll.
    count repeatintro = 0;
    count repeatphase = 1; // 1 NO shows, 2 YES shows
    word repeatanswer;
    word repeatpressed;
    count repeatcount = 0;
    count rollstep = 0;

    // Lamps and attract mode.
    count lampstep = 0;
    count scrollstep = 1;
    count attractstep = 0;
    count logoflash = 0;

    count splashticks = 0;
};

// The fields of the feature board. They keep their values between visits.
struct board {
    count cashrung = 0, cashrun = 0, cashsteps = 0;
    count featurerung = 0, featurerun = 0, featuresteps = 0;
    count shots = 0, shotsteps = 0;
    count rolltries = 0;
    count fadestep = 0;
    count dice = 0, lastdice = 0;
    word hilochoice;                 // "hi" or "lo"
    count boardpos = 0, movepos = 0; // squares 1 to 24
    count exitstep = 0;
    count flashstep = 0;
    count readystep = 0;
    count hilostep = 0;
    count dicestep = 0;
    count climbstep = 0;
    count boardphase = 0;
    count lightphase = 0, logophase = 0, lightticks = 0;

    // Sub-games.
    count shotsatstart = 0;
    word shotstate; // "", "stop", "start"
    count shotflash = 0;
    count skillwait = 0, skillstep = 0;
    count randomwait = 0;
    count beltphase = 0, beltstep = 0;
    word beltstrip, beltwindow;
    single beltprize1 = 0, beltprize2 = 0, beltprize3 = 0;
    count shockpos = 0, lastshock = 0;
    count shortwait = 0;
    count yesnostep = 0;
    word yesnoanswer; // "yes" or "no"
    count ladderpick = 0;
};

// The fields of Entername and Highscore.
struct table_fields {
    std::string entrytext;
    count entrycount = 0;
    count submitflash = 0;
    single swapscore = 0;
    std::string swapname;
    count flashrow = 0;
    count rowflash = 0;
    count buttonflash = 0;
};

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
inline void set(count& value, int to) { value = static_cast<count>(to); }

// A draw of 1 to n.
inline int draw(game& g, int n) { return g.w.draw(n); }

// Waves and tune commands pass one gate: the sound must be on.
inline void play(game& g, sound s) {
    if (g.m.soundstate == "on")
        g.w.play(s);
}
inline void midi(game& g, std::string_view command) {
    if (g.m.soundstate == "on")
        g.w.midi(command);
}

// The text line of main, and that of the board.
inline void line(game& g, std::string_view text) { set_caption(g.p, element::displayline, text); }
inline void board_line(game& g, std::string_view text) {
    set_caption(g.p, element::feature_displayline, text);
}

// Holds the machine until the clock's whole seconds have moved on by `seconds`: at most that long.
void hold_the_machine(game&, int seconds);

} // namespace hustle
