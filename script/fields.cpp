#include "script/names.h"

namespace hustle::script {

namespace {

#define MACHINE(name)                                                                                        \
    field_row { #name, &machine::name }
#define BOARD(name)                                                                                          \
    field_row { "feature." #name, &board::name }
#define ON_ENTERNAME(name)                                                                                   \
    field_row { "Entername." #name, &table_fields::name }
#define ON_HIGHSCORE(name)                                                                                   \
    field_row { "Highscore." #name, &table_fields::name }

// clang-format off
const field_row rows[] = {
    MACHINE(bank), MACHINE(win), MACHINE(moneyin), MACHINE(moneyout), MACHINE(pcent), MACHINE(lastwin),
    MACHINE(hopper), MACHINE(cashbox), MACHINE(winbank), MACHINE(streakbank), MACHINE(housecut),
    MACHINE(credits), MACHINE(streaktotal), MACHINE(bonuswin), MACHINE(bonuspence), MACHINE(newscore),
    MACHINE(reelspeed), MACHINE(ledcolour), MACHINE(soundstate), MACHINE(flashlogo), MACHINE(currency),
    MACHINE(version), MACHINE(reel1pos), MACHINE(reel2pos), MACHINE(reel3pos), MACHINE(reel1sym),
    MACHINE(reel2sym), MACHINE(reel3sym), MACHINE(reel1num), MACHINE(reel2num), MACHINE(reel3num),
    MACHINE(reel1held), MACHINE(reel2held), MACHINE(reel3held), MACHINE(spinstep), MACHINE(spinwait),
    MACHINE(award), MACHINE(featuremode), MACHINE(invincible), MACHINE(pickstopped), MACHINE(pickspins),
    MACHINE(pickdraw), MACHINE(winspinsleft), MACHINE(awarddraw), MACHINE(awardwait), MACHINE(lampphase),
    MACHINE(winspintotal), MACHINE(fastcashway), MACHINE(exiting), MACHINE(holdsoffered),
    MACHINE(linepromised), MACHINE(holdsbarred), MACHINE(badholdmade), MACHINE(pairholds),
    MACHINE(textstep), MACHINE(holdsequence), MACHINE(nudges), MACHINE(nudgemode), MACHINE(nudgedraw),
    MACHINE(nudgestep), MACHINE(addstep), MACHINE(lastfigure), MACHINE(trailbusy), MACHINE(paystep),
    MACHINE(payendstep), MACHINE(transferstep), MACHINE(pausesecs), MACHINE(scratch), MACHINE(trailvalue),
    MACHINE(trailtarget), MACHINE(runnersteps), MACHINE(climbpair), MACHINE(flashcount), MACHINE(walkstep),
    MACHINE(selectorlast), MACHINE(selectorticks), MACHINE(bonuspick), MACHINE(lastbonuspick),
    MACHINE(bonusintro), MACHINE(boostcount), MACHINE(repeatintro), MACHINE(repeatphase),
    MACHINE(repeatanswer), MACHINE(repeatpressed), MACHINE(repeatcount), MACHINE(rollstep),
    MACHINE(lampstep), MACHINE(scrollstep), MACHINE(attractstep), MACHINE(logoflash),

    BOARD(cashrung), BOARD(cashrun), BOARD(cashsteps), BOARD(featurerung), BOARD(featurerun),
    BOARD(featuresteps), BOARD(shots), BOARD(shotsteps), BOARD(rolltries), BOARD(fadestep), BOARD(dice),
    BOARD(lastdice), BOARD(hilochoice), BOARD(boardpos), BOARD(movepos), BOARD(exitstep), BOARD(flashstep),
    BOARD(readystep), BOARD(hilostep), BOARD(dicestep), BOARD(climbstep), BOARD(boardphase),
    BOARD(lightphase), BOARD(logophase), BOARD(lightticks), BOARD(shotsatstart), BOARD(shotstate),
    BOARD(shotflash), BOARD(skillwait), BOARD(skillstep), BOARD(randomwait), BOARD(beltphase),
    BOARD(beltstep), BOARD(beltstrip), BOARD(beltwindow), BOARD(beltprize1), BOARD(beltprize2),
    BOARD(beltprize3), BOARD(shockpos), BOARD(lastshock), BOARD(shortwait), BOARD(yesnostep),
    BOARD(yesnoanswer), BOARD(ladderpick),

    ON_ENTERNAME(entrytext), ON_ENTERNAME(entrycount), ON_ENTERNAME(submitflash),
    ON_HIGHSCORE(swapscore), ON_HIGHSCORE(swapname), ON_HIGHSCORE(flashrow), ON_HIGHSCORE(rowflash),
    ON_HIGHSCORE(buttonflash),

    {"software.splashticks", &machine::splashticks},
};
// clang-format on

} // namespace

std::span<const field_row> field_rows() { return rows; }

} // namespace hustle::script
