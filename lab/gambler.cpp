// The gambler: a holder who calls hi-lo by the better odds, up to a rung of his own.
#include "lab/policies.h"

namespace hustle::lab {

namespace {

using enum element;

constexpr std::string_view winner = "       *** WINNER ***";

} // namespace

bool in_gamble(const sight& s) { return s.live(feature_hibutton) || s.live(feature_lobutton); }

element better_call(const sight& s) {
    if (s.die() == 0 || s.board_line() == winner) // the light is still climbing
        return no_press;
    const element wanted = s.die() <= 3 ? feature_hibutton : feature_lobutton;
    const element other = s.die() <= 3 ? feature_lobutton : feature_hibutton;
    return s.live(wanted) ? wanted : s.live(other) ? other : no_press;
}

move gambler(const sight& s, memory& m) {
    if (!s.on_board())
        return {play_main(s, m)};
    if (out_of_patience(s, m))
        return {get_on_board(s, m)};
    if (in_gamble(s)) {
        const bool enough = s.gamble_rung() >= m.rung;
        return {enough && s.live(feature_collect) ? feature_collect : better_call(s)};
    }
    if (s.live(feature_cashbutton) && s.cash_height() >= m.rung)
        return {feature_cashbutton};
    return {get_on_board(s, m)};
}

} // namespace hustle::lab
