// The start, the inputs and the clock.
#include "core/files.h"
#include "core/start.h"
#include "screens/dispatch.h"
#include "show/clock.h"
#include "web/here.h"
#define HH_IMPORTS
#include "web/surface.h"

#include <algorithm>
#include <array>
#include <limits>

namespace hustle::web {

namespace {

machine_clock page_clock;

constexpr int asyncify_room = 1 << 16;
struct {
    void* first;
    void* end;
    alignas(16) std::array<char, asyncify_room> stack;
} unwound;

// Main has been loaded: from here on there is something to record.
void note_boot() {
    here& h = machine_here();
    if (!h.world.past.booted && is_loaded(h.g.p, screen::main))
        record_boot(h.world.past, h.g.p.now);
}

void record_files() {
    here& h = machine_here();
    for (const store which : {store::game_dat, store::hscore_dat}) {
        const auto& file = h.world.said.file(which);
        if (!file.there)
            continue;
        machine read;
        const bool is_game = which == store::game_dat;
        const bool whole = is_game ? read_game_text(read, file.text) : read_table_text(read, file.text);
        record_file(h.world.past, name(which),
                    !whole    ? "damaged"
                    : is_game ? game_text(read)
                              : table_text(read));
    }
}

int take(const std::string& line, const input& in) {
    here& h = machine_here();
    if (!h.world.past.booted)
        return 0;
    before_input(h.world.past);
    const bool taken = apply(h.g, in);
    after_input(h.world.past, line, h.g.p.now);
    return taken ? 1 : 0;
}

std::string words(std::string_view command, screen s) {
    return std::string(command) + " " + std::string(row(s).name);
}

} // namespace

here& machine_here() {
    static here one;
    return one;
}

int give(std::string text) {
    machine_here().text = std::move(text);
    return static_cast<int>(machine_here().text.size());
}

std::string_view taken(int bytes) {
    const std::string& room = machine_here().room;
    return std::string_view(room).substr(0, static_cast<std::size_t>(std::max(bytes, 0)));
}

bool is_element(int number) { return number >= 0 && number < static_cast<int>(element_count); }
bool is_screen(int number) { return number >= 0 && number < static_cast<int>(screen_count); }

} // namespace hustle::web

using namespace hustle;
using namespace hustle::web;

char* hh_room(int bytes) {
    machine_here().room.resize(static_cast<std::size_t>(std::max(bytes, 1)));
    return machine_here().room.data();
}

const char* hh_text(void) { return machine_here().text.data(); }

void hh_give_file(int which, int bytes) {
    machine_here().world.said.file(which == 0 ? store::game_dat
                                              : store::hscore_dat) = {true, std::string(taken(bytes))};
}

void hh_seed(unsigned low, unsigned high, int repeats) {
    pageworld& w = machine_here().world;
    w.state = (std::uint64_t{high} << 32) | low;
    w.repeats = repeats != 0;
}

void hh_boot(double clock, int at_once) {
    here& h = machine_here();
    record_files();
    record_clock(h.world.past, static_cast<std::int64_t>(clock));
    if (h.world.repeats)
        record_seed(h.world.past, h.world.state);
    reset_game(h.g, static_cast<std::int64_t>(clock));
    boot(h.g);
    timer tick{};
    if (at_once != 0)
        while (!is_loaded(h.g.p, screen::main) &&
               deliver_one(h.g, std::numeric_limits<std::int64_t>::max(), tick)) {
        }
    note_boot();
}

// A handler that held the machine may have run past the end: what fell due meanwhile then waits for
// the next call, as in a script.
void hh_run(double until) {
    here& h = machine_here();
    panel& p = h.g.p;
    const auto target = static_cast<std::int64_t>(until);
    timer tick{};
    while (p.now <= target && deliver_one(h.g, target, tick))
        note_boot();
    if (!p.over)
        p.now = std::max(p.now, target);
    record_run(h.world.past, target, p.now);
}

int hh_press(int e) {
    if (!is_element(e))
        return 0;
    input in{input::kind::press};
    in.on = static_cast<element>(e);
    in.where = row(in.on).where;
    return take("press " + script::full_name(in.on), in);
}

int hh_key(int s, int code) {
    if (!is_screen(s))
        return 0;
    input in{input::kind::key};
    in.where = static_cast<screen>(s);
    in.code = code;
    return take("key " + std::to_string(code) + " " + std::string(row(in.where).name), in);
}

int hh_type(int e, int bytes) {
    if (!is_element(e))
        return 0;
    const std::string text(taken(bytes));
    input in{input::kind::type};
    in.on = static_cast<element>(e);
    in.where = row(in.on).where;
    in.text = text;
    return take("type " + script::full_name(in.on) + " " + script::quote(text), in);
}

int hh_close(int s) {
    if (!is_screen(s))
        return 0;
    input in{input::kind::close};
    in.where = static_cast<screen>(s);
    return take(words("close", in.where), in);
}

int hh_show(int s) {
    if (!is_screen(s))
        return 0;
    input in{input::kind::show};
    in.where = static_cast<screen>(s);
    return take(words("focus", in.where), in);
}

void hh_answer(int answer) { machine_here().world.answers.push_back(std::clamp(answer, 0, 2)); }
void hh_answer_by_itself(int by_itself) { machine_here().world.answers_itself = by_itself != 0; }

double hh_now(void) { return static_cast<double>(machine_here().g.p.now); }

double hh_next_due(void) {
    std::int64_t due = -1;
    return next_due(machine_here().g.p, due) ? static_cast<double>(due) : -1;
}

double hh_reading(double real) {
    return static_cast<double>(reading(page_clock, machine_here().g.p, static_cast<std::int64_t>(real)));
}

double hh_catch_up(double real) {
    return static_cast<double>(catch_up(page_clock, machine_here().g.p, static_cast<std::int64_t>(real)));
}

void hh_fall_behind(double ms) { page_clock.behind += static_cast<std::int64_t>(ms); }

int hh_over(void) { return machine_here().g.p.over ? 1 : 0; }

void* hh_unwound(void) {
    unwound.first = unwound.stack.data();
    unwound.end = unwound.stack.data() + unwound.stack.size();
    return &unwound;
}
