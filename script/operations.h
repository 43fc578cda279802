// The operations of the logic that a script can call by name.
#pragma once

#include "core/game.h"

#include <span>
#include <string_view>

namespace hustle::script {

struct operation_row {
    screen where;
    std::string_view name; // without the screen: "startpress"
    void (*run)(game&);
};

std::span<const operation_row> operation_rows();
// By SCREEN.OPERATION; throws script_error for a name that there is not.
const operation_row& find_operation(std::string_view name);

} // namespace hustle::script
