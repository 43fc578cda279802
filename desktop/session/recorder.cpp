#include "desktop/session/recorder.h"

#include "core/files.h"
#include "panel/sheet.h"
#include "script/dump.h"
#include "script/lexer.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace hustle::desktop {

namespace {

constexpr int draws_on_a_line = 32;

void tell(recorder& r, std::string_view first, std::string_view second = {}, std::string_view third = {}) {
    r.text += first;
    for (const std::string_view word : {second, third})
        if (!word.empty())
            r.text.append(" ").append(word);
    r.text += '\n';
}

void tell_file(recorder& r, store which, std::string_view text) {
    tell(r, "file", name(which));
    for (const char c : text)
        if (c != '\r')
            r.text += c;
    tell(r, "end");
}

// The draws and the answers of an event stand before it.
void tell_chances(recorder& r) {
    if (r.drawn > 0)
        r.draws += '\n';
    r.text.append(r.draws).append(r.answers);
    r.draws.clear();
    r.answers.clear();
    r.drawn = 0;
}

std::string full(element e) { return std::string(row(row(e).where).name) + "." + std::string(row(e).name); }

std::string line_of(const input& in) {
    const std::string where(row(in.where).name);
    switch (in.what) {
    case input::kind::press: return "press " + full(in.on) + "\n";
    case input::kind::key: return "key " + std::to_string(in.code) + " " + where + "\n";
    case input::kind::type: return "type " + full(in.on) + " " + script::quote(in.text) + "\n";
    case input::kind::close: return "close " + where + "\n";
    case input::kind::show: return "focus " + where + "\n";
    }
    return {};
}

// A replay tells amounts in its own form: it is given those that the player saw. A name in the table may hold
// what no script can tell.
void tell_amounts(recorder& r) {
    const auto bears_one = [&](std::string_view text) {
        return std::any_of(r.amounts.begin(), r.amounts.end(),
                           [&](const std::string& a) { return text.find(a) != std::string_view::npos; });
    };
    for (const script::cell& c : r.names->all()) {
        const auto* const text = std::get_if<std::string*>(&c.where);
        if (r.amounts.empty() || text == nullptr || !c.store || !bears_one(**text))
            continue;
        const std::string quoted = script::quote(**text);
        try {
            script::words_of(quoted);
        } catch (const script::script_error&) {
            continue;
        }
        tell(r, "set", c.name, quoted);
    }
    r.amounts.clear();
}

void record_time(recorder& r, const game& g) {
    tell_chances(r);
    if (r.until > r.since)
        tell(r, "run", std::to_string(r.until - r.since));
    tell_amounts(r);
    r.since = r.until = g.p.now;
}

bool write_out(recorder& r) {
    std::string_view rest = r.text;
    while (!rest.empty()) {
        const ssize_t done = ::write(r.file, rest.data(), rest.size());
        if (done < 0 && errno == EINTR)
            continue;
        if (done <= 0) { // of a piece all or nothing: half a line is none that can be replayed
            [[maybe_unused]] const int ignored = ::ftruncate(r.file, static_cast<off_t>(r.written));
            return false;
        }
        rest.remove_prefix(static_cast<std::size_t>(done));
    }
    r.written += r.text.size();
    r.text.clear();
    return true;
}

} // namespace

void begin_recording(recorder& r, const std::string& folder, game& g, std::int64_t clock_ms) {
    const std::string path = folder + "/" + session_name;
    if (std::rename(path.c_str(), (folder + "/" + session_before).c_str()) == 0)
        ::unlink(path.c_str()); // two names of one file are left as they are by a rename
    r.file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (r.file < 0)
        return;
    r.names = std::make_unique<script::names>(g);
    tell(r, "# A session of Hoard Hustle", version_text, "as a panel script.");
    tell_file(r, store::game_dat, game_text(g.m));
    tell_file(r, store::hscore_dat, table_text(g.m));
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%.3f", static_cast<double>(clock_ms) / 1000);
    tell(r, "clock", seconds);
}

void record_draw(recorder& r, int result) {
    if (r.file < 0)
        return;
    r.draws.append(r.drawn == 0 ? "draws " : " ").append(std::to_string(result));
    if (++r.drawn == draws_on_a_line) {
        r.draws += '\n';
        r.drawn = 0;
    }
}

void record_answer(recorder& r, const message& m, bool yes) {
    if (r.file >= 0)
        r.answers.append("answer ").append(!m.yes_or_no ? "ok" : yes ? "yes" : "no").append("\n");
}

void record_amount(recorder& r, const std::string& told) {
    if (r.file >= 0 && r.stands && std::find(r.amounts.begin(), r.amounts.end(), told) == r.amounts.end())
        r.amounts.push_back(told);
}

void record_boot(recorder& r, const game& g) {
    if (r.file < 0)
        return;
    tell_chances(r);
    tell(r, "boot");
    r.since = r.until = g.p.now;
    r.stands = true;
}

void record_ticks(recorder& r, std::int64_t until) { r.until = until; }

void record_begun(recorder& r, const game& g, const input& in) {
    if (r.file < 0 || !r.stands)
        return;
    record_time(r, g);
    r.asked = line_of(in);
}

void record_input(recorder& r, const game& g) {
    if (r.file < 0 || !r.stands)
        return;
    tell_chances(r);
    r.text += std::exchange(r.asked, {});
    tell_amounts(r);
    r.since = r.until = g.p.now;
}

void record_box(recorder& r) {
    if (r.file < 0 || !r.stands)
        return;
    if (!r.asked.empty())
        r.text += "# under way: " + r.asked;
    if (!write_out(r))
        end_recording(r);
}

void flush_recording(recorder& r, const game& g) {
    if (r.file < 0 || !r.stands)
        return;
    record_time(r, g);
    if (r.text.empty())
        return;
    tell(r, "hash #", script::hash_text(*r.names));
    const bool full = r.written + r.text.size() > longest_session;
    if (full)
        r.text = "# The session goes on, and is longer than is written down.\n";
    if (!write_out(r) || full)
        end_recording(r);
}

void end_recording(recorder& r) {
    if (r.file >= 0)
        ::close(r.file);
    r.file = -1;
    r.names.reset();
}

} // namespace hustle::desktop
