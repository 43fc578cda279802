// The names of what is counted.
#include "lab/tally.h"

namespace hustle::lab {

namespace {

constexpr named sources[] = {
    {"line", "Lines"},
    {"nudged_line", "Nudged lines"},
    {"promised_line", "Promised lines"},
    {"gamble", "Hi-lo gamble"},
    {"cash", "Cash ladder"},
    {"shots", "Shots"},
    {"seven_spinner", "Seven Spinner"},
    {"creepy_cash", "Creepy Cash"},
    {"fast_cash", "Fast Cash"},
    {"reel_skill", "Reel Skill"},
    {"on_the_run", "On the Run"},
    {"win_spins", "Win Spins"},
    {"super_creepy", "Super Creepy"},
    {"run_for_it", "Run for It"},
    {"in_a_spin", "In a Spin"},
    {"spin_a_win", "Spin a Win"},
    {"jackpot_line", "Jackpots by a line"},
    {"jackpot_gamble", "Jackpots by the gamble"},
    {"jackpot_board", "Jackpots on the ring"},
    {"repeat", "Jackpot repeats"},
    {"streak", "Run for It again"},
    {"unknown", "Not understood"},
};
static_assert(std::size(sources) == source_count);

constexpr named features[] = {
    {"holds", "Holds offered"},
    {"let_em_spin", "Let 'em spin"},
    {"dont_hold_any", "Don't hold any"},
    {"free_spin", "Free spins to a promised line"},
    {"add_nudges", "Nudges given"},
    {"random_nudges", "Random nudges"},
    {"skill_nudges", "Skill nudges"},
    {"trail_held", "Trail held"},
    {"bonus", "Bonus"},
    {"true_skill_bonus", "True skill Bonus"},
    {"trail_skill", "Trail Skill"},
    {"selector", "Selector"},
    {"trail_climber", "Trail Climber"},
    {"respin", "Respin"},
    {"trail_boost", "Trail Boost"},
    {"super_boost", "Super Boost"},
    {"bonus_nudges", "Nudges from the Bonus"},
    {"add_again", "Add Again"},
    {"spin_a_win", "Spin a Win"},
    {"trail_stopper", "Trail Stopper"},
    {"number_runner", "Number Runner"},
    {"run_up", "Run-up to the board"},
    {"gamble_opened", "Board opened in the gamble"},
    {"ring_opened", "Board opened on the ring"},
    {"exchanged", "Game on the ring begun"},
    {"guarded", "Guarded run"},
    {"mystery", "Mystery"},
    {"thin_ice", "Thin ice"},
    {"skill_stop", "Skill Stop"},
    {"random_stop", "Random Stop"},
    {"boost", "Boost"},
    {"bombs", "Safe blown"},
    {"life_spent", "Extra life spent"},
    {"pick_a_ladder", "Pick a Ladder"},
    {"took_shots", "Shots taken"},
    {"seven_spinner", "Seven Spinner"},
    {"creepy_cash", "Belts of cash"},
    {"fast_cash", "Fast Cash"},
    {"reel_skill", "Reel Skill"},
    {"on_the_run", "On the Run"},
    {"win_spins", "Win Spins"},
    {"run_for_it", "Run for It"},
    {"in_a_spin", "In a Spin"},
    {"jackpot", "Jackpot"},
    {"repeat_chance", "Repeat chance"},
};
static_assert(std::size(features) == feature_count);

} // namespace

named name(source s) { return sources[static_cast<std::size_t>(s)]; }
named name(feature f) { return features[static_cast<std::size_t>(f)]; }

} // namespace hustle::lab
