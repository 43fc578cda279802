// The attract mode: what the panel does while nobody plays. Two chases run on one count, the logo
// flashes, and the line tells what the machine is and has.

#include "screens/sidescreens.h"

#include "trail/trail.h"

#include <iterator>

namespace hustle {

namespace {

using enum element;

struct scroll_row {
    std::string_view text;
    int interval = 0; // ms from here on; 0: as it is
};

constexpr std::string_view none = "";
constexpr std::string_view repeater = "    * SUPER REPEATER *";
constexpr std::string_view skill = "      * REEL SKILL *";
constexpr std::string_view spinem = "       * SPIN 'EM *";
constexpr std::string_view winspins = "       * WIN SPINS *";
constexpr std::string_view stepper = "    * SEVEN STEPPER *";
constexpr std::string_view dash = "      * CASH DASH *";
constexpr std::string_view pickawin = "      * PICK A WIN *";
constexpr std::string_view jackpot = "   * JACKPOT REPEATER *";

// A name stands for a second, flashes fast, and stands for a second again.
// clang-format off
constexpr scroll_row scroll[] = {
    {"    MARBLEFOX PASTIMES", 1000},
    {"         PRESENT"},
    {"       HOARD HUSTLE"},
    {"         25p PLAY"},
    {"       £15 JACKPOT"},
    {none},
    {"   HAVE YOU PLAYED ALL"},
    {"       MY FEATURES"},
    {"         SUCH AS"},
    {repeater}, {none, 50}, {repeater}, {none}, {repeater}, {none}, {repeater, 1000},
    {skill},    {none, 50}, {skill},    {none}, {skill},    {none}, {skill, 1000},
    {spinem},   {none, 50}, {spinem},   {none}, {spinem},   {none}, {spinem, 1000},
    {winspins}, {none, 50}, {winspins}, {none}, {winspins}, {none}, {winspins, 1000},
    {stepper},  {none, 50}, {stepper},  {none}, {stepper},  {none}, {stepper, 1000},
    {dash},     {none, 50}, {dash},     {none}, {dash},     {none}, {dash, 1000},
    {pickawin}, {none, 50}, {pickawin}, {none}, {pickawin}, {none}, {pickawin, 1000},
    {"        OR THE BIG"},
    {jackpot, 50}, {none}, {jackpot}, {none}, {jackpot}, {none}, {jackpot}, {none}, {jackpot}, {none},
    {jackpot},     {none}, {jackpot}, {none}, {jackpot, 1000},
    {"          IT CAN"},
    {"          REPEAT"},
    {"        ON AND ON"},
    {"          AND ON"},
    {"        * AND ON *"},
    {"      * * AND ON * *"},
    {"    * * * AND ON * * *"},
    {none},
};
// clang-format on
static_assert(std::size(scroll) == 82);

// The nudge bar beside trail lamps 1 to 9: it fills, then empties.
constexpr art nudge_bar[9] = {art::nudge1,    art::nudge12,  art::nudge123, art::nudge1234, art::nudge12345,
                              art::nudge1234, art::nudge123, art::nudge12,  art::nudge1};

struct button_lamp {
    element button;
    art dark, light;
};
constexpr button_lamp button_lamps[6] = {
    {cancelbutton, art::cancelpicdark, art::cancelpiclight},
    {hold1, art::holdpicdark, art::holdpiclight},
    {hold2, art::holdpicdark, art::holdpiclight},
    {hold3, art::holdpicdark, art::holdpiclight},
    {stopper, art::stoppicdark, art::stoppiclight},
    {start, art::startpicdark, art::startpiclight},
};

// At the even steps: lamps 1 to 9 come on one by one, then all go out.
void trail_chase(game& g, int step) {
    if (step < 2 || step > 20 || step % 2 != 0)
        return;
    const int lamp = step / 2;
    if (lamp > 9) {
        traildark(g);
        return;
    }
    light_lamp(g, lamp);
    set_picture(g.p, picture1, nudge_bar[lamp - 1]);
}

// Four runs of six steps over the buttons: on and off from left to right, on and off from right to
// left.
void button_chase(panel& p, int step) {
    if (step < 1 || step > 24)
        return;
    const int run = (step - 1) / 6;
    const int place = (step - 1) % 6;
    const button_lamp& lamp = button_lamps[run < 2 ? place : 5 - place];
    set_picture(p, lamp.button, run % 2 == 0 ? lamp.light : lamp.dark);
}

} // namespace

void startattract(game& g) {
    const machine& m = g.m;
    if (m.credits != 0 || m.bank != 0 || m.win != 0)
        return;
    stop_timer(g.p, timer::butflash);
    start_timer(g.p, timer::scrolltimer);
    start_timer(g.p, timer::flashtimer);
    start_timer(g.p, timer::attracthold);
}

void attracthold(game& g) {
    machine& m = g.m;
    trail_chase(g, m.attractstep);
    button_chase(g.p, m.attractstep);
    m.attractstep = next_of(m.attractstep, 24);
}

void flashtimer(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    const bool second = m.logoflash != 0;
    set_visible(p, trailheld, second);
    set_picture(p, nudgenow, second ? art::nudgenowpicdark : art::nudgenowpiclight);
    set_picture(p, toplogo, second ? art::title : art::title2);
    m.logoflash = second ? 0 : 1;
}

void scrolltimer(game& g) {
    machine& m = g.m;
    const int step = m.scrollstep;
    constexpr int steps = static_cast<int>(std::size(scroll));
    if (step >= 1 && step <= steps) {
        const scroll_row& now = scroll[step - 1];
        line(g, now.text);
        if (now.interval != 0)
            set_interval(g.p, timer::scrolltimer, now.interval);
    }
    m.scrollstep = next_of(m.scrollstep, steps);
}

} // namespace hustle
