// The reels roll: while a reel shows its frames the strip runs, and when the stop is written it runs
// out into that picture with a small bounce.
#include "show/motions.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace hustle {

namespace {

constexpr double stops = 16;
constexpr double full_speed = 24.0 / 1000; // stops a millisecond
constexpr double speed_up_ms = 70;
constexpr double eye_ms = 1000.0 / 60; // what the eye takes for one picture
constexpr double settle_ms = 118;      // from the written stop to rest
constexpr double bounce = 0.13;        // stops that a reel runs too far
constexpr double step_ms = 90;         // one stop further, by a nudge
constexpr double step_bounce = 0.05;
constexpr double smear = 16; // nothing can be told apart: nothing flickers
constexpr double pi = 3.141592653589793;

bool is_frame(art a) { return a >= art::effect1 && a <= art::effect4; }

constexpr timer chains[] = {timer::reelspin1, timer::reelspin2, timer::reelspin3, timer::spinreel1,
                            timer::spinreel2, timer::spinreel3, timer::reelskill};

// Frames that are left standing with no chain behind them do not roll.
bool chain_runs(const panel& p) {
    return std::any_of(std::begin(chains), std::end(chains), [&](timer t) { return is_running(p, t); });
}

double on_strip(double position) {
    const double rest = std::fmod(position, stops);
    return rest < 0 ? rest + stops : rest;
}

double speed_after(double ms) { return full_speed * std::clamp(ms / speed_up_ms, 0.25, 1.0); }

element reel_element(int which) { return nth(element::reel1, which); }

void rest(reel_motion& r) {
    r.now = reel_motion::phase::rests;
    r.at = r.to;
    r.blur = 0;
}

void stand_at(reel_motion& r, double target) {
    r.to = target;
    rest(r);
}

// From where the strip is to the stop at least one further on: the symbols that pass are not to be
// read, so only the place within a stop has to go on without a jump.
void settle(reel_motion& r, double target, std::int64_t now, bool reduced) {
    const double part = r.at - target - std::floor(r.at - target);
    r.now = reel_motion::phase::settles;
    r.to = target;
    r.from = reduced ? 0 : 1 + part;
    r.steps = false;
    r.since = now;
}

void step_to(reel_motion& r, double target, std::int64_t now, bool reduced) {
    const bool next = on_strip(r.at - 1) == target; // whole numbers, where it rests
    r.to = target;
    if (r.now == reel_motion::phase::rests && next && !reduced) {
        r.now = reel_motion::phase::settles;
        r.from = 1;
        r.steps = true;
        r.since = now;
    } else {
        rest(r);
    }
}

// Runs on at its speed, goes a little too far and comes back.
double settling(const reel_motion& r, double ms, bool& over) {
    const double whole = r.steps ? step_ms : settle_ms;
    const double run = r.steps ? 0.6 * step_ms : r.from / full_speed;
    over = ms >= whole;
    if (over)
        return 0;
    if (ms < run)
        return r.from * (1 - ms / run);
    const double u = (ms - run) / (whole - run);
    return -(r.steps ? step_bounce : bounce) * std::sin(pi * std::sqrt(u)) * (1 - 0.3 * u);
}

} // namespace

int stop_of(art a) {
    for (int stop = 1; stop <= 16; ++stop)
        if (const art pounds = nth(art::cbp, stop); a == pounds || a == dollar_version(pounds))
            return stop;
    return 0;
}

void take_in_reel(stage& s, const game& g, int which, std::int64_t now) {
    reel_motion& r = s.reels[static_cast<std::size_t>(which - 1)];
    const art a = at(g.p, reel_element(which)).picture;
    const art before = std::exchange(r.seen, a);
    const int stop = stop_of(a);
    const bool rolling = is_frame(a) && chain_runs(g.p);
    r.on_strip = stop != 0 || rolling;
    if (rolling) {
        if (r.now != reel_motion::phase::rolls) {
            r.now = reel_motion::phase::rolls;
            r.since = r.moved = now;
        }
        return;
    }
    if (stop == 0 || (a == before && !s.fresh)) {
        if (stop == 0)
            rest(r);
        return;
    }
    if (r.now == reel_motion::phase::rolls)
        settle(r, stop - 1, now, s.reduced);
    else if (s.fresh || stop_of(before) == 0)
        stand_at(r, stop - 1);
    else
        step_to(r, stop - 1, now, s.reduced);
}

bool advance_reel(stage& s, const game& g, int which, std::int64_t now) {
    reel_motion& r = s.reels[static_cast<std::size_t>(which - 1)];
    if (r.now == reel_motion::phase::rests)
        return false;
    const double ms = static_cast<double>(now - r.since);
    if (r.now == reel_motion::phase::rolls) {
        if (!chain_runs(g.p)) {
            r.on_strip = false;
            r.now = reel_motion::phase::rests;
            add_patch(s, g.p, reel_element(which));
            return false;
        }
        const bool first = r.moved == r.since;
        r.at = on_strip(r.at - speed_after(ms) * static_cast<double>(now - r.moved));
        r.moved = now;
        r.blur = s.reduced ? smear : speed_after(ms) * eye_ms;
        if (!s.reduced || first)
            add_patch(s, g.p, reel_element(which));
        return !s.reduced;
    }
    bool over = false;
    const double ahead = settling(r, ms, over);
    r.at = on_strip(r.to + ahead);
    r.blur = ahead > 0 && !r.steps ? full_speed * eye_ms : 0;
    if (over || s.reduced)
        rest(r);
    add_patch(s, g.p, reel_element(which));
    return r.now != reel_motion::phase::rests;
}

} // namespace hustle
