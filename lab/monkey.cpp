// The monkey: presses anything at any moment. And the table of all players.
#include "lab/policies.h"

#include "panel/splitmix.h"

#include <algorithm>
#include <iterator>

namespace hustle::lab {

namespace {

using enum element;

// The often pressed stand more than once.
constexpr element buttons[] = {start,
                               start,
                               start,
                               stopper,
                               stopper,
                               hold1,
                               hold2,
                               hold3,
                               cancelbutton,
                               transfer,
                               feature_hibutton,
                               feature_lobutton,
                               feature_collect,
                               feature_featurebutton,
                               feature_cashbutton,
                               feature_shotbutton,
                               feature_exchangebutton,
                               feature_stopfeature,
                               feature_stopfeature,
                               feature_startbutton,
                               feature_startbutton};

constexpr policy_row table[] = {
    {"starter", "Start alone, and whatever must be pressed to get on", starter},
    {"holder", "holds pairs, obeys DONT HOLD ANY, nudges for lines", holder},
    {"gambler", "a holder who calls hi-lo by the better odds, up to a chosen rung", gambler},
    {"expert", "a holder who times every stopper and takes the ladders for value", expert},
    {"monkey", "presses anything at any moment", monkey},
};

} // namespace

std::span<const policy_row> policies() { return table; }

int find_policy(std::string_view name) {
    const auto* const found = std::ranges::find(table, name, &policy_row::name);
    return found == std::end(table) ? -1 : static_cast<int>(found - std::begin(table));
}

move monkey(const sight& s, memory& m) {
    const int after = splitmix_draw(m.dice, 150);
    constexpr int most_lost = 20'000; // half an hour's presses: Start stays dark, as get_on tells
    m.lost = s.live(start) ? 0 : m.lost + 1;
    if (m.lost > most_lost)
        return {newgame, after};
    if (!s.has_credit() && !s.money_in_bank())
        if (const element money = find_money(s, m); money != no_press)
            return {money};
    return {buttons[splitmix_draw(m.dice, static_cast<int>(std::size(buttons))) - 1], after};
}

} // namespace hustle::lab
