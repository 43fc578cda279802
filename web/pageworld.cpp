#include "web/pageworld.h"

#include "panel/sheet.h"
#include "web/here.h"
#define HH_IMPORTS
#include "web/surface.h"

namespace hustle::web {

namespace {

int bytes(std::string_view text) { return static_cast<int>(text.size()); }

} // namespace

// The clock is folded into the state, not put in its place: draws within one millisecond differ,
// and one that is made again until it differs comes to an end.
int pageworld::draw(int n) {
    if (!repeats)
        state += static_cast<std::uint64_t>(page_time_of_day());
    said.generator = state;
    const int result = said.draw(n);
    state = said.generator;
    if (!repeats)
        record_draw(past, result);
    return result;
}

void pageworld::play(sound wave) {
    said.play(wave);
    page_play(static_cast<int>(wave));
}

void pageworld::midi(tune what) {
    said.midi(what);
    const std::string_view command = script::command_text(what);
    page_midi(command.data(), bytes(command));
}

bool pageworld::box(const message& m) {
    int given = 2;
    if (!answers.empty()) {
        given = answers.front();
        answers.pop_front();
    } else if (answers_itself) {
        given = m.yes_or_no ? 0 : 2;
    } else {
        given = page_box(m.title.data(), bytes(m.title), m.text.data(), bytes(m.text),
                         static_cast<int>(m.look), m.yes_or_no ? 1 : 0);
        if (!m.yes_or_no)
            given = 2;
    }
    constexpr std::string_view words[] = {"no", "yes", "ok"};
    constexpr script::answer meanings[] = {script::answer::no, script::answer::yes, script::answer::ok};
    record_answer(past, words[given]);
    said.answers.push_back(meanings[given]);
    return said.box(m);
}

void pageworld::wait(int ms) { page_wait(ms); }

std::optional<std::string> pageworld::read(store which) { return said.read(which); }

bool pageworld::write(store which, std::string_view text) {
    if (page_write(static_cast<int>(which), text.data(), bytes(text)) == 0)
        return false;
    return said.write(which, text);
}

std::string pageworld::set_aside(store which) {
    said.set_aside(which);
    const int place = page_set_aside(static_cast<int>(which));
    if (place == 0)
        return {};
    std::string kept = std::string(name(which)) + ".damaged";
    return place == 1 ? kept : kept + "-" + std::to_string(place);
}

void pageworld::browse(page which) { page_browse(which == page::home ? 1 : 0); }

bool pageworld::system_info() { return page_system_info() != 0; }

std::string pageworld::currency(float amount) {
    const int length = page_currency(static_cast<double>(amount));
    return length > 0 ? std::string(taken(length)) : said.currency(amount);
}

void pageworld::exit() {
    said.exit();
    page_exit();
}

} // namespace hustle::web
