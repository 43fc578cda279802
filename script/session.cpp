#include "script/session.h"

#include "core/start.h"
#include "core/upward.h"
#include "panel/sheet.h"
#include "screens/events.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace hustle::script {

namespace {

// A text that a name stands for; false where it stands for another kind of value.
bool text_of(const slot& s, std::string_view& text) {
    if (const auto* flag = std::get_if<word*>(&s))
        text = **flag;
    else if (const auto* own = std::get_if<std::string*>(&s))
        text = **own;
    else
        return false;
    return true;
}

struct bits_of {
    // Nought has one look, with or without its sign.
    std::uint64_t operator()(const single* v) const { return std::bit_cast<std::uint32_t>(*v + 0.0F); }
    std::uint64_t operator()(const panel* v) const { return static_cast<std::uint64_t>(front(*v)); }
    std::uint64_t operator()(const word*) const { return 0; }
    std::uint64_t operator()(const std::string*) const { return 0; }
    template <class Plain> std::uint64_t operator()(const Plain* v) const {
        return static_cast<std::uint64_t>(*v);
    }
};

std::string screen_name(screen s) { return std::string(row(s).name); }

} // namespace

snapshot::snapshot(std::span<const cell> cells) {
    for (const cell& c : cells)
        if (c.traced)
            values.push_back({&c});
}

void snapshot::take() {
    for (seen& s : values) {
        std::string_view text;
        if (text_of(s.of->where, text))
            s.text = text;
        else
            s.bits = std::visit(bits_of{}, s.of->where);
    }
}

void snapshot::tell_changes(std::string& lines) {
    for (seen& s : values) {
        std::string_view text;
        if (text_of(s.of->where, text)) {
            if (s.text == text)
                continue;
            s.text = text;
        } else {
            const std::uint64_t now = std::visit(bits_of{}, s.of->where);
            if (s.bits == now)
                continue;
            s.bits = now;
        }
        lines.append("  ").append(s.of->name).append(" = ").append(shown(s.of->where)).append("\n");
    }
}

session::session(std::ostream& to) : out(to) {
    for (std::size_t t = 0; t < timer_count; ++t)
        tick_names.push_back("tick " + full_name(static_cast<timer>(t)));
    reset_game(g, 0);
}

void session::boot() {
    up = true;
    w.telling = false;
    reset_game(g, std::llround(clock * 1000));
    hustle::boot(g);
    timer tick{};
    while (!is_loaded(g.p, screen::main) && !over() &&
           take_tick(g.p, std::numeric_limits<std::int64_t>::max(), tick))
        run_tick(g, tick);
    trace(tracing);
    settle();
}

void session::trace(bool on) {
    tracing = w.telling = on;
    refresh();
}

void session::refresh() {
    if (tracing)
        before.take();
}

void session::tell(std::int64_t ms, std::string_view told) {
    std::string lines = "@";
    lines.append(std::to_string(ms)).append(" ").append(told).append("\n").append(w.effects);
    w.effects.clear();
    before.tell_changes(lines);
    out << lines;
}

// `act` is false for an event that was ignored.
template <class Act> void session::event(std::string_view told, const Act& act) {
    if (over())
        return;
    const std::int64_t ms = g.p.now;
    const bool taken = act();
    if (tracing)
        tell(ms, taken ? told : std::string(told) + " ignored");
    settle();
}

void session::settle() {
    focus_event change{};
    while (take_focus_event(g.p, change)) {
        const std::int64_t ms = g.p.now;
        if (run_focus(g, change) && tracing)
            tell(ms, (change.front ? "focus " : "blur ") + screen_name(change.where));
    }
}

void session::apply(std::string_view told, const input& in) {
    event(told, [&] {
        // A key that means nothing is an event all the same; one on a closed screen is not.
        return apply_alone(g, in) || (in.what == input::kind::key && is_loaded(g.p, in.where));
    });
}

void session::call(const operation_row& operation) {
    event("call " + screen_name(operation.where) + "." + std::string(operation.name), [&] {
        operation.run(g);
        return true;
    });
}

void session::load(screen s) {
    event("load " + screen_name(s), [&] {
        load_screen(g, s);
        return true;
    });
}

void session::unload(screen s) {
    event("unload " + screen_name(s), [&] {
        const bool was_loaded = is_loaded(g.p, s);
        unload_screen(g, s);
        return was_loaded;
    });
}

// A handler that held the machine may have run past the target: what fell due meanwhile then waits
// for the next command.
bool session::deliver_one(std::int64_t target) {
    timer tick{};
    if (over() || g.p.now > target || !take_tick(g.p, target, tick))
        return false;
    passing(g);
    event(tick_names[static_cast<std::size_t>(tick)], [&] {
        run_tick(g, tick);
        return true;
    });
    return true;
}

void session::run(std::int64_t target) {
    while (deliver_one(target)) {
    }
    if (over())
        return;
    g.p.now = std::max(g.p.now, target);
    passing(g);
}

} // namespace hustle::script
