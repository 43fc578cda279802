#include "panel/sheet_rows.h"

namespace hustle::sheet {

namespace {

constexpr bool on = true;
constexpr bool off = false;

constexpr timer_row rows[] = {
#define TIMER(name, where, script, ms, start, keeps)                                                         \
    {timer::name, screen::where, #script, ms, start, chain::keeps},
#include "panel/timers.def"
#undef TIMER
};

} // namespace

std::span<const timer_row> timer_rows() { return rows; }

} // namespace hustle::sheet
