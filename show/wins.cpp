// A win shows itself on main: the win line's frame glows, the three symbols pulse gently, and
// counted money rises to the bank.
#include "show/motions.h"

#include "core/wins.h"

#include <algorithm>
#include <cmath>

namespace hustle {

namespace {

constexpr double breath_ms = 1100; // from one swell to the next: well below three a second
constexpr double two_pi = 6.283185307179586;
constexpr double most_swell = 0.06;
constexpr std::int64_t flight_ms = 520;
constexpr std::int64_t coin_gap_ms = 170;         // from one coin to the next
constexpr std::int64_t reduced_coin_gap_ms = 800; // so that no point sees more than three in a second
constexpr int picture_ms = 33;                    // a slow light needs no more than thirty pictures a second

// Pixels of the panel: where coins start, and where they are gone, beneath the bank's figures, which
// stay readable.
constexpr double start_x = 352, start_y = 284, bank_x = 172, bank_y = 126;
constexpr double spread = 150; // the coins leave all along the win line

constexpr timer reel_chains[] = {timer::reelspin1, timer::reelspin2, timer::reelspin3,
                                 timer::spinreel1, timer::spinreel2, timer::spinreel3};

bool a_reel_turns(const panel& p) {
    return std::any_of(std::begin(reel_chains), std::end(reel_chains),
                       [&](timer t) { return is_running(p, t); });
}

bool win_stands(const game& g) {
    if (g.m.win <= 0 || is_loaded(g.p, screen::feature) || a_reel_turns(g.p))
        return false;
    return is_running(g.p, timer::feature_start) || is_running(g.p, timer::wintobank);
}

void patch_area(stage& s, const rect& area) { s.patches.push_back({screen::main, area}); }

// One after the other they leave from three places along the win line.
double start_of(std::int64_t born) {
    return start_x + static_cast<double>(born / coin_gap_ms % 3 - 1) * spread;
}

void let_coin_rise(stage& s, std::int64_t now) {
    win_motion& w = s.win;
    if (now - w.last_coin < (s.reduced ? reduced_coin_gap_ms : coin_gap_ms))
        return;
    w.last_coin = now;
    w.coins.push_back({now, start_of(now), start_y, 0});
}

void fly(coin& c, std::int64_t now) {
    const double u = std::clamp(static_cast<double>(now - c.born) / flight_ms, 0.0, 1.0);
    const double eased = u * u * (3 - 2 * u);
    const double from = start_of(c.born);
    c.x = from + (bank_x - from) * eased * eased;
    c.y = start_y + (bank_y - start_y) * eased;
    c.opacity = std::min({1.0, u * 8, (1 - u) * 4});
}

} // namespace

rect win_line_area() { return pixels(118, 222, 468, 124); }
rect coin_area() { return pixels(128, 106, 448, 204); }

void take_in_win(stage& s, const game& g, std::int64_t now) {
    win_motion& w = s.win;
    const bool stands = win_stands(g);
    const bool counted = !s.fresh && is_running(g.p, timer::wintobank) && g.m.bank > w.bank;
    w.bank = g.m.bank;
    if (counted)
        let_coin_rise(s, now);
    if (stands == w.shows)
        return;
    w.shows = stands;
    w.line = stands && line_prize(g.m) > 0;
    w.since = now;
    w.glow = 0;
    w.swell = 1;
    patch_area(s, win_line_area());
}

int advance_win(stage& s, const game&, std::int64_t now) {
    win_motion& w = s.win;
    int next = -1;
    if (w.shows) {
        const double turn = two_pi * static_cast<double>(now - w.since) / breath_ms;
        const double breath = 0.5 - 0.5 * std::cos(turn);
        w.glow = (now - w.since) * 2 < static_cast<std::int64_t>(breath_ms) ? breath : 0.35 + 0.65 * breath;
        w.swell = w.line ? 1 + most_swell * breath : 1;
        patch_area(s, win_line_area());
        next = picture_ms;
    }
    if (w.coins.empty())
        return next;
    patch_area(s, coin_area());
    for (coin& c : w.coins)
        fly(c, now);
    std::erase_if(w.coins, [now](const coin& c) { return now - c.born >= flight_ms; });
    return 0;
}

} // namespace hustle
