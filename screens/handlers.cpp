#include "screens/handlers.h"

#include "board/board.h"
#include "board/reelawards.h"
#include "core/bank.h"
#include "core/holds.h"
#include "core/nudges.h"
#include "core/play.h"
#include "core/reels.h"
#include "core/reelskill.h"
#include "core/start.h"
#include "core/ticks.h"
#include "core/upward.h"
#include "panel/sheet.h"
#include "screens/sidescreens.h"
#include "subgames/subgames.h"
#include "trail/stopper.h"
#include "trail/trail.h"

#include <array>

namespace hustle {

namespace {

template <screen s> void unload(game& g) { unload_screen(g, s); }
void stay_open(game&) {} // the board has no close of its own
void openguide(game& g) { menupress(g, element::rguidemenu); }

// The table that ends the program closes as by its Exit button; one opened for viewing just closes,
// also where it still stands while a name is asked for.
void close_Highscore(game& g) {
    if (g.m.exiting == 1 && is_visible(g.p, element::Highscore_Picture1))
        Highscore_exit(g);
    else
        unload_screen(g, screen::Highscore);
}

struct press_row {
    element id;
    handler act;
};

// clang-format off
constexpr std::array<screen_routines, screen_count> screens = {{
    {screen::software,   software_load,  nullptr,        nullptr,       nullptr,         stay_open},
    {screen::main,       main_load,      nullptr,        main_focus,    nullptr,         exitroutine},
    {screen::feature,    feature_load,   feature_unload, feature_focus, nullptr,         stay_open},
    {screen::statistics, nullptr,        nullptr,        nullptr,       statistics_blur, unload<screen::statistics>},
    {screen::Highscore,  Highscore_load, nullptr,        nullptr,       nullptr,         close_Highscore},
    {screen::Entername,  Entername_load, nullptr,        nullptr,       nullptr,         Entername_submit},
    {screen::reelguide,  reelguide_load, nullptr,        nullptr,       nullptr,         unload<screen::reelguide>},
    {screen::wintable,   wintable_load,  nullptr,        nullptr,       nullptr,         unload<screen::wintable>},
    {screen::About,      About_load,     nullptr,        nullptr,       nullptr,         unload<screen::About>},
}};

constexpr press_row presses[] = {
    {element::reel1,        openguide},
    {element::reel2,        openguide},
    {element::reel3,        openguide},
    {element::hold1,        holdpress1},
    {element::hold2,        holdpress2},
    {element::hold3,        holdpress3},
    {element::cancelbutton, cancelpress},
    {element::stopper,      stopperpress},
    {element::start,        startpress},
    {element::transfer,     transferpress},

    {element::feature_hibutton,       hipress},
    {element::feature_lobutton,       lopress},
    {element::feature_collect,        collectpress},
    {element::feature_featurebutton,  featurepress},
    {element::feature_cashbutton,     cashpress},
    {element::feature_shotbutton,     shotpress},
    {element::feature_exchangebutton, exchangepress},
    {element::feature_stopfeature,    stoppress},
    {element::feature_startbutton,    feature_startpress},

    {element::statistics_Picture1, statistics_back},
    {element::statistics_Picture2, statistics_reset},
    {element::Highscore_Picture1,  Highscore_exit},
    {element::Highscore_Picture2,  Highscore_return},
    {element::Highscore_Picture3,  Highscore_reset},
    {element::Entername_image1,    Entername_submit},
    {element::About_cmdOK,         About_ok},
    {element::About_cmdSysInfo,    About_sysinfo},
};

constexpr handler ticks[] = {
#define TIMER(name, where, script, ms, start, keeps) name,
#include "panel/timers.def"
#undef TIMER
};

// The keyboard of main: a key takes no other path than the mouse on its button.
struct key_row {
    int code;
    element button;
};
constexpr key_row keys[] = {
    {97, element::hold1},        {49, element::hold1},         // keypad 1, 1
    {98, element::hold2},        {50, element::hold2},         // keypad 2, 2
    {99, element::hold3},        {51, element::hold3},         // keypad 3, 3
    {67, element::cancelbutton}, {192, element::cancelbutton}, // C, the key left of 1
    {223, element::cancelbutton},                              // the same key on a UK keyboard
    {96, element::transfer},     {48, element::transfer},      // keypad 0, 0
};
constexpr int key_space = 32;
constexpr int key_f1 = 112;
constexpr int key_enter = 13;
// clang-format on

bool press_if_enabled(game& g, element e) {
    if (!is_enabled(g.p, e) || !is_visible(g.p, e))
        return false;
    press_handler(e)(g);
    return true;
}

bool main_key(game& g, int code) {
    if (code == key_f1) {
        g.w.browse(page::help);
        return true;
    }
    if (code == key_space) { // one press can do both: the second test follows the first action
        const bool started = press_if_enabled(g, element::start);
        return press_if_enabled(g, element::stopper) || started;
    }
    for (const key_row& k : keys)
        if (k.code == code)
            return press_if_enabled(g, k.button);
    return false;
}

bool feature_key(game& g, int code) {
    if (code != key_space)
        return false;
    const bool started = press_if_enabled(g, element::feature_startbutton);
    return press_if_enabled(g, element::feature_stopfeature) || started;
}

} // namespace

bool close_score_screen(game& g) {
    if (is_loaded(g.p, screen::Entername)) {
        Entername_submit(g);
        return true;
    }
    if (!is_loaded(g.p, screen::Highscore) || g.m.newscore != 0 ||
        !is_visible(g.p, element::Highscore_Picture1))
        return false;
    Highscore_exit(g);
    return true;
}

const screen_routines& routines(screen s) { return screens[static_cast<std::size_t>(s)]; }

handler tick_handler(timer t) { return ticks[static_cast<std::size_t>(t)]; }

handler press_handler(element e) {
    static constexpr auto acts = [] {
        std::array<handler, element_count> by_element{};
        for (const press_row& r : presses)
            by_element[static_cast<std::size_t>(r.id)] = r.act;
        return by_element;
    }();
    return acts[static_cast<std::size_t>(e)];
}

bool keypress(game& g, screen s, int code) {
    if (s == screen::main)
        return main_key(g, code);
    if (s == screen::feature)
        return feature_key(g, code);
    if (s != screen::Entername || code != key_enter)
        return false;
    Entername_submit(g);
    return true;
}

} // namespace hustle
