#include "panel/sheet_rows.h"

namespace hustle::sheet {

namespace {

constexpr bool on = true;
constexpr bool off = false;
using enum screen;

// clang-format off
#define MAIN_TIMER(id, ms, at_start) {timer::id, screen::main, #id, ms, at_start}
#define BOARD_TIMER(id, ms, at_start) {timer::feature_##id, feature, #id, ms, at_start}
constexpr timer_row rows[] = {
    {timer::software_Timer1, software, "Timer1", 10, on},

    MAIN_TIMER(reelspin1,           40, off),
    MAIN_TIMER(reelspin2,           40, off),
    MAIN_TIMER(reelspin3,           40, off),
    MAIN_TIMER(start_spin_in,      600, off),
    MAIN_TIMER(init_trail_timer,    25, off),
    MAIN_TIMER(ilikeit,             40, off),
    MAIN_TIMER(dontholdany,         10, off),
    MAIN_TIMER(letemspin,           10, off),
    MAIN_TIMER(addnudges,          350, off),
    MAIN_TIMER(nudgetimer,         120, off),
    MAIN_TIMER(pseudo_nudges,       80, off),
    MAIN_TIMER(skill_nudges,       120, off),
    MAIN_TIMER(wintobank,           60, off),
    MAIN_TIMER(banktocredits,       60, off),
    MAIN_TIMER(reelskill,           25, off),
    MAIN_TIMER(reelskill2,         200, off),
    MAIN_TIMER(reelskill3,         200, off),
    MAIN_TIMER(start_reelskill,    200, off),
    MAIN_TIMER(numbers2,            80, off),
    MAIN_TIMER(numberrun,         1200, off),
    MAIN_TIMER(trailclimb,         150, off),
    MAIN_TIMER(trailskill,          60, off),
    MAIN_TIMER(trailstopper,        75, off),
    MAIN_TIMER(trail_flash,         75, off),
    MAIN_TIMER(selector,           500, off),
    MAIN_TIMER(start_bonus,        100, off),
    MAIN_TIMER(start_superbonus,   100, off),
    MAIN_TIMER(bonus_timer,        200, off),
    MAIN_TIMER(bonusnumbers,       200, off),
    MAIN_TIMER(feature_start,       65, off),
    MAIN_TIMER(start_repeatchance, 200, off),
    MAIN_TIMER(yes_no,             105, off),
    MAIN_TIMER(rollem,             150, off),
    MAIN_TIMER(spinreel1,           40, off),
    MAIN_TIMER(spinreel2,           40, off),
    MAIN_TIMER(spinreel3,           40, off),
    MAIN_TIMER(start_luckysevens,  200, off),
    MAIN_TIMER(start_winstreak,    200, off),
    MAIN_TIMER(start_pickawin,     200, off),
    MAIN_TIMER(start_winspins,     200, off),
    MAIN_TIMER(startattract,     10000, on),
    MAIN_TIMER(attracthold,         60, off),
    MAIN_TIMER(flashtimer,         100, off),
    MAIN_TIMER(scrolltimer,       1000, off),
    MAIN_TIMER(butflash,           100, on),

    BOARD_TIMER(butflash,            200, on),
    BOARD_TIMER(exchange_timer,       50, off),
    BOARD_TIMER(exchange_effect,      30, off),
    BOARD_TIMER(hitimer,             200, on),
    BOARD_TIMER(win_timer,           200, on),
    BOARD_TIMER(gambletimer,         700, off),
    BOARD_TIMER(cashwin_effect,       20, off),
    BOARD_TIMER(spin_dice,            35, off),
    BOARD_TIMER(movetimer,           160, off),
    BOARD_TIMER(cashadd,              50, off),
    BOARD_TIMER(featureadd,           50, off),
    BOARD_TIMER(shotadd,             150, off),
    BOARD_TIMER(exittimer,           100, off),
    BOARD_TIMER(bonus_win,           300, off),
    BOARD_TIMER(flashing_lights,     100, off),
    BOARD_TIMER(start_sevenspinner,  150, off),
    BOARD_TIMER(start_pickawin,      150, off),
    BOARD_TIMER(start_winspins,      150, off),
    BOARD_TIMER(start_winstreak,     150, off),
    BOARD_TIMER(start_reelskill,     150, off),
    BOARD_TIMER(start_letsspin,      150, off),
    BOARD_TIMER(start_shots,         150, off),
    BOARD_TIMER(shots_timer,          60, off),
    BOARD_TIMER(start_skillstop,      50, off),
    BOARD_TIMER(skillstoptimer,      150, off),
    BOARD_TIMER(start_randomstop,     50, off),
    BOARD_TIMER(randomstop,          100, off),
    BOARD_TIMER(moneybelttimer,      150, off),
    BOARD_TIMER(start_fastcash,      150, off),
    BOARD_TIMER(fastcash,              1, off),
    BOARD_TIMER(start_shock,         120, off),
    BOARD_TIMER(shock_timer,          80, off),
    BOARD_TIMER(shock_trueskill,     500, off),
    BOARD_TIMER(start_thin_ice,       50, off),
    BOARD_TIMER(start_boost,          50, off),
    BOARD_TIMER(start_bombfeature,   150, off),
    BOARD_TIMER(pickaladder,         300, off),
    BOARD_TIMER(savedbyextra,        200, off),
    BOARD_TIMER(yesorno,             200, off),
    BOARD_TIMER(invincibletimer,     200, off),

    {timer::statistics_Timer1,    statistics, "Timer1",     200, on},
    {timer::statistics_Timer2,    statistics, "Timer2",     100, on},
    {timer::Highscore_flashscore, Highscore,  "flashscore", 100, on},
    {timer::Highscore_Timer1,     Highscore,  "Timer1",     200, on},
    {timer::Entername_Timer1,     Entername,  "Timer1",     200, on},
};
// clang-format on
#undef MAIN_TIMER
#undef BOARD_TIMER

static_assert(std::size(rows) == timer_count);

} // namespace

std::span<const timer_row> timer_rows() { return rows; }

} // namespace hustle::sheet
