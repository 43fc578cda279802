// The tables behind panel/sheet.h, one for each group of screens.
#pragma once

#include "panel/sheet.h"

namespace hustle::sheet {

std::span<const element_row> main_rows();
std::span<const element_row> feature_rows();
std::span<const element_row> side_rows(); // statistics to About, in the order of the enumerators
std::span<const timer_row> timer_rows();

} // namespace hustle::sheet
