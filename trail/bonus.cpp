// The Bonus: its chance, the flashing intro, the wheel, and the lamps of the two boosts.
#include "trail/bonus.h"

#include "core/bank.h"
#include "core/play.h"
#include "trail/trail.h"

namespace hustle {

constexpr std::array<std::string_view, 11> wheel_texts = {
    "     * TRAIL SKILL *",  // 1
    "       * SELECTOR *",   // 2
    "    * TRAIL CLIMBER *", // 3
    "        * RESPIN *",    // 4
    "     * TRAIL BOOST *",  // 5
    "     * SUPER BOOST *",  // 6
    "        * NUDGES *",    // 7
    "      * ADD AGAIN *",   // 8
    "      * SPIN A WIN *",  // 9
    "       * STOPPER *",    // 10
    "    * NUMBER RUNNER *", // 11
};

namespace {

using enum element;

constexpr int wheel_ms = 150;
constexpr int true_skill_wheel_ms = 500;
constexpr int trailskill_ms = 40;
constexpr int intro_steps = 9;

// One tick of an intro; true on its last step.
bool intro(game& g, std::string_view text) {
    machine& m = g.m;
    m.bonuspick = 1;
    const bool last = m.bonusintro >= intro_steps;
    if (!last)
        line(g, m.bonusintro % 2 == 0 ? text : "");
    m.bonusintro = next_of(m.bonusintro, intro_steps);
    return last;
}

} // namespace

void bonuschance(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    const bool true_skill = draw(g, 10) == 10;
    m.nudges = 0;
    if (m.win != 0 || is_running(p, timer::numberrun))
        return;
    disable(p, start);
    if (true_skill)
        disable(p, stopper);
    play(g, true_skill ? sound::okeydoke : sound::bonus);
    hide(p, trailheld);
    start_timer(p, true_skill ? timer::start_superbonus : timer::start_bonus);
    set_interval(p, timer::trailskill, trailskill_ms);
    if (!true_skill)
        set_interval(p, timer::bonus_timer, wheel_ms);
}

void start_bonus(game& g) {
    if (!intro(g, "     *  B O N U S  *"))
        return;
    clearholds(g);
    enable(g.p, stopper);
    start_timer(g.p, timer::bonus_timer);
    stop_timer(g.p, timer::start_bonus);
}

void start_superbonus(game& g) {
    if (!intro(g, "  *  TRUE SKILL BONUS  *"))
        return;
    set_interval(g.p, timer::bonus_timer, true_skill_wheel_ms);
    enable(g.p, stopper);
    start_timer(g.p, timer::bonus_timer);
    stop_timer(g.p, timer::start_superbonus);
}

void bonus_timer(game& g) {
    machine& m = g.m;
    do
        m.bonuspick = draw(g, static_cast<int>(wheel_texts.size()));
    while (m.bonuspick == m.lastbonuspick);
    play(g, sound::pick);
    line(g, wheel_texts[static_cast<std::size_t>(m.bonuspick - 1)]);
    m.lastbonuspick = m.bonuspick;
}

void bonusnumbers(game& g) {
    panel& p = g.p;
    const int top = 4 + g.m.boostcount;
    if (!lamp_lit(g, 9))
        play(g, sound::addtrail);
    const int lamp = lowest_dark(g, 5, top);
    light_lamp(g, lamp);
    if (lamp != 0 && lamp < top)
        return;
    if (top < 9) {
        enable(p, start);
        stop_timer(p, timer::bonusnumbers);
        figuresline(g);
        return;
    }
    fulltrail(g);
    stop_timer(p, timer::bonusnumbers);
}

} // namespace hustle
