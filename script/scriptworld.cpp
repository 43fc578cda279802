#include "script/scriptworld.h"

#include "panel/sheet.h"
#include "panel/splitmix.h"
#include "panel/text.h"
#include "script/lexer.h"

#include <limits>

namespace hustle::script {

namespace {

void append(std::string& log, std::string_view between, std::string_view entry) {
    if (log.size() > longest_log)
        return;
    if (!log.empty())
        log += between;
    log += entry;
}

constexpr std::string_view answer_names[] = {"yes", "no", "ok"};

} // namespace

template <class... Words> void scriptworld::tell(const Words&... words) {
    if (!telling)
        return;
    effects += "  ";
    ((effects += words), ...);
    effects += '\n';
}

void scriptworld::forget() {
    sounds.clear();
    commands.clear();
    boxes.clear();
    drawn = 0;
}

int scriptworld::draw(int n) {
    int result = 0;
    if (draws.empty()) {
        result = splitmix_draw(generator, n);
    } else {
        const long long queued = draws.front();
        if (queued < 1 || queued > n)
            throw script_error("the queued draw " + std::to_string(queued) +
                               " is no result of a draw of 1 to " + std::to_string(n));
        draws.pop_front();
        result = static_cast<int>(queued);
    }
    drawn += drawn < std::numeric_limits<int>::max() ? 1 : 0;
    if (telling)
        tell("draw ", std::to_string(n), " -> ", std::to_string(result));
    return result;
}

void scriptworld::play(sound s) {
    append(sounds, " ", name(s));
    tell("sound ", name(s));
}

std::string_view command_text(tune what) {
    constexpr std::string_view commands[] = {R"(open "sounds/hustle.mid" type sequencer  alias mid1)",
                                             "play mid1 from 0", "stop mid1", "close mid1"};
    return commands[static_cast<std::size_t>(what)];
}

void scriptworld::midi(tune what) {
    const std::string_view command = command_text(what);
    append(commands, ";", command);
    tell("midi ", command);
}

bool scriptworld::box(const message& m) {
    answer given = m.yes_or_no ? answer::no : answer::ok;
    if (!answers.empty()) {
        given = answers.front();
        answers.pop_front();
    }
    append(boxes, ";", std::string(m.title) + "|" + std::string(m.text));
    if (telling)
        tell("box ", quote(m.title), " ", quote(m.text), m.yes_or_no ? " yesno -> " : " ok -> ",
             answer_names[static_cast<std::size_t>(given)]);
    return !m.yes_or_no || given == answer::yes;
}

// The machine moves its own clock on.
void scriptworld::wait(int ms) {
    if (telling)
        tell("wait ", std::to_string(ms));
}

std::optional<std::string> scriptworld::read(store s) {
    if (!file(s).there)
        return std::nullopt;
    return file(s).text;
}

bool scriptworld::write(store s, std::string_view text) {
    file(s) = {true, std::string(text)};
    return true;
}

std::string scriptworld::set_aside(store s) {
    file(s) = {};
    return std::string(name(s)) + ".damaged";
}

void scriptworld::browse(page which) { tell("browse ", which == page::help ? "help" : "home"); }

std::string scriptworld::currency(float amount) { return std::string(std::string_view(uk_currency(amount))); }

void scriptworld::exit() {
    ended = true;
    tell("exit");
}

} // namespace hustle::script
