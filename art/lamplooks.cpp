#include "art/lamplooks.h"

#include "art/lamps.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace hustle {

namespace {

constexpr colour resting_label = 0xFFFFC0; // of the eight labels in the ring

int red(colour c) { return static_cast<int>(c & 0xFF); }
int green(colour c) { return static_cast<int>((c >> 8) & 0xFF); }
int blue(colour c) { return static_cast<int>((c >> 16) & 0xFF); }

bool is_ring_label(const element_row& r) { return r.where == screen::feature && r.back == 0; }

// The lamps that one plays for: they are made of another glass than the steps up to them.
bool is_goal(element e) {
    return e == element::numberfour || e == element::numbernine || e == element::feature_m10 ||
           e == element::feature_f10;
}

const ink::jewel& glass(const element_row& r, const element_state& state, bool lit) {
    if (is_ring_label(r))
        return lit ? ink::ruby : ink::teal;
    if (is_goal(r.id))
        return ink::amber;
    return blue(state.back) > red(state.back) ? ink::sapphire : ink::ruby;
}

// The lettering has capitals, and a sign of its own for the pound.
std::string lamp_words(std::string_view text) {
    constexpr std::string_view pound = "£";
    std::string words;
    while (!text.empty()) {
        const bool is_pound = text.starts_with(pound);
        words += is_pound ? '#' : text.front();
        text.remove_prefix(is_pound ? pound.size() : 1);
    }
    return words;
}

// Two words on a lamp that is tall enough stand one above the other.
std::vector<std::string> rows_of(const std::string& words, double height) {
    const std::size_t blank = words.find(' ');
    if (blank == std::string::npos || height < 34)
        return {words};
    return {words.substr(0, blank), words.substr(blank + 1)};
}

} // namespace

bool is_lamp(const element_row& r) { return r.what == kind::label && (r.back != 0 || is_ring_label(r)); }

bool is_lit(const element_row& r, const element_state& state) {
    if (is_ring_label(r))
        return state.fore != resting_label;
    const auto [least, most] = std::minmax({red(state.fore), green(state.fore), blue(state.fore)});
    return least + most > 201; // the letters of a dark lamp are black
}

std::string lamp_svg(const element_row& r, const element_state& state) {
    const bool lit = is_lit(r, state);
    const double width = r.place.width / 15.0;
    const double height = r.place.height / 15.0;
    constexpr double reach = glow_reach;
    constexpr double gap = 1.6; // rungs overlap by a hair: each leaves its neighbours room
    pen p{static_cast<int>(std::lround(width + 2 * reach)),
          static_cast<int>(std::lround(height + 2 * reach))};
    const ink::jewel& jewel = glass(r, state, lit);
    const double inner = height - 2 * gap;
    cap(p, {reach + 1, reach + gap, width - 2, inner}, std::min(9.0, inner * 0.34), jewel, lit,
        glow_reach - 1);
    const auto rows = rows_of(lamp_words(state.text), height);
    const bool one = rows.size() == 1;
    const double letters = one ? std::min(inner * 0.5, 17.0) : inner * 0.27;
    const double step = inner * 0.37;
    double middle = p.height / 2.0 - (one ? 0 : step / 2);
    for (const std::string& words : rows) {
        cap_words(p, words, p.width / 2.0, middle, letters, width - (width > 80 ? 14 : 9), jewel, lit);
        middle += step;
    }
    return finish(p);
}

} // namespace hustle
