// The expert: a holder who stops what can be timed at its best moment and takes the ladders for
// what they are worth. What is too fast to read (Fast Cash, the blur of Reel Skill) is left to luck.
#include "board/board.h"
#include "core/wins.h"
#include "lab/policies.h"

#include <algorithm>
#include <array>

namespace hustle::lab {

namespace {

using enum element;

constexpr single worth_stopping = 5; // pounds on show in On the Run

// What a rung of the features ladder brings to a player who times it, in pounds; found by the lab.
constexpr single feature_worth[] = {0, 4, 3.5F, 4, 4, 5, 8, 7, 10, 15, 15};
constexpr single good_enough = 8; // pounds: taken at once on the ring
constexpr single ring_worth = 5;  // pounds that a ring game begun in the gamble is worth
constexpr int pound_rung = 1;

// The stops that depend on the line alone.
constexpr std::string_view stop_at_once[] = {"     * SUPER BOOST *", "YES    REPEAT CHANCE"};
constexpr std::string_view stop_at_lamp_9[] = {"     * TRAIL SKILL *", "       * STOPPER *",
                                               "       * SELECTOR *"};
constexpr std::string_view nudge_figures[] = {"      RANDOM NUDGES", "       SKILL NUDGES"};

template <std::size_t n> bool reads(std::string_view line, const std::string_view (&texts)[n]) {
    return std::find(std::begin(texts), std::end(texts), line) != std::end(texts);
}

// A pair of the Trail Climber has lit up above the last one that was caught.
bool climb_is_lit(const sight& s, memory& m) {
    int lit = 0;
    while (lit < 9 && s.trail_lamp(lit + 1))
        ++lit;
    if (lit == 0)
        m.climb = 0;
    if (lit <= m.climb || (lit % 2 != 0 && lit != 9))
        return false;
    m.climb = lit;
    return true;
}

single prize_on_show(const sight& s) {
    return s.reels_turn() ? 0 : line_prize(symbol_at(s.stop(1)), symbol_at(s.stop(2)), symbol_at(s.stop(3)));
}

bool bells_roll_by(const sight& s) { return s.stop(1) == 1 && s.stop(2) == 1 && s.stop(3) == 1; }

} // namespace

element time_stopper(const sight& s, memory& m) {
    const std::string_view line = s.line();
    const bool now = reads(line, stop_at_once) || (reads(line, stop_at_lamp_9) && s.trail_lamp(9)) ||
                     (reads(line, nudge_figures) && s.nudge_figure() == 5) ||
                     (line == "    * TRAIL CLIMBER *" && climb_is_lit(s, m)) ||
                     (line == "      * ON THE RUN *" && prize_on_show(s) >= worth_stopping) ||
                     ((line.empty() || line == "      * IN A SPIN *") && bells_roll_by(s));
    return now ? stopper : no_press;
}

namespace {

// In the gamble: a call that cannot lose always; otherwise while it pays on average. At £5 and £8
// the machine lets only a sure call win.
element gamble_for_value(const sight& s, const memory&) {
    const int rung = s.gamble_rung();
    const element call = better_call(s);
    if (call == no_press)
        return no_press;
    const int die = s.die();
    const bool sure = die == 1 || die == 6;
    if (s.visible(feature_exchangebutton) && s.live(feature_exchangebutton) && !sure &&
        cash_value(rung) < ring_worth)
        return feature_exchangebutton;
    const single chance = die == 2 || die == 5 ? 0.8F : 0.6F;
    const bool refused = cash_value(rung) == 5 || cash_value(rung) == 8;
    const bool pays = rung == pound_rung || chance * cash_value(rung + 1) > cash_value(rung);
    if (sure || (pays && !refused) || !s.live(feature_collect))
        return call;
    return feature_collect;
}

element best_ladder(const sight& s) {
    const auto worth = [&s](element button, single value) { return s.live(button) ? value : 0; };
    const single cash = worth(feature_cashbutton, cash_value(s.cash_height()));
    const single feature =
        worth(feature_featurebutton, feature_worth[static_cast<std::size_t>(s.feature_height())]);
    const single shots =
        worth(feature_shotbutton, s.shots() >= 3 ? cash_value(std::min(s.shots() - 1, 9)) : 0);
    if (std::max({cash, feature, shots}) < good_enough)
        return feature_startbutton;
    if (feature >= cash && feature >= shots)
        return feature_featurebutton;
    return cash >= shots ? feature_cashbutton : feature_shotbutton;
}

} // namespace

move expert(const sight& s, memory& m) {
    if (!s.on_board()) {
        if (s.live(stopper) && !out_of_patience(s, m))
            return {time_stopper(s, m)};
        if (s.shows(hold3, art::stoppiclight) && !out_of_patience(s, m)) // reel 3 walks past reel 1
            return {s.stop(3) != 0 && symbol_at(s.stop(3)) == symbol_at(s.stop(1)) ? hold3 : no_press};
        return {play_main(s, m)};
    }
    if (out_of_patience(s, m))
        return {get_on_board(s, m)};
    if (in_gamble(s))
        return {gamble_for_value(s, m)};
    if (s.live(feature_stopfeature))
        return {time_board(s, m)};
    if (s.live(feature_startbutton))
        return {best_ladder(s)};
    return {get_on_board(s, m)};
}

} // namespace hustle::lab
