// The names of everything the machine has: screens, elements, timers, art and sounds.
// They are enumerators in the code and text only at the edges (scripts, files, front ends);
// the data sheet that gives each one its text, place and first state is panel/sheet.h.
//
// Names of the main screen stand bare; those of another screen carry it in front:
// `start` is a button of main, `feature_startbutton` one of the feature board.
#pragma once

#include <cstddef>
#include <cstdint>

namespace hustle {

enum class screen : std::uint8_t {
    software, // the splash
    main,
    feature, // the feature board
    statistics,
    Highscore,
    Entername,
    reelguide,
    wintable,
    About,
};
inline constexpr std::size_t screen_count = 9;

enum class element : std::uint16_t {
    software_Image1,

    // main, from the back to the front
    background,
    buttonbar,
    reelframe,
    lineframe,
    still1,
    still2,
    still3,
    reel1,
    reel2,
    reel3,
    hold1,
    hold2,
    hold3,
    cancelbutton,
    stopper,
    start,
    picture1, // the nudge ladder
    nudgenow,
    numberone,
    numbertwo,
    numberthree,
    numberfour,
    numberfive,
    numbersix,
    numberseven,
    numbereight,
    numbernine,
    trailheld,
    toplogo,
    transfer,
    displayline,
    // the menu entries of main
    newgame,
    gstat,
    hscoretable,
    insertcoinmenu,
    exitgame,
    freelspin,
    sreelspin,
    rreelspin,
    ds,
    ps,
    soundon,
    soundoff,
    reddisp,
    purpledisp,
    pinkdisp,
    bluedisp,
    yellowdisp,
    greendisp,
    flon,
    floff,
    helpcontents,
    rguidemenu,
    rwinmenu,
    visitweb,
    helpabout,

    feature_background,
    feature_buttonbar,
    feature_square1, // the ring: 24 squares in a row here
    feature_square24 = feature_square1 + 23,
    feature_m1, // the cash ladder, rung 1 to 10
    feature_m160,
    feature_m2,
    feature_m240,
    feature_m360,
    feature_m4,
    feature_m5,
    feature_m6,
    feature_m8,
    feature_m10,
    feature_f1, // the features ladder, rung 1 to 10
    feature_f2,
    feature_f3,
    feature_f4,
    feature_f5,
    feature_f6,
    feature_f7,
    feature_f8,
    feature_f9,
    feature_f10,
    feature_trt,
    feature_gameoverlabel, // the eight labels of the shock
    feature_boostlabel,
    feature_skilldecidelabel,
    feature_bankruptlabel,
    feature_continuelabel,
    feature_loselabel,
    feature_xtralifelabel,
    feature_takeprizelabel,
    feature_Image1,
    feature_Shape1,
    feature_displayline,
    feature_shotbox,
    feature_dicepic,
    feature_hibutton,
    feature_lobutton,
    feature_collect,
    feature_featurebutton,
    feature_cashbutton,
    feature_shotbutton,
    feature_exchangebutton,
    feature_stopfeature,
    feature_startbutton,
    feature_bomb1,
    feature_bomb2,
    feature_bomb3,
    feature_el,
    feature_losegamble,
    feature_toplogo,

    statistics_background,
    statistics_Label1,
    statistics_Label2,
    statistics_Label3,
    statistics_Label4,
    statistics_Label5,
    statistics_Label6,
    statistics_Label7,
    statistics_Label8,
    statistics_Label9,
    statistics_Label10,
    statistics_moneyin,
    statistics_moneyout,
    statistics_text5,
    statistics_text2,
    statistics_text3,
    statistics_pcent,
    statistics_hgh,
    statistics_difference,
    statistics_text1,
    statistics_text6,
    statistics_Picture1,
    statistics_Picture2,

    Highscore_background,
    Highscore_one, // the ten rows
    Highscore_two,
    Highscore_three,
    Highscore_four,
    Highscore_five,
    Highscore_six,
    Highscore_seven,
    Highscore_eight,
    Highscore_nine,
    Highscore_ten,
    Highscore_Picture1,
    Highscore_Picture2,
    Highscore_Picture3,

