// The one machine of the page, and the texts that pass between the two.
#pragma once

#include "core/game.h"
#include "script/names.h"
#include "show/stage.h"
#include "web/pageworld.h"

#include <string>
#include <string_view>

namespace hustle::web {

struct here {
    pageworld world;
    game g{world};
    stage eye;        // what the eye sees beyond the panel
    std::string room; // what the page has written
    std::string text; // what it may read
};

here& machine_here();
// Leaves a text for the page; its length in bytes.
int give(std::string text);
// What the page has written into the room.
std::string_view taken(int bytes);
// Where the number stands for an element or a screen; the page's numbers are not trusted.
bool is_element(int number);
bool is_screen(int number);

} // namespace hustle::web
