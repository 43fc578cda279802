#include "show/clock.h"

#include <algorithm>

namespace hustle {

namespace {

constexpr int patience_ms = 100;
constexpr int quick_ms = 5; // a timer below this is a quick one
constexpr int patience_quick_ms = 4;

int patience(const panel& p) {
    for (int i = 0; i < p.queued; ++i)
        if (interval(p, p.queue[static_cast<std::size_t>(i)].what) < quick_ms)
            return patience_quick_ms;
    return patience_ms;
}

} // namespace

std::int64_t reading(const machine_clock& clock, const panel& p, std::int64_t real) {
    return std::max(real - clock.behind, p.now);
}

std::int64_t catch_up(machine_clock& clock, const panel& p, std::int64_t real) {
    const std::int64_t now = reading(clock, p, real);
    std::int64_t due = 0;
    if (!next_due(p, due))
        return now;
    due = std::max(due, p.now); // what fell due during a wait of the machine's own is not late
    if (now - due <= patience(p))
        return now;
    clock.behind += now - due;
    return due;
}

} // namespace hustle