    Entername_background,
    Entername_Label1,
    Entername_Label3,
    Entername_Text2,
    Entername_Text1,
    Entername_image1,

    reelguide_Image1,
    reelguide_Image2,
    reelguide_Image3,
    reelguide_Shape1,
    reelguide_Shape2,
    reelguide_Shape3,

    wintable_Picture1,

    About_picIcon,
    About_lblTitle,
    About_lblVersion,
    About_lblDescription,
    About_lblDisclaimer,
    About_cmdOK,
    About_cmdSysInfo,

    total,
};
inline constexpr std::size_t element_count = static_cast<std::size_t>(element::total);

enum class timer : std::uint8_t {
    software_Timer1,

    reelspin1,
    reelspin2,
    reelspin3,
    start_spin_in,
    init_trail_timer,
    ilikeit,
    dontholdany,
    letemspin,
    addnudges,
    nudgetimer,
    pseudo_nudges,
    skill_nudges,
    wintobank,
    banktocredits,
    reelskill,
    reelskill2,
    reelskill3,
    start_reelskill,
    numbers2,
    numberrun,
    trailclimb,
    trailskill,
    trailstopper,
    trail_flash,
    selector,
    start_bonus,
    start_superbonus,
    bonus_timer,
    bonusnumbers,
    feature_start, // main's run-up to the board
    start_repeatchance,
    yes_no,
    rollem,
    spinreel1,
    spinreel2,
    spinreel3,
    start_luckysevens,
    start_winstreak,
    start_pickawin,
    start_winspins,
    startattract,
    attracthold,
    flashtimer,
    scrolltimer,
    butflash,

    feature_butflash,
    feature_exchange_timer,
    feature_exchange_effect,
    feature_hitimer,
    feature_win_timer,
    feature_gambletimer,
    feature_cashwin_effect,
    feature_spin_dice,
    feature_movetimer,
    feature_cashadd,
    feature_featureadd,
    feature_shotadd,
    feature_exittimer,
    feature_bonus_win,
    feature_flashing_lights,
    feature_start_sevenspinner,
    feature_start_pickawin,
    feature_start_winspins,
    feature_start_winstreak,
    feature_start_reelskill,
    feature_start_letsspin,
    feature_start_shots,
    feature_shots_timer,
    feature_start_skillstop,
    feature_skillstoptimer,
    feature_start_randomstop,
    feature_randomstop,
    feature_moneybelttimer,
    feature_start_fastcash,
    feature_fastcash,
    feature_start_shock,
    feature_shock_timer,
    feature_shock_trueskill,
    feature_start_thin_ice,
    feature_start_boost,
    feature_start_bombfeature,
    feature_pickaladder,
    feature_savedbyextra,
    feature_yesorno,
    feature_invincibletimer,

    statistics_Timer1,
    statistics_Timer2,
    Highscore_flashscore,
    Highscore_Timer1,
    Entername_Timer1,

    total,
};
inline constexpr std::size_t timer_count = static_cast<std::size_t>(timer::total);

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
    X(statisticsback) X(highscoreback) X(strippic) X(stripframe) X(wins_uk) X(iconpic)

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

#define HUSTLE_ENUMERATOR(name) name, // NOLINT(bugprone-macro-parentheses)
#define HUSTLE_ONE(name) +1           // NOLINT(bugprone-macro-parentheses)
enum class art : std::uint8_t { none, HUSTLE_ARTS(HUSTLE_ENUMERATOR) };
enum class sound : std::uint8_t { HUSTLE_SOUNDS(HUSTLE_ENUMERATOR) };
inline constexpr std::size_t art_count = 1 HUSTLE_ARTS(HUSTLE_ONE);
inline constexpr std::size_t sound_count = 0 HUSTLE_SOUNDS(HUSTLE_ONE);
#undef HUSTLE_ENUMERATOR
#undef HUSTLE_ONE

enum class store : std::uint8_t { game_dat, hscore_dat }; // the two stored files

// The n-th of a family that stands in a row: nth(element::hold1, 3) is hold3. n counts from 1.
template <class Name> constexpr Name nth(Name first, int n) {
    return static_cast<Name>(static_cast<int>(first) + n - 1);
}

} // namespace hustle
