#include "script/commands.h"

#include "core/reels.h"
#include "panel/sheet.h"
#include "script/dump.h"
#include "script/reading.h"
#include "script/session.h"

#include <array>
#include <string>
#include <vector>

namespace hustle::script {

namespace {

using words = std::vector<token>; // a command's words, the command itself left out

struct runner {
    session s;
    std::string_view rest; // the lines not yet read
    std::string_view file;
    std::ostream& out;
    std::ostream& err;
    int line = 0;
    int status = 0;
    std::function<void()> at_line = [] {};

    runner(std::string_view text, std::string_view name, std::ostream& to, std::ostream& errors)
        : s(to), rest(text), file(name), out(to), err(errors) {}
};

struct command_row {
    std::string_view name;
    std::size_t least, most; // words behind it
    bool needs_machine;      // boots it first
    void (*run)(runner&, const words&);
    std::string_view form;
};

constexpr std::size_t any = ~std::size_t{0};
constexpr long long a_day = 86'400;
constexpr long long longest_run = 86'400'000; // ms, a day
constexpr std::size_t longest_text = 4096;    // bytes, of what may come to be painted

bool next_line(runner& r, std::string_view& line) {
    if (r.rest.empty())
        return false;
    const std::size_t end = std::min(r.rest.find('\n'), r.rest.size());
    line = r.rest.substr(0, end);
    r.rest.remove_prefix(std::min(end + 1, r.rest.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    ++r.line;
    return true;
}

// What a name stands for, to be looked at: a log that was cut is not what has happened.
const cell& found(const runner& r, const token& name) {
    const cell& c = r.s.known.find(name.text);
    const auto* const text = std::get_if<std::string*>(&c.where);
    if (text != nullptr && !c.traced && (*text)->size() > longest_log)
        throw script_error(c.name + " has grown longer than " + std::to_string(longest_log) +
                           " bytes; forget empties it");
    return c;
}

void before_boot(const runner& r, std::string_view command) {
    if (r.s.booted())
        throw script_error(std::string(command) + " is only taken before the boot");
}

void tell_wrong(runner& r, const std::string& what) {
    r.out.flush();
    r.err << printable(r.file) << ':' << r.line << ": " << printable(what) << '\n';
}

void failed(runner& r, const cell& c, const token& wanted) {
    tell_wrong(r, "expected " + c.name + " = " + written(wanted) + ", found " + shown(c.where));
    r.status = 1;
}

input input_on(input::kind what, element e) {
    input in{what};
    in.where = row(e).where;
    in.on = e;
    return in;
}
input input_on(input::kind what, screen s) {
    input in{what};
    in.where = s;
    return in;
}

void check_length(std::string_view what, std::string_view text) {
    if (text.size() > longest_text)
        throw script_error(std::string(what) + " takes a text of at most " + std::to_string(longest_text) +
                           " bytes");
}

void file(runner& r, const words& w) {
    before_boot(r, "file");
    const store which = w[0].text == name(store::game_dat) ? store::game_dat : store::hscore_dat;
    if (w[0].text != name(which))
        throw script_error(std::string("file takes ") + std::string(name(store::game_dat)) + " or " +
                           std::string(name(store::hscore_dat)) + ", not " + written(w[0]));
    const int first = r.line;
    std::string text;
    for (std::string_view line; next_line(r, line);) {
        if (const std::size_t begin = line.find_first_not_of(" \t");
            begin != std::string_view::npos &&
            line.substr(begin, line.find_last_not_of(" \t") + 1 - begin) == "end") {
            r.s.w.file(which) = {true, std::move(text)};
            return;
        }
        check_length("a line of a stored file", line);
        text.append(line).append("\r\n");
    }
    r.line = first;
    throw script_error("file has no end");
}

void clock(runner& r, const words& w) {
    before_boot(r, "clock");
    const double seconds = read_decimal(w[0], "clock");
    if (seconds < 0 || seconds >= static_cast<double>(a_day))
        throw script_error("clock takes seconds since midnight, below 86400, not " + written(w[0]));
    r.s.clock = seconds;
}

void seed(runner& r, const words& w) { r.s.w.generator = read_seed(w[0], "seed"); }

void draws(runner& r, const words& w) {
    std::vector<long long> queued;
    for (const token& t : w)
        queued.push_back(read_whole(t, "draws", INT32_MIN, INT32_MAX));
    r.s.w.draws.insert(r.s.w.draws.end(), queued.begin(), queued.end());
}

void boot(runner& r, const words&) {
    before_boot(r, "boot");
    r.s.boot();
}

void set(runner& r, const words& w) {
    const cell& c = r.s.known.find(w[0].text);
    check_length(c.name, w[1].text);
    if (!c.store)
        throw script_error(c.name + " can only be read");
    const value to = read_value(c.where, c.name, w[1], false);
    if (c.bears && (to.number < c.bears->least || to.number > c.bears->most))
        throw script_error(c.name + " takes a number from " + std::to_string(c.bears->least) + " to " +
                           std::to_string(c.bears->most) + ", not " + written(w[1]));
    if (r.s.over())
        return;
    c.store(to);
    r.s.refresh();
}

void reel(runner& r, const words& w) {
    const auto which = static_cast<int>(read_whole(w[0], "reel", 1, 3));
    const auto stop = static_cast<int>(read_whole(w[1], "a stop", 1, static_cast<long long>(strip.size())));
    if (r.s.over())
        return;
    set_stop(r.s.g, which, stop);
    r.s.refresh();
}

void call(runner& r, const words& w) { r.s.call(find_operation(w[0].text)); }

void press(runner& r, const words& w) {
    const element e = find_element(w[0].text);
    r.s.apply("press " + full_name(e), input_on(input::kind::press, e));
}

void key(runner& r, const words& w) {
    input in = input_on(input::kind::key, find_screen(w[1].text));
    in.code = static_cast<int>(read_whole(w[0], "key", 0, 65535));
    r.s.apply("key " + std::to_string(in.code) + " " + w[1].text, in);
}

void type(runner& r, const words& w) {
    const element e = find_element(w[0].text);
    if (row(e).what != kind::textbox)
        throw script_error(full_name(e) + " is no text box");
    if (!w[1].quoted)
        throw script_error("type takes a text in double quotes, not " + written(w[1]));
    check_length("type", w[1].text);
    input in = input_on(input::kind::type, e);
    in.text = w[1].text;
    r.s.apply("type " + full_name(e), in);
}

void close(runner& r, const words& w) {
    const screen where = find_screen(w[0].text);
    r.s.apply("close " + w[0].text, input_on(input::kind::close, where));
}

void focus(runner& r, const words& w) {
    const screen where = find_screen(w[0].text);
    r.s.apply("show " + w[0].text, input_on(input::kind::show, where));
}

void load(runner& r, const words& w) { r.s.load(find_screen(w[0].text)); }
void unload(runner& r, const words& w) { r.s.unload(find_screen(w[0].text)); }

void give_answer(runner& r, const words& w) {
    constexpr std::array<std::pair<std::string_view, answer>, 3> answers = {
        {{"yes", answer::yes}, {"no", answer::no}, {"ok", answer::ok}}};
    for (const auto& [word, meaning] : answers)
        if (!w[0].quoted && w[0].text == word)
            return r.s.w.answers.push_back(meaning);
    throw script_error("answer takes yes, no or ok, not " + written(w[0]));
}

void run(runner& r, const words& w) { r.s.run(r.s.g.p.now + read_whole(w[0], "run", 0, longest_run)); }

void until(runner& r, const words& w) {
    const cell& c = found(r, w[0]);
    const value wanted = read_value(c.where, c.name, w[1], true);
    const std::int64_t last =
        r.s.g.p.now + (w.size() > 2 ? read_whole(w[2], "until", 0, longest_run) : 60'000);
    while (!holds(c.where, wanted))
        if (!r.s.deliver_one(last)) {
            r.s.run(last);
            return failed(r, c, w[1]);
        }
}

void get(runner& r, const words& w) {
    for (const token& t : w)
        found(r, t); // nothing is printed of a line that cannot be understood
    for (const token& t : w) {
        const cell& c = found(r, t);
        r.out << c.name << " = " << shown(c.where) << '\n';
    }
}

void expect(runner& r, const words& w) {
    const cell& c = found(r, w[0]);
    if (!holds(c.where, read_value(c.where, c.name, w[1], true)))
        failed(r, c, w[1]);
}

void forget(runner& r, const words&) { r.s.w.forget(); }

void trace(runner& r, const words& w) {
    if (w[0].quoted || (w[0].text != "on" && w[0].text != "off"))
        throw script_error("trace takes on or off, not " + written(w[0]));
    r.s.trace(w[0].text == "on");
}

void print_dump(runner& r, const words&) { r.out << dump(r.s.known); }

void print_hash(runner& r, const words&) { r.out << "hash = " << hash_text(r.s.known) << '\n'; }

// clang-format off
constexpr command_row commands[] = {
    {"file",   1, 1,   false, file,        "file NAME"},
    {"clock",  1, 1,   false, clock,       "clock SECONDS"},
    {"seed",   1, 1,   false, seed,        "seed N"},
    {"draws",  1, any, false, draws,       "draws K ..."},
    {"boot",   0, 0,   false, boot,        "boot"},
    {"set",    2, 2,   true,  set,         "set NAME VALUE"},
    {"reel",   2, 2,   true,  reel,        "reel R STOP"},
    {"call",   1, 1,   true,  call,        "call SCREEN.OPERATION"},
    {"press",  1, 1,   true,  press,       "press SCREEN.ELEMENT"},
    {"key",    2, 2,   true,  key,         "key CODE SCREEN"},
    {"type",   2, 2,   true,  type,        "type SCREEN.ELEMENT TEXT"},
    {"close",  1, 1,   true,  close,       "close SCREEN"},
    {"load",   1, 1,   true,  load,        "load SCREEN"},
    {"unload", 1, 1,   true,  unload,      "unload SCREEN"},
    {"focus",  1, 1,   true,  focus,       "focus SCREEN"},
    {"answer", 1, 1,   false, give_answer, "answer yes, no or ok"},
    {"run",    1, 1,   true,  run,         "run MS"},
    {"until",  2, 3,   true,  until,       "until NAME VALUE [MS]"},
    {"get",    1, any, true,  get,         "get NAME ..."},
    {"expect", 2, 2,   true,  expect,      "expect NAME VALUE"},
    {"forget", 0, 0,   false, forget,      "forget"},
    {"trace",  1, 1,   false, trace,       "trace on or off"},
    {"dump",   0, 0,   true,  print_dump,  "dump"},
    {"hash",   0, 0,   true,  print_hash,  "hash"},
};
// clang-format on

void run_line(runner& r, std::string_view line) {
    words w = words_of(line);
    if (w.empty())
        return;
    const token first = w.front();
    w.erase(w.begin());
    for (const command_row& c : commands) {
        if (first.quoted || c.name != first.text)
            continue;
        if (w.size() < c.least || w.size() > c.most)
            throw script_error("the form is: " + std::string(c.form));
        if (c.needs_machine && !r.s.booted())
            r.s.boot();
        return c.run(r, w);
    }
    throw script_error("unknown command " + written(first));
}

int run_lines(runner& r) {
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    if (r.rest.starts_with(byte_order_mark))
        r.rest.remove_prefix(byte_order_mark.size());
    try {
        for (std::string_view line; next_line(r, line);) {
            r.at_line();
            run_line(r, line);
        }
    } catch (const script_error& wrong) {
        tell_wrong(r, wrong.what());
        return 2;
    }
    return r.status;
}

} // namespace

int run_script(std::string_view text, std::string_view name, std::ostream& out, std::ostream& err) {
    return run_script(text, name, out, err, [](const game&) {});
}

int run_script(std::string_view text, std::string_view name, std::ostream& out, std::ostream& err,
               const std::function<void(const game&)>& at_end) {
    runner r(text, name, out, err);
    const int status = run_lines(r);
    if (status != 2)
        at_end(r.s.g);
    return status;
}

int watch_script(std::string_view text, std::string_view name, std::ostream& out, std::ostream& err,
                 const std::function<void(game&)>& passing,
                 const std::function<void(game&, int status)>& at_end, const std::function<void()>& at_line) {
    runner r(text, name, out, err);
    r.s.passing = passing;
    if (at_line)
        r.at_line = at_line;
    const int status = run_lines(r);
    if (at_end)
        at_end(r.s.g, status);
    return status;
}

} // namespace hustle::script
