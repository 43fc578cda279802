// One page of HTML that needs nothing else.
#pragma once

#include "lab/program/files.h"

namespace hustle::lab {

std::string page_of(const std::vector<result>&);

} // namespace hustle::lab
