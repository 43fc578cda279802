// Every name that a script can read or write: fields of the machine, properties of elements and
// timers, screens, logs and stored files.
#pragma once

#include "panel/sheet.h"
#include "script/scriptworld.h"
#include "script/values.h"

#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hustle::script {

struct range {
    int least, most;
};

struct cell {
    std::string name;
    slot where;
    std::function<void(const value&)> store = {}; // what `set` does; empty: the name is only read
    bool traced = true;                           // part of a trace and of a dump
    std::optional<range> bears = {};              // what `set` takes of a whole number
};

// A field by its name in the script.
struct reel_place {
    int which; // 1 to 3
    std::variant<count reel_state::*, word reel_state::*> what;
};
using field_place = std::variant<reel_place, single machine::*, count machine::*, word machine::*,
                                 std::string machine::*, single board::*, count board::*, word board::*,
                                 single table_fields::*, count table_fields::*, std::string table_fields::*>;
struct field_row {
    std::string_view name;
    field_place where;
    std::optional<range> bears = {}; // empty: all that its kind can hold
};
std::span<const field_row> field_rows();

class names {
public:
    explicit names(game&);      // of the machine alone, for a front end
    names(game&, scriptworld&); // with the logs and files of a script
    names(const names&) = delete;
    names& operator=(const names&) = delete;

    // All names, sorted.
    std::span<const cell> all() const { return cells; }
    // Where the fields stand, without the panel.
    std::span<const slot> fields() const { return places; }
    // Throws script_error for a name that there is not.
    const cell& find(std::string_view name) const;

private:
    void add_fields(game&);
    void add_field(std::string name, slot, std::optional<range>);
    void add_elements(panel&);
    void add_timers(panel&);
    void add_screens(panel&);
    void add_logs(scriptworld&);
    void sort();

    std::vector<cell> cells;
    std::vector<slot> places;
    std::deque<std::string> kept; // the texts of words that scripts have set
};

// SCREEN, SCREEN.ELEMENT; each throws script_error for a name that there is not.
screen find_screen(std::string_view name);
element find_element(std::string_view name);

std::string full_name(element); // "main.start"
std::string full_name(timer);   // "main.butflash"

} // namespace hustle::script
