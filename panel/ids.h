// The names of everything the machine has: screens, elements, timers, art and sounds.
// They are enumerators in the code and text only at the edges (scripts, files, front ends);
// the data sheet that gives each one its text, place and first state is panel/sheet.h.
//
// Names of the main screen stand bare; those of another screen carry it in front:
// `start` is a button of main, `feature_startbutton` one of the feature board.
#pragma once

#include "panel/artnames.h"

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

enum class timer : std::uint8_t { // panel/timers.def tells each one's all
#define TIMER(name, where, script, ms, start, keeps) name,
#include "panel/timers.def"
#undef TIMER
    total,
};
inline constexpr std::size_t timer_count = static_cast<std::size_t>(timer::total);

#define HUSTLE_ENUMERATOR(name) name, // NOLINT(bugprone-macro-parentheses)
#define HUSTLE_ONE(name) +1           // NOLINT(bugprone-macro-parentheses)
enum class art : std::uint8_t { none, HUSTLE_ARTS(HUSTLE_ENUMERATOR) };
enum class sound : std::uint8_t { HUSTLE_SOUNDS(HUSTLE_ENUMERATOR) };
inline constexpr std::size_t art_count = 1 HUSTLE_ARTS(HUSTLE_ONE);
inline constexpr std::size_t sound_count = 0 HUSTLE_SOUNDS(HUSTLE_ONE);
#undef HUSTLE_ENUMERATOR
#undef HUSTLE_ONE

enum class tune : std::uint8_t { open, play, stop, close }; // what the one tune is to do; play begins it anew

enum class store : std::uint8_t { game_dat, hscore_dat }; // the two stored files

// The n-th of a family that stands in a row: nth(element::hold1, 3) is hold3. n counts from 1.
template <class Name> constexpr Name nth(Name first, int n) {
    return static_cast<Name>(static_cast<int>(first) + n - 1);
}

} // namespace hustle
