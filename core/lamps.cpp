// The button lamps of main in play.
#include "core/ticks.h"

#include "core/reels.h"

namespace hustle {

namespace {

using enum element;

// Light at step 1, dark at step 4.
void slow_flash(game& g, element lamp, art dark, art light) {
    if (g.m.lampstep == 1)
        set_picture(g.p, lamp, light);
    else if (g.m.lampstep == 4)
        set_picture(g.p, lamp, dark);
}

// Dark while the stop button is live or a payout runs; alone while nudges are in hand.
void start_lamp(game& g) {
    if (g.m.nudges != 0)
        return;
    if (is_enabled(g.p, stopper) || is_running(g.p, timer::wintobank))
        set_picture(g.p, start, art::startpicdark);
    else if (g.m.lampstep != 1 || is_enabled(g.p, start))
        slow_flash(g, start, art::startpicdark, art::startpiclight);
}

bool matches_another(const machine& m, int which) {
    for (int other = 1; other <= 3; ++other)
        if (other != which && reel(m, other).sym == reel(m, which).sym)
            return true;
    return false;
}

// The lamp of a reel in a pair flashes three times as fast; that of a held reel stays lit.
void hold_lamps(game& g) {
    const int step = g.m.lampstep;
    for (int which = 1; which <= 3; ++which) {
        const reel_state& r = reel(g.m, which);
        const bool pair_flash = !is_held(r) && matches_another(g.m, which);
        if (step == 1 || (pair_flash && (step == 3 || step == 5)))
            set_picture(g.p, hold_button(which), art::holdpiclight);
        else if ((step == 4 && !is_held(r)) || (pair_flash && (step == 2 || step == 6)))
            set_picture(g.p, hold_button(which), art::holdpicdark);
    }
}

void stopper_lamp(game& g) {
    if (is_enabled(g.p, stopper))
        slow_flash(g, stopper, art::stoppicdark, art::stoppiclight);
    else
        set_picture(g.p, stopper, art::stoppicdark);
}

} // namespace

void butflash(game& g) {
    machine& m = g.m;
    start_lamp(g);
    if (m.holdsoffered == flag::yes && m.nudges == 0)
        hold_lamps(g);
    if (m.holdsoffered == flag::yes && held_reels(m) > 0)
        slow_flash(g, cancelbutton, art::cancelpicdark, art::cancelpiclight);
    stopper_lamp(g);
    if (is_running(g.p, timer::reelskill))
        slow_flash(g, hold1, art::stoppicdark, art::stoppiclight);
    if (is_running(g.p, timer::reelskill2))
        slow_flash(g, hold3, art::stoppicdark, art::stoppiclight);
    m.lampstep = next_of(m.lampstep, 6);
}

} // namespace hustle
