// Runs a panel script.
#pragma once

#include <ostream>
#include <string_view>

namespace hustle::script {

// Runs the whole script: what it prints goes to `out`, what does not hold to `err` with `file` and
// the line. Returns the exit status: 0 all held, 1 an `expect` or `until` did not, 2 the script
// ended at a line that cannot be understood.
int run_script(std::string_view text, std::string_view file, std::ostream& out, std::ostream& err);

} // namespace hustle::script
