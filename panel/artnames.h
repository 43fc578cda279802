// The names of the pictures and of the waves, as lists to make enumerators and texts of.
#pragma once

// Every picture by name. The first 103 names are the art bank; the rest is decoration that stays
// where it is. `boxdark` and `boxlight` are 24 pictures each, one for a square of the ring.
// clang-format off
#define HUSTLE_ARTS(X)                                                                             \
    /* reel pictures, pound version: three symbols, top to bottom */                               \
    X(cbp) X(bps) X(psb) X(sbc) X(bcm) X(cmp) X(mps) X(psc)                                        \
    X(scp) X(cpb) X(pbs) X(bsm) X(sms) X(msp) X(spc) X(pcb)                                        \
    /* the same with a dollar sign, for the twelve that show a pound */                            \
    X(bps1) X(cbp1) X(cmp1) X(cpb1) X(mps1) X(msp1) X(pbs1) X(pcb1) X(psb1) X(psc1) X(scp1) X(spc1) \
    X(effect1) X(effect2) X(effect3) X(effect4)                                                    \
    X(dice1pic) X(dice2pic) X(dice3pic) X(dice4pic) X(dice5pic) X(dice6pic)                        \
    X(spineffect1) X(spineffect2) X(spineffect3) X(spineffect4)                                    \
    X(holdpicdark) X(holdpiclight) X(nudgepicdark) X(nudgepiclight) X(stoppicdark) X(stoppiclight) \
    X(cancelpicdark) X(cancelpiclight) X(gambledark) X(gamblelight)                                \
    X(startpicdark) X(startpiclight)                                                               \
    X(fstoppicdark) X(fstoppiclight) X(fstartpicdark) X(fstartpiclight) X(shotspicdark)            \
    X(shotspiclight) X(collectpicdark) X(collectpiclight) X(cashpicdark) X(cashpiclight)           \
    X(featurepicdark) X(featurepiclight) X(exchangepicdark) X(exchangepiclight)                    \
    X(hipicdark) X(hipiclight) X(lopicdark) X(lopiclight)                                          \
    X(nudge0) X(nudge1) X(nudge2) X(nudge3) X(nudge4) X(nudge5)                                    \
    X(nudge12) X(nudge123) X(nudge1234) X(nudge12345)                                              \
    X(nudgenowpicdark) X(nudgenowpiclight)                                                         \
    X(title) X(title2)                                                                             \
    X(back)                                                                                        \
    X(bombicondark) X(bombiconlight)                                                               \
    X(startscreen) X(wins_us) X(exitlight) X(exitdark) X(returnlight) X(returndark)                \
    X(backlight) X(backdark) X(resetlight) X(resetdark) X(scorelight) X(scoredark)                 \
    X(boxdark1) X(boxdark2) X(boxdark3) X(boxdark4) X(boxdark5) X(boxdark6)                        \
    X(boxdark7) X(boxdark8) X(boxdark9) X(boxdark10) X(boxdark11) X(boxdark12)                     \
    X(boxdark13) X(boxdark14) X(boxdark15) X(boxdark16) X(boxdark17) X(boxdark18)                  \
    X(boxdark19) X(boxdark20) X(boxdark21) X(boxdark22) X(boxdark23) X(boxdark24)                  \
    X(boxlight1) X(boxlight2) X(boxlight3) X(boxlight4) X(boxlight5) X(boxlight6)                  \
    X(boxlight7) X(boxlight8) X(boxlight9) X(boxlight10) X(boxlight11) X(boxlight12)               \
    X(boxlight13) X(boxlight14) X(boxlight15) X(boxlight16) X(boxlight17) X(boxlight18)            \
    X(boxlight19) X(boxlight20) X(boxlight21) X(boxlight22) X(boxlight23) X(boxlight24)            \
    /* still decoration */                                                                         \
    X(buttonbarpic) X(reelframepic) X(lineframepic) X(still1pic) X(still2pic) X(still3pic)         \
    X(transferpic) X(trailheldpic) X(trtpic) X(shotspanel) X(dicepanel) X(elpic) X(losepic)        \
    X(statisticsback) X(highscoreback) X(strippic) X(stripframe) X(wins_uk) X(iconpic)             \
    /* what a rolling reel and a counted win are put together from */                              \
    X(reelpaper) X(reelglass) X(reelstrip) X(reelstrip1) X(coinpic) X(coinpic1)

// The wave files, without their ending. `like_it` is like-it.wav.
#define HUSTLE_SOUNDS(X)                                                                           \
    X(start) X(reelstop) X(hold1) X(hold2) X(hold3) X(cancel) X(okeydoke) X(like_it) X(badhold)    \
    X(nudgenow) X(addnudge) X(none) X(win2bank) X(win) X(yeah) X(dong)                             \
    X(addtrail) X(trailhld) X(bonus) X(back) X(no) X(yes) X(lucky2) X(pick) X(ping) X(select)      \
    X(feature) X(hilo) X(exchange) X(jackpot) X(move) X(reelspin) X(add) X(question)               \
    X(skillstop) X(boost) X(ext_life) X(explode)                                                   \
    X(gameover) X(gameover1) X(gameover2) X(gameover3) X(gameover4)                                \
    X(thinice) X(excelent) X(fastcash) X(shots) X(collect) X(clap)
// clang-format on
