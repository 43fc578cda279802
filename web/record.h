// The session as a panel script: what was kept, the clock, the draws and every input at the
// machine's own time. A script runner that plays it comes to the same state.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace hustle::web {

struct record {
    std::string text;       // the lines so far
    std::string draws;      // made since the last line, in order, a blank before each
    std::string answers;    // lines, given since
    std::int64_t from = 0;  // what the clock reads after the last line
    std::int64_t until = 0; // and how far it has been run since
    bool overdue = false;   // a wait has run on: ticks may be due that only the next run delivers
    bool ran = false;       // it was run since, be it by nothing
    bool booted = false;
};

void record_file(record&, std::string_view name, std::string_view text);
void record_clock(record&, std::int64_t ms); // since midnight
void record_seed(record&, std::uint64_t);
void record_draw(record&, int result);
void record_answer(record&, std::string_view);
// Main stands and the clock reads `now`.
void record_boot(record&, std::int64_t now);
// The machine was run to `until`, and its clock reads `now`: later where a wait went beyond it.
void record_run(record&, std::int64_t until, std::int64_t now);
// An input, before it is applied and after it.
void before_input(record&);
void after_input(record&, std::string_view line, std::int64_t now);
// The whole script up to now.
std::string recorded(record&);

} // namespace hustle::web
