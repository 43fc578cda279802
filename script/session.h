// One machine under a script: its events one by one, told as a trace where one is asked for.
#pragma once

#include "core/game.h"
#include "screens/dispatch.h"
#include "script/names.h"
#include "script/operations.h"
#include "script/scriptworld.h"

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace hustle::script {

// The values of all traced names as they were before the running event.
class snapshot {
public:
    explicit snapshot(std::span<const cell>);
    void take(); // of the values as they are now
    // Adds a line for each name that has changed since, and takes the new values.
    void tell_changes(std::string& lines);

private:
    struct seen {
        const cell* of;
        std::uint64_t bits = 0; // of any value but a text
        std::string text = {};
    };
    std::vector<seen> values; // sorted by name
};

class session {
public:
    scriptworld w;
    game g{w};
    names known{g, w};
    double clock = 43200; // seconds since midnight when the process starts
    // Told before anything happens at a new time, while the machine still stands as it did till then.
    std::function<void(game&)> passing = [](game&) {};

    explicit session(std::ostream& out);

    bool booted() const { return up; }
    bool over() const { return g.p.over || w.ended; }
    // Start-up, untold, until main stands; then the changes of focus that wait.
    void boot();

    void trace(bool on);
    // A value was written from outside: no part of the next event.
    void refresh();

    // Events. After the end of the program they do nothing.
    void apply(std::string_view told, const input&);
    void call(const operation_row&);
    void load(screen);
    void unload(screen);
    // Delivers every tick that is due by `target`, on the machine's clock.
    void run(std::int64_t target);
    // Delivers one of them; false when there is none.
    bool deliver_one(std::int64_t target);

private:
    template <class Act> void event(std::string_view told, const Act& act);
    void settle();
    void tell(std::int64_t ms, std::string_view told);

    std::ostream& out;
    snapshot before{known.all()};
    std::vector<std::string> tick_names;
    bool up = false;
    bool tracing = false;
};

} // namespace hustle::script
