// What the expert stops on the board, and when.
#include "board/board.h"
#include "lab/policies.h"

#include <algorithm>

namespace hustle::lab {

namespace {

using enum element;

constexpr int bomb_square = 20;                      // three bombs are a jackpot
constexpr single creepy_goal = 4, super_goal = 7.5F; // pounds in the window of a belt
constexpr std::size_t price_width = 4;

single price_at(std::string_view text, std::size_t at) {
    return static_cast<single>((text[at] - '0') * 100 + (text[at + 2] - '0') * 10 + (text[at + 3] - '0')) /
           100;
}

bool is_price(std::string_view text, std::size_t at) {
    return at + price_width <= text.size() && text[at + 1] == '.';
}

// The three prices that a press now would leave in the window: those behind the first blanks.
single next_three(std::string_view window) {
    single sum = 0;
    int found = 0;
    std::size_t at = window.starts_with("  ") ? 0 : std::min(window.find("  "), window.size());
    while (found < 3) {
        at = window.find_first_not_of(' ', at);
        if (at == std::string_view::npos || !is_price(window, at))
            return 0;
        sum += price_at(window, at);
        at += price_width;
        ++found;
    }
    return sum;
}

// A prize of the shots game is good enough while so many shots are left.
bool take_shot(const sight& s, const memory& m) {
    const int left = s.shots();
    const int top = std::min(m.shots, 10);
    const int least = left >= 3 ? top : left == 2 ? top - 1 : (top + 2) / 2;
    for (int rung = std::max(least, 1); rung <= 10; ++rung)
        if (s.cash_lit(rung))
            return true;
    return false;
}

element play_shots(const sight& s, memory& m) {
    if (s.live(feature_collect)) // a prize is on offer
        return take_shot(s, m) ? feature_collect : feature_stopfeature;
    m.shots = std::max(m.shots, s.shots());
    return feature_stopfeature;
}

bool belt_is_good(const sight& s, std::string_view line) {
    const bool super = s.feature_lit(7);
    return next_three(line) >= (super ? super_goal : creepy_goal);
}

constexpr std::string_view press_on_sight[] = {"       * XTRA BOMB *", " YES      CONTINUE",
                                               "       * FAST CASH *", "       * FEATURES *"};

} // namespace

element time_board(const sight& s, memory& m) {
    const std::string_view line = s.board_line();
    if (line.find("SHOT") != std::string_view::npos || line.starts_with("         TAKE"))
        return line.find("STOP") == std::string_view::npos ? play_shots(s, m) : no_press;
    m.shots = 0;
    const bool ring = line == "       * SKILL STOP *" || line == "      * RANDOM STOP *";
    const bool now =
        (ring && s.square_lit(bomb_square)) ||
        std::find(std::begin(press_on_sight), std::end(press_on_sight), line) != std::end(press_on_sight) ||
        (line.find('.') != std::string_view::npos && belt_is_good(s, line));
    return now ? feature_stopfeature : no_press;
}

} // namespace hustle::lab
