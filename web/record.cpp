#include "web/record.h"

namespace hustle::web {

namespace {

// Draws and answers are queued ahead of the line that takes them.
void line(record& r, std::string_view words) {
    r.text += r.answers;
    if (!r.draws.empty())
        r.text.append("draws").append(r.draws).append("\n");
    r.answers.clear();
    r.draws.clear();
    r.text.append(words).append("\n");
}

void end_run(record& r) {
    if (r.until != r.from || (r.overdue && r.ran))
        line(r, "run " + std::to_string(r.until - r.from));
    r.overdue = r.overdue && !r.ran;
    r.ran = false;
    r.from = r.until;
}

} // namespace

void record_file(record& r, std::string_view name, std::string_view text) {
    r.text.append("file ").append(name).append("\n");
    for (const char c : text)
        if (c != '\r')
            r.text += c;
    if (!text.empty() && text.back() != '\n')
        r.text += '\n';
    r.text += "end\n";
}

void record_clock(record& r, std::int64_t ms) {
    const std::string thousandths = std::to_string(1000 + ms % 1000).substr(1);
    r.text.append("clock ").append(std::to_string(ms / 1000)).append(".").append(thousandths).append("\n");
}

void record_seed(record& r, std::uint64_t seed) {
    r.text.append("seed ").append(std::to_string(seed)).append("\n");
}

void record_draw(record& r, int result) { r.draws.append(" ").append(std::to_string(result)); }

void record_answer(record& r, std::string_view word) {
    r.answers.append("answer ").append(word).append("\n");
}

void record_boot(record& r, std::int64_t now) {
    line(r, "boot");
    r.from = r.until = now;
    r.booted = true;
}

void record_run(record& r, std::int64_t until, std::int64_t now) {
    if (!r.booted)
        return;
    r.until = until;
    r.ran = true;
    if (now == until)
        return;
    end_run(r); // a wait ran beyond the end: what fell due meanwhile belongs to a run of its own
    r.from = r.until = now;
    r.overdue = true;
}

void before_input(record& r) { end_run(r); }

void after_input(record& r, std::string_view words, std::int64_t now) {
    line(r, words);
    r.overdue = r.overdue || now != r.from;
    r.from = r.until = now;
}

std::string recorded(record& r) {
    if (r.booted)
        end_run(r);
    return r.text + "hash\n";
}

} // namespace hustle::web
