// The bands of the payout percentage by which the machine decides. A table of them is read from the
// top: the first band that `pcent` does not pass gives its figure.
#pragma once

#include "core/game.h"

#include <limits>
#include <span>

namespace hustle {

enum class edge { below, upto }; // the band ends before its limit, or with it

struct band {
    edge kind;
    single limit; // percent
    count figure;
};

inline constexpr single no_limit = std::numeric_limits<single>::infinity();

// The figure of the band that `pcent` lies in; 0 beyond the last, as in every gap, which is a row
// with the figure 0.
inline count band_figure(single pcent, std::span<const band> bands) {
    for (const band& b : bands)
        if (b.kind == edge::below ? pcent < b.limit : pcent <= b.limit)
            return b.figure;
    return 0;
}

} // namespace hustle
