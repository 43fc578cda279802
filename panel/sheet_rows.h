// The tables behind panel/sheet.h, one for each group of screens.
#pragma once

#include "panel/sheet.h"

namespace hustle::sheet {

std::span<const element_row> main_rows();
std::span<const element_row> feature_rows();
std::span<const element_row> side_rows(); // statistics to About, in the order of the enumerators
std::span<const timer_row> timer_rows();

// A table has a row for each enumerator from `first` to the one before `next`, in their order.
template <std::size_t n> constexpr bool in_order(const element_row (&rows)[n], element first, element next) {
    if (n != static_cast<std::size_t>(next) - static_cast<std::size_t>(first))
        return false;
    for (std::size_t i = 0; i < n; ++i)
        if (static_cast<std::size_t>(rows[i].id) != static_cast<std::size_t>(first) + i)
            return false;
    return true;
}

} // namespace hustle::sheet
