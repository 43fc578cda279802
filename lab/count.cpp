// What the end of a play adds to the counts.
#include "lab/seat.h"

#include <algorithm>
#include <cmath>

namespace hustle::lab {

namespace {

constexpr std::array<number, win_limits.size()> win_units = [] {
    std::array<number, win_limits.size()> units{};
    for (std::size_t i = 0; i < units.size(); ++i)
        units[i] = static_cast<number>(win_limits[i] * units_of_pound); // exact
    return units;
}();

std::size_t win_bin(number units) {
    return static_cast<std::size_t>(std::ranges::lower_bound(win_units, units) - win_units.begin());
}

std::size_t band_of(single pcent) {
    return static_cast<std::size_t>(std::ranges::lower_bound(band_limits, pcent) - band_limits.begin());
}

number thousandths(single percent) {
    return percent > 0 ? static_cast<number>(std::lround(double{percent} * 1000)) : 0;
}

void count_windows(seat& s) {
    for (std::size_t w = 0; w < window_plays.size(); ++w) {
        number& staked = s.window_staked[w];
        number& banked = s.window_banked[w];
        staked += s.play.staked;
        banked += s.play.paid;
        if (s.sum.plays % window_plays[w] != 0)
            continue;
        tally::window& window = s.sum.windows[w];
        const std::int64_t lost = static_cast<std::int64_t>(staked) - static_cast<std::int64_t>(banked);
        ++window.count;
        window.lost += lost;
        window.lost_squares += static_cast<number>(lost * lost);
        ++window.returns[std::min(static_cast<std::size_t>(banked * 200 / staked), window_bins - 1)];
        staked = banked = 0;
    }
}

void count_look(seat& s) {
    if (s.next_look >= look_count || s.sum.plays != look_at(s.next_look))
        return;
    s.sum.look_staked[s.next_look] = s.sum.staked;
    s.sum.look_banked[s.next_look] = s.sum.banked;
    s.sum.look_own[s.next_look] = s.sum.own;
    ++s.next_look;
}

void count_play(seat& s) {
    tally& t = s.sum;
    const current_play& play = s.play;
    ++t.plays;
    t.staked += play.staked;
    t.banked += play.paid;
    t.squares += play.paid * play.paid;
    t.hits += play.paid > 0;
    s.dry = play.paid > 0 ? 0 : s.dry + 1;
    t.dry = std::max(t.dry, s.dry);
    t.ms = static_cast<number>(s.g.p.now - s.began_at);
    t.own = thousandths(s.g.m.pcent);
    ++t.band_plays[play.band];
    t.band_paid[play.band] += play.paid;
    ++t.wins[win_bin(play.paid)];
    count_windows(s);
    count_look(s);
}

void warm_up(seat& s) {
    if (--s.warm_left > 0)
        return;
    s.sum = {};
    s.began_at = s.g.p.now;
}

} // namespace

void end_play(seat& s) {
    if (!s.play.begun)
        s.began_at = s.g.p.now;
    else if (s.warm_left > 0)
        warm_up(s);
    else
        count_play(s);
    s.seen.free_spin = s.seen.nudged = s.seen.skill = false;
    s.play = {.begun = true, .staked = stake_units, .band = band_of(s.g.m.pcent)};
    s.sum.times[static_cast<std::size_t>(feature::holds)] += s.was.holds;
    s.last_play = s.g.p.now;
}

} // namespace hustle::lab
