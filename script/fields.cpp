#include "script/names.h"

namespace hustle::script {

namespace {

#define MACHINE(name, ...)                                                                                   \
    field_row { #name, &machine::name __VA_OPT__(, range{__VA_ARGS__}) }
#define REEL(which, name, ...)                                                                               \
    field_row { "reel" #which #name, reel_place{which, &reel_state::name} __VA_OPT__(, range{__VA_ARGS__}) }
#define BOARD(name, ...)                                                                                     \
    field_row { "feature." #name, &board::name __VA_OPT__(, range{__VA_ARGS__}) }
#define ON_ENTERNAME(name, ...)                                                                              \
    field_row { "Entername." #name, &table_fields::name __VA_OPT__(, range{__VA_ARGS__}) }
#define ON_HIGHSCORE(name, ...)                                                                              \
    field_row { "Highscore." #name, &table_fields::name __VA_OPT__(, range{__VA_ARGS__}) }

// A field that stands in for a row of some table has the range that the table bears; 0 is what it has
// before its first run and, where that is so, between its runs.
// clang-format off
const field_row rows[] = {
    MACHINE(bank), MACHINE(win), MACHINE(moneyin), MACHINE(moneyout), MACHINE(pcent), MACHINE(lastwin),
    MACHINE(hopper), MACHINE(cashbox), MACHINE(winbank), MACHINE(streakbank), MACHINE(housecut),
    MACHINE(credits), MACHINE(streaktotal), MACHINE(bonuswin), MACHINE(bonuspence), MACHINE(newscore),
    MACHINE(reelspeed), MACHINE(ledcolour), MACHINE(soundstate), MACHINE(flashlogo), MACHINE(currency),
    MACHINE(version), REEL(1, pos, 0, 16), REEL(2, pos, 0, 16), REEL(3, pos, 0, 16), REEL(1, sym),
    REEL(2, sym), REEL(3, sym), REEL(1, num), REEL(2, num), REEL(3, num),
    REEL(1, held), REEL(2, held), REEL(3, held), MACHINE(spinstep), MACHINE(spinwait),
    MACHINE(award), MACHINE(featuremode), MACHINE(invincible), MACHINE(pickstopped), MACHINE(pickspins),
    MACHINE(pickdraw), MACHINE(winspinsleft), MACHINE(awarddraw), MACHINE(awardwait), MACHINE(lampphase),
    MACHINE(winspintotal), MACHINE(fastcashway), MACHINE(exiting), MACHINE(holdsoffered),
    MACHINE(linepromised), MACHINE(holdsbarred), MACHINE(badholdmade), MACHINE(pairholds),
    MACHINE(textstep), MACHINE(holdsequence), MACHINE(nudges), MACHINE(nudgemode), MACHINE(nudgedraw),
    MACHINE(nudgestep), MACHINE(addstep), MACHINE(lastfigure), MACHINE(trailbusy), MACHINE(paystep),
    MACHINE(payendstep), MACHINE(transferstep), MACHINE(pausesecs), MACHINE(scratch), MACHINE(trailvalue),
    MACHINE(trailtarget), MACHINE(runnersteps), MACHINE(climbpair, 0, 5), MACHINE(flashcount), MACHINE(walkstep, 0, 9),
    MACHINE(selectorlast), MACHINE(selectorticks), MACHINE(bonuspick, 0, 11), MACHINE(lastbonuspick, 0, 11),
    MACHINE(bonusintro), MACHINE(boostcount), MACHINE(repeatintro), MACHINE(repeatphase),
    MACHINE(repeatanswer), MACHINE(repeatpressed), MACHINE(repeatcount), MACHINE(rollstep, 0, 16),
    MACHINE(lampstep), MACHINE(scrollstep), MACHINE(attractstep), MACHINE(logoflash),

    BOARD(cashrung, 0, 10), BOARD(cashrun, 0, 10), BOARD(cashsteps), BOARD(featurerung, 0, 10), BOARD(featurerun, 0, 10),
    BOARD(featuresteps), BOARD(shots), BOARD(shotsteps), BOARD(rolltries), BOARD(fadestep, 0, 24), BOARD(dice, 0, 6),
    BOARD(lastdice, 0, 6), BOARD(hilochoice), BOARD(boardpos, 0, 24), BOARD(movepos, 0, 24), BOARD(exitstep), BOARD(flashstep),
    BOARD(readystep), BOARD(hilostep), BOARD(dicestep), BOARD(climbstep), BOARD(boardphase),
    BOARD(lightphase), BOARD(logophase), BOARD(lightticks), BOARD(shotsatstart), BOARD(shotstate),
    BOARD(shotflash), BOARD(skillwait), BOARD(skillstep, 0, 24), BOARD(randomwait), BOARD(beltphase, 0, 4),
    BOARD(beltstep), BOARD(beltstrip), BOARD(beltwindow), BOARD(beltprize1), BOARD(beltprize2),
    BOARD(beltprize3), BOARD(shockpos, 0, 10), BOARD(lastshock, 0, 8), BOARD(shortwait), BOARD(yesnostep),
    BOARD(yesnoanswer), BOARD(ladderpick, 0, 2),

    ON_ENTERNAME(entrytext), ON_ENTERNAME(entrycount), ON_ENTERNAME(submitflash),
    ON_HIGHSCORE(swapscore), ON_HIGHSCORE(swapname), ON_HIGHSCORE(flashrow, 0, 10), ON_HIGHSCORE(rowflash),
    ON_HIGHSCORE(buttonflash),

    {"software.splashticks", &machine::splashticks},
};
// clang-format on

} // namespace

std::span<const field_row> field_rows() { return rows; }

} // namespace hustle::script
