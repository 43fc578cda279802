#include "core/nudges.h"

#include "core/bands.h"
#include "core/bank.h"
#include "core/play.h"
#include "core/reels.h"
#include "core/upward.h"
#include "core/wins.h"
#include "panel/text.h"

#include <algorithm>
#include <array>

namespace hustle {

namespace {

using enum element;

// The ladder by the count in hand; a single figure by nudge1 to nudge5.
constexpr art ladder[] = {art::nudge0,   art::nudge1,    art::nudge12,
                          art::nudge123, art::nudge1234, art::nudge12345};

art ladder_art(int nudges) { return ladder[std::clamp(nudges, 0, 5)]; }

void hold_lamps(game& g, art look) {
    for (const element lamp : {hold1, hold2, hold3})
        set_picture(g.p, lamp, look);
}

void hold_buttons(game& g, bool on) {
    for (const element button : {hold1, hold2, hold3})
        set_enabled(g.p, button, on);
}

bool nudges_admitted(const machine& m) {
    return m.holdsoffered == flag::no && m.win == 0 && m.nudgedraw == 3 && m.trailvalue != 4 &&
           m.trailvalue < 9 && m.credits > 0.25f;
}

// The kind of nudges, as `nudgemode` counts them. Between 85 and 86 it stays what it was.
constexpr count skill = 3, by_draw = 2, adding = 1;
constexpr band kinds[] = {{edge::below, 0, 0},
                          {edge::upto, 75, skill},
                          {edge::upto, 85, by_draw},
                          {edge::below, 86, 0},
                          {edge::upto, 100000000, adding}};

void choose_mode(game& g) {
    const count kind = band_figure(g.m.pcent, kinds);
    if (kind != 0)
        g.m.nudgemode = kind == by_draw ? draw(g, 3) : kind;
}

// The reach of the draw of add nudges. The bands are whole numbers and pcent is not: between two of
// them there are no nudges. A reach of 1 needs no draw.
constexpr band add_reach[] = {{edge::below, 0, 0},  {edge::upto, 80, 5},  {edge::below, 81, 0},
                              {edge::upto, 85, 4},  {edge::below, 86, 0}, {edge::upto, 90, 3},
                              {edge::below, 91, 0}, {edge::upto, 95, 2},  {edge::upto, no_limit, 1}};

count draw_add_nudges(game& g) {
    const count reach = band_figure(g.m.pcent, add_reach);
    return reach > 1 ? draw(g, reach) : reach;
}

void offer_add(game& g) {
    g.m.nudges = draw_add_nudges(g);
    hold_lamps(g, art::nudgepiclight);
    disable(g.p, start);
    if (g.m.nudges >= 1)
        start_timer(g.p, timer::addnudges);
}

void offer_figure(game& g, std::string_view text, timer chain) {
    line(g, text);
    enable(g.p, stopper);
    hold_buttons(g, false);
    start_timer(g.p, chain);
}

// While one of these runs, ladder and lamps give way to it.
constexpr timer trail_events[] = {timer::trailclimb,  timer::selector,     timer::trailskill,
                                  timer::bonus_timer, timer::trail_flash,  timer::bonusnumbers,
                                  timer::numbers2,    timer::feature_start};

bool figure_tick(game& g) {
    const bool busy = std::any_of(std::begin(trail_events), std::end(trail_events),
                                  [&](timer t) { return is_running(g.p, t); });
    g.m.trailbusy = busy ? flag::yes : flag::no;
    disable(g.p, start);
    return busy;
}

void nudge(game& g, int which) {
    machine& m = g.m;
    reel_state& r = reel(m, which);
    r.num = 0;
    set_stop(g, which, before_of(r.pos, 16));
    --m.nudges;
    m.trailvalue += r.num;
    checkline(g);
    if (m.win <= 0 && r.num >= 1)
        starttrailrun(g);
}

void flash_nudges(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    set_picture(p, picture1, shows(p, picture1, art::nudge0) ? ladder_art(m.nudges) : art::nudge0);
    if (shows(p, hold1, art::holdpicdark)) {
        hold_lamps(g, art::nudgepiclight);
    } else if (shows(p, hold1, art::nudgepicdark)) {
        hold_lamps(g, art::nudgepiclight);
        set_picture(p, nudgenow, art::nudgenowpiclight);
    } else if (shows(p, hold1, art::nudgepiclight)) {
        hold_lamps(g, art::nudgepicdark);
        set_picture(p, nudgenow, art::nudgenowpicdark);
    }
    if (m.nudgestep == 1 && m.nudges > 1)
        line(g, short_text("     YOU HAVE ").add(plain(int{m.nudges})).add(" NUDGES"));
    else if (m.nudgestep == 1 && m.nudges == 1)
        line(g, "     YOU HAVE 1 NUDGE");
    else if (m.nudgestep == 4)
        line(g, "       * NUDGE NOW *");
    m.nudgestep = next_of(m.nudgestep, 8);
}

void end_nudges(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    enable(p, start);
    figuresline(g);
    set_picture(p, picture1, art::nudge0);
    set_picture(p, nudgenow, art::nudgenowpicdark);
    hold_lamps(g, art::holdpicdark);
    stop_timer(p, timer::nudgetimer);
    m.holdsoffered = flag::no;
    play(g, sound::none);
    if (m.win == 0 && m.trailvalue != 4)
        offerdontholdany(g);
}

} // namespace

void offernudges(game& g) {
    machine& m = g.m;
    m.nudgedraw = draw(g, 6);
    if (!nudges_admitted(m)) {
        m.nudges = 0;
        return;
    }
    clearholds(g);
    hide(g.p, trailheld);
    disable(g.p, start);
    choose_mode(g);
    if (m.nudgemode == 1)
        offer_add(g);
    else if (m.nudgemode == 2)
        offer_figure(g, "      RANDOM NUDGES", timer::pseudo_nudges);
    else if (m.nudgemode == 3)
        offer_figure(g, "       SKILL NUDGES", timer::skill_nudges);
}

void pseudo_nudges(game& g) {
    machine& m = g.m;
    if (!figure_tick(g)) {
        set_picture(g.p, picture1, art::nudge0);
        m.lastfigure = m.nudges;
    }
    do {
        m.nudges = draw(g, 5);
    } while (m.nudges == m.lastfigure);
    set_picture(g.p, picture1, nth(art::nudge1, m.nudges));
    play(g, sound::ping);
}

void skill_nudges(game& g) {
    machine& m = g.m;
    const bool busy = figure_tick(g);
    m.nudges = static_cast<count>(m.nudges == 5 ? 1 : m.nudges + 1); // more than five in hand run on
    if (!busy && m.nudges >= 1 && m.nudges <= 5)
        set_picture(g.p, picture1, nth(art::nudge1, m.nudges));
    play(g, sound::ping);
}

void addnudges(game& g) {
    machine& m = g.m;
    disable(g.p, start);
    line(g, "   ** ADDING NUDGES **");
    if (m.addstep == 6) {
        hold_lamps(g, art::nudgepiclight);
        hold_buttons(g, true);
        m.addstep = 1;
        stop_timer(g.p, timer::addnudges);
        start_timer(g.p, timer::nudgetimer);
        play(g, sound::nudgenow);
        return;
    }
    set_picture(g.p, picture1, ladder_art(m.addstep));
    play(g, sound::addnudge);
    if (m.addstep == m.nudges)
        m.addstep = 6;
    else
        ++m.addstep;
}

void nudgetimer(game& g) {
    if (g.m.trailbusy == flag::no)
        flash_nudges(g);
    else
        hold_lamps(g, art::nudgepicdark);
    if (g.m.nudges == 0)
        end_nudges(g);
}

void nudgereel1(game& g) { nudge(g, 1); }
void nudgereel2(game& g) { nudge(g, 2); }
void nudgereel3(game& g) { nudge(g, 3); }

} // namespace hustle
