// Names that a script writes, found or refused.
#include "script/names.h"

#include <algorithm>

namespace hustle::script {

namespace {

[[noreturn]] void unknown(std::string_view what, std::string_view name) {
    throw script_error("unknown " + std::string(what) + " " + std::string(name));
}

} // namespace

const cell& names::find(std::string_view name) const {
    const auto found = std::lower_bound(cells.begin(), cells.end(), name,
                                        [](const cell& c, std::string_view n) { return c.name < n; });
    if (found == cells.end() || found->name != name)
        unknown("name", name);
    return *found;
}

screen find_screen(std::string_view name) {
    for (const screen_row& s : screen_rows())
        if (s.name == name)
            return s.id;
    unknown("screen", name);
}

element find_element(std::string_view name) {
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos)
        unknown("element", name);
    for (const element_row& e : elements_of(find_screen(name.substr(0, dot))))
        if (e.name == name.substr(dot + 1))
            return e.id;
    unknown("element", name);
}

} // namespace hustle::script
