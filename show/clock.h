// The machine's clock beside the real one, both in whole milliseconds.
#pragma once

#include "panel/panel.h"

#include <cstdint>

namespace hustle {

struct machine_clock {
    std::int64_t behind = 0; // ms that the machine's clock is behind the real one
};

// What the machine's clock reads when the real one reads `real`; never less than it has read.
std::int64_t reading(const machine_clock&, const panel&, std::int64_t real);

// The reading to deliver ticks by. Where the next tick is long overdue the machine has been held up:
// its clock then goes on from that tick, and what was missed is not made up for in a burst. A timer
// of a few milliseconds has less patience than the others, so that it never ticks many times between
// two pictures.
std::int64_t catch_up(machine_clock&, const panel&, std::int64_t real);

} // namespace hustle
