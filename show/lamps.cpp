#include "show/lamps.h"

#include <algorithm>

namespace hustle {

namespace {

constexpr colour resting_label = 0xFFFFC0; // of the eight labels in the ring

// The middle between the strongest and the weakest of the three colours, 0 to 255.
int lightness(colour c) {
    const int parts[] = {static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF),
                         static_cast<int>((c >> 16) & 0xFF)};
    return (*std::max_element(parts, parts + 3) + *std::min_element(parts, parts + 3)) / 2;
}

} // namespace

bool is_ring_label(const element_row& r) {
    return r.what == kind::label && r.where == screen::feature && r.back == 0;
}

bool is_lamp(const element_row& r) { return r.what == kind::label && (r.back != 0 || is_ring_label(r)); }

bool is_lit(const element_row& r, const element_state& state) {
    if (is_ring_label(r))
        return state.fore != resting_label;
    return lightness(state.fore) > 100; // the letters of a dark lamp are black
}

} // namespace hustle
