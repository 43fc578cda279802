#include "core/statistics.h"

#include "core/play.h"
#include "core/upward.h"
#include "panel/text.h"

namespace hustle {

namespace {

using enum element;

constexpr single target = 80; // percent

struct money_box {
    element box;
    single machine::*amount;
};
constexpr money_box money_boxes[] = {
    {statistics_moneyin, &machine::moneyin},  {statistics_moneyout, &machine::moneyout},
    {statistics_text1, &machine::lastwin},    {statistics_text2, &machine::hopper},
    {statistics_text3, &machine::cashbox},    {statistics_text6, &machine::winbank},
    {statistics_text5, &machine::streakbank},
};

// The ledgers of a fresh machine. The last win and the house's cut stay as they are.
struct ledger {
    single machine::*amount;
    single fresh;
};
constexpr ledger fresh_ledgers[] = {
    {&machine::moneyin, 100}, {&machine::moneyout, target}, {&machine::cashbox, 0},
    {&machine::hopper, 125},  {&machine::winbank, 0},       {&machine::streakbank, 0},
};

// A figure is cut, not rounded.
short_text five_characters(single value) {
    const short_text number = plain(value);
    return std::string_view(number).substr(0, 5);
}

void toggle(panel& p, element button, art dark, art light) {
    set_picture(p, button, shows(p, button, dark) ? light : dark);
}

} // namespace

void statistics_Timer1(game& g) {
    toggle(g.p, statistics_Picture1, art::backdark, art::backlight);
    toggle(g.p, statistics_Picture2, art::resetdark, art::resetlight);
}

void statistics_Timer2(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    refresh_pcent_guarded(m);
    for (const money_box& b : money_boxes) {
        short_text text(" ");
        set_caption(p, b.box, text.add(g.w.currency(m.*b.amount)));
    }

    short_text percentage(" ");
    set_caption(p, statistics_pcent, percentage.add(five_characters(m.pcent)).add("%"));

    const single d = m.pcent - target;
    short_text difference(d > 0 ? " +" : " ");
    set_caption(p, statistics_difference, difference.add(five_characters(d)));
}

void statistics_back(game& g) { unload_screen(g, screen::statistics); }

void statistics_reset(game& g) {
    if (!g.w.box({"Reset Machine Statistics", "Are you sure?", message::mark::question, true}))
        return;
    for (const ledger& l : fresh_ledgers)
        g.m.*l.amount = l.fresh;
}

void statistics_blur(game& g) { unload_screen(g, screen::statistics); }

} // namespace hustle
