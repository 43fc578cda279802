#include "core/menuticks.h"

#include "core/start.h"

namespace hustle {

namespace {

using enum element;

struct number_option {
    element entry;
    hustle::count machine::*setting;
    hustle::count value;
};
struct word_option {
    element entry;
    std::string machine::*setting;
    word value;
    word unless; // not empty: the entry stands for every word but this
};

// clang-format off
constexpr number_option numbers[] = {
    {freelspin,  &machine::reelspeed, 1},
    {sreelspin,  &machine::reelspeed, 2},
    {rreelspin,  &machine::reelspeed, 3},
    {reddisp,    &machine::ledcolour, 1},
    {purpledisp, &machine::ledcolour, 2},
    {pinkdisp,   &machine::ledcolour, 3},
    {bluedisp,   &machine::ledcolour, 4},
    {yellowdisp, &machine::ledcolour, 5},
    {greendisp,  &machine::ledcolour, 6},
};
constexpr word_option words[] = {
    {ds,       &machine::currency,   setting::usd, ""},
    {ps,       &machine::currency,   setting::gbp, ""},
    {soundon,  &machine::soundstate, setting::on, ""},
    {soundoff, &machine::soundstate, setting::off, setting::on},
    {flon,     &machine::flashlogo,  flag::yes, ""},
    {floff,    &machine::flashlogo,  flag::no, flag::yes},
};
// clang-format on

bool stands_for(const word_option& o, word now) {
    return o.unless.empty() ? now == o.value : now != o.unless;
}

// A group of entries works like radio buttons; the other groups keep their ticks.
bool choose(game& g, element entry, const auto& options) {
    for (const auto& chosen : options)
        if (chosen.entry == entry) {
            g.m.*chosen.setting = chosen.value;
            for (const auto& o : options)
                if (o.setting == chosen.setting)
                    set_checked(g.p, o.entry, o.entry == entry);
            return true;
        }
    return false;
}

} // namespace

void tickoptions(game& g) {
    for (const number_option& o : numbers)
        set_checked(g.p, o.entry, g.m.*o.setting == o.value);
    for (const word_option& o : words)
        set_checked(g.p, o.entry, stands_for(o, g.m.*o.setting));
}

bool chooseoption(game& g, element entry) {
    if (!choose(g, entry, numbers) && !choose(g, entry, words))
        return false;
    if (entry >= reddisp && entry <= greendisp)
        set_activecolor(g.p, displayline, led_colour(g.m.ledcolour));
    if (entry == ds || entry == ps)
        g.w.box({"Hoard Hustle", "Please restart the game to activate your option."});
    return true;
}

} // namespace hustle
