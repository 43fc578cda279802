// Runs a panel script.
#pragma once

#include "core/game.h"

#include <functional>
#include <ostream>
#include <string_view>

namespace hustle::script {

// Runs the whole script: what it prints goes to `out`, what does not hold to `err` with `file` and
// the line. Returns the exit status: 0 all held, 1 an `expect` or `until` did not, 2 the script
// ended at a line that cannot be understood.
int run_script(std::string_view text, std::string_view file, std::ostream& out, std::ostream& err);
// The same, and shows the machine as the script has left it.
int run_script(std::string_view text, std::string_view file, std::ostream& out, std::ostream& err,
               const std::function<void(const game&)>& at_end);
// The same, and tells `passing` each time that the clock reaches, before anything happens then: who
// paints sees every state for as long as it stood. `at_end` is told when the script has come to its
// end or to a line that it ends at, while the machine is still there; `at_line` before each line: one
// that throws there or in `passing` has ended the script.
int watch_script(std::string_view text, std::string_view file, std::ostream& out, std::ostream& err,
                 const std::function<void(game&)>& passing,
                 const std::function<void(game&, int status)>& at_end = {},
                 const std::function<void()>& at_line = {});

} // namespace hustle::script
