// What is counted on one machine. Whole numbers alone, so that a sum is exact and does not depend
// on its order. Money is in units of 5p: the stake is 5, a step of a payout 4.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace hustle::lab {

using number = std::uint64_t;

inline constexpr number stake_units = 5;
inline constexpr number step_units = 4;
inline constexpr double units_of_pound = 20;

// The way in which a payout was won.
enum class source : std::uint8_t {
    line,          // a line on the reels, collected as it stood
    nudged_line,   // made by a nudge
    promised_line, // of DONT HOLD ANY or LET 'EM SPIN
    gamble,        // a line raised by hi-lo
    cash,          // the cash ladder of the ring
    shots,
    seven_spinner,
    creepy_cash,
    fast_cash,
    reel_skill,
    on_the_run,
    win_spins,
    super_creepy,
    run_for_it,
    in_a_spin,
    spin_a_win,     // of the Bonus
    jackpot_line,   // three bells
    jackpot_gamble, // hi-lo to the top
    jackpot_board,  // a ladder's top, the bombs, a shot, Fast Cash
    repeat,         // a jackpot again
    streak,         // Run for It again
    unknown,        // a way that the lab has not understood: always nought
    total
};
inline constexpr std::size_t source_count = static_cast<std::size_t>(source::total);

// What comes along in play.
enum class feature : std::uint8_t {
    holds,
    let_em_spin,
    dont_hold_any,
    free_spin,
    add_nudges,
    random_nudges,
    skill_nudges,
    trail_held,
    bonus,
    true_skill_bonus,
    trail_skill, // the eleven awards of the Bonus, in the wheel's order
    selector,
    trail_climber,
    respin,
    trail_boost,
    super_boost,
    bonus_nudges,
    add_again,
    spin_a_win,
    trail_stopper,
    number_runner,
    run_up, // to the board
    gamble_opened,
    ring_opened,
    exchanged,
    guarded,
    mystery,
    thin_ice,
    skill_stop,
    random_stop,
    boost,
    bombs,
    life_spent,
    pick_a_ladder,
    took_shots,
    seven_spinner,
    creepy_cash,
    fast_cash,
    reel_skill,
    on_the_run,
    win_spins,
    run_for_it,
    in_a_spin,
    jackpot,
    repeat_chance,
    total
};
inline constexpr std::size_t feature_count = static_cast<std::size_t>(feature::total);

struct named {
    std::string_view key;   // in files
    std::string_view title; // in words
};
named name(source);
named name(feature);

// The bands of the payout percentage between the gates of the machine: each reaches up to its
// limit, the last one up to anything.
inline constexpr std::array<float, 9> band_limits = {70, 75, 80, 81, 85, 86, 90, 95, 100};
inline constexpr std::size_t band_count = band_limits.size() + 1;

// A histogram of what one play paid, in pounds: up to each limit, the first one nothing.
inline constexpr std::array<double, 17> win_limits = {0,  1,  1.6, 2,  3,  4,  5,   6,  8,
                                                      10, 12, 15,  20, 30, 50, 100, 200};
inline constexpr std::size_t win_bins = win_limits.size() + 1;

// Windows of so many plays, and their returns in steps of 0.5 %: the last bin holds all above.
inline constexpr std::array<number, 2> window_plays = {10'000, 100'000};
inline constexpr std::size_t window_bins = 1001;

// The plays at which the way is looked at: 1, 2, 3, 5, 7, 10, 20, ... to 10^10.
inline constexpr std::size_t look_count = 51;
constexpr number look_at(std::size_t n) {
    constexpr number steps[] = {1, 2, 3, 5, 7};
    number tens = 1;
    for (std::size_t d = 0; d < n / 5; ++d)
        tens *= 10;
    return steps[n % 5] * tens;
}
// The way home: from these percentages, for at most so many plays.
inline constexpr std::array<int, 2> home_from = {40, 120};
inline constexpr number home_plays = 10'000;
inline constexpr std::size_t home_looks = 21;

struct tally {
    number plays = 0;
    number staked = 0;  // units: a stake for each play, and one for each repeat taken
    number banked = 0;  // units
    number squares = 0; // sum over plays of (banked units)^2
    number hits = 0;    // plays that paid
    number dry = 0;     // the longest run of plays that paid nothing
    number ms = 0;      // on the machine's clock
    number own = 0;     // the machine's own percentage at the end, in thousandths

    std::array<number, source_count> payouts{}; // how many
    std::array<number, source_count> paid{};    // units
    std::array<number, feature_count> times{};
    std::array<number, band_count> band_plays{}; // begun in the band
    std::array<number, band_count> band_paid{};  // units that these paid
    std::array<number, win_bins> wins{};         // plays by what they paid

    // Of whole windows: how many, and the sum and the squares of what the player lost, in units.
    struct window {
        number count = 0;
        std::int64_t lost = 0;
        number lost_squares = 0;
        std::array<number, window_bins> returns{};
    };
    std::array<window, window_plays.size()> windows{};

    // At each look that was reached: staked and banked until then, and the percentage.
    std::array<number, look_count> look_staked{}, look_banked{}, look_own{};
    std::array<std::array<number, home_looks>, home_from.size()> home_own{};
};

// Every count of a tally by name, in the order of the files.
template <class Tally, class Visit> void each_count(Tally& t, Visit visit) {
    visit("plays", std::span(&t.plays, 1));
    visit("staked", std::span(&t.staked, 1));
    visit("banked", std::span(&t.banked, 1));
    visit("squares", std::span(&t.squares, 1));
    visit("hits", std::span(&t.hits, 1));
    visit("dry", std::span(&t.dry, 1));
    visit("ms", std::span(&t.ms, 1));
    visit("own", std::span(&t.own, 1));
    visit("payouts", std::span(t.payouts));
    visit("paid", std::span(t.paid));
    visit("times", std::span(t.times));
    visit("band_plays", std::span(t.band_plays));
    visit("band_paid", std::span(t.band_paid));
    visit("wins", std::span(t.wins));
    visit("windows_10000", std::span(&t.windows[0].count, 1));
    visit("lost_10000", std::span(&t.windows[0].lost, 1));
    visit("lost_squares_10000", std::span(&t.windows[0].lost_squares, 1));
    visit("returns_10000", std::span(t.windows[0].returns));
    visit("windows_100000", std::span(&t.windows[1].count, 1));
    visit("lost_100000", std::span(&t.windows[1].lost, 1));
    visit("lost_squares_100000", std::span(&t.windows[1].lost_squares, 1));
    visit("returns_100000", std::span(t.windows[1].returns));
    visit("look_staked", std::span(t.look_staked));
    visit("look_banked", std::span(t.look_banked));
    visit("look_own", std::span(t.look_own));
    visit("home_40", std::span(t.home_own[0]));
    visit("home_120", std::span(t.home_own[1]));
}

} // namespace hustle::lab
