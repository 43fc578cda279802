// The belt of prices: a written text stands at once, and until its next tick the line runs on from
// it dot by dot.
#include "show/motions.h"

#include <algorithm>

namespace hustle {

namespace {

constexpr int columns_of_letter = 6;

// The next tick takes one more letter off the left end.
bool next_tick_moves(const game& g) {
    if (!is_running(g.p, timer::feature_moneybelttimer))
        return false;
    const std::string_view window = g.b.beltwindow;
    if (caption(g.p, element::feature_displayline) != window)
        return false;
    switch (g.b.beltphase) {
    case 1: return true;
    case 2: return !window.starts_with("  ");
    case 3: return window.size() <= 2 || window[2] == ' ';
    default: return false;
    }
}

} // namespace

void take_in_belt(stage& s, const game& g, std::int64_t now) {
    const bool written = at(g.p, element::feature_displayline).touched;
    const bool runs = next_tick_moves(g);
    if (runs == s.belt.runs && !written)
        return;
    if (s.belt.columns != 0 && !written)
        add_patch(s, g.p, element::feature_displayline);
    s.belt = {runs, 0, now};
}

int advance_belt(stage& s, const game& g, std::int64_t now) {
    if (!s.belt.runs)
        return -1;
    const auto whole = static_cast<std::int64_t>(interval(g.p, timer::feature_moneybelttimer));
    const std::int64_t ms = now - s.belt.since;
    const auto columns = static_cast<int>(std::min<std::int64_t>(ms * columns_of_letter / whole, 5));
    if (columns != s.belt.columns)
        add_patch(s, g.p, element::feature_displayline);
    s.belt.columns = columns;
    if (columns == columns_of_letter - 1)
        return -1;
    const std::int64_t next =
        ((columns + 1) * whole + columns_of_letter - 1) / columns_of_letter; // rounded up
    return static_cast<int>(next - ms);
}

} // namespace hustle
