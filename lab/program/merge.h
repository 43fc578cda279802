// Joins the shares of a run into the very bytes of one run.
#pragma once

#include "lab/program/files.h"

namespace hustle::lab {

// Throws file_error where a share is missing, doubled, broken off or of another run.
result merged(const std::vector<std::string>& names);

} // namespace hustle::lab
