#include "tests/fuzz/grammar.h"

#include "panel/sheet.h"
#include "script/lexer.h"
#include "script/moves.h"
#include "script/operations.h"
#include "script/session.h"

#include <sstream>
#include <vector>

namespace hustle::fuzz {

namespace {

using namespace script;

struct feed {
    const std::uint8_t* at;
    std::size_t left;

    int byte() {
        if (left == 0)
            return 0;
        --left;
        return *at++;
    }
    int below(std::size_t n) { return (byte() << 8 | byte()) % static_cast<int>(n); }
};

// What a name takes; `set` and `expect` give it a value of its kind, most of the time.
struct known_name {
    std::string name;
    std::size_t kind; // index of its slot
    std::optional<range> bears;
};

const std::vector<known_name>& known_names() {
    static const std::vector<known_name> all = [] {
        std::ostringstream unused;
        const session s(unused);
        std::vector<known_name> names;
        for (const cell& c : s.known.all())
            names.push_back({c.name, c.where.index(), c.bears});
        return names;
    }();
    return all;
}

constexpr int numbers[] = {0,  1,  2,  3,  4,  5,   8,   9,   10,    12,    15, 16, 20,     23,
                           24, 25, 30, 81, 85, 100, 221, 255, 32766, 32767, -1, -2, -32768, 65535};
constexpr int waits[] = {0, 1, 10, 40, 60, 100, 120, 200, 350, 500, 1000, 2000, 3000};
constexpr std::string_view words[] = {"yes",  "no",   "true",  "false",  "False", "on",  "off",
                                      "hi",   "lo",   "up",    "down",   "usd",   "gbp", "feature",
                                      "hilo", "stop", "start", "cherry", "bell",  "  "};

std::string number(feed& f) { return std::to_string(numbers[f.below(std::size(numbers))]); }
std::string ms(feed& f) { return std::to_string(waits[f.below(std::size(waits))]); }
std::string screen_name(feed& f) {
    return std::string(screen_rows()[static_cast<std::size_t>(f.below(screen_count))].name);
}
std::string element_name(feed& f) { return full_name(static_cast<element>(f.below(element_count))); }
std::string text(feed& f) {
    if (f.byte() % 2 == 0)
        return quote(words[f.below(std::size(words))]);
    return quote(award_words()[static_cast<std::size_t>(f.below(award_words().size()))]);
}

std::string value(feed& f, const known_name& n) {
    if (f.byte() < 2)
        return number(f);
    if (n.bears && n.bears->most < 1000)
        return std::to_string(n.bears->least +
                              f.below(static_cast<std::size_t>(n.bears->most - n.bears->least + 1)));
    const slot kinds[] = {static_cast<single*>(nullptr), static_cast<count*>(nullptr),
                          static_cast<word*>(nullptr),   static_cast<std::string*>(nullptr),
                          static_cast<bool*>(nullptr),   static_cast<int*>(nullptr),
                          static_cast<colour*>(nullptr), static_cast<art*>(nullptr)};
    if (n.kind >= std::size(kinds))
        return screen_name(f);
    return std::visit(each{[&](single*) { return f.byte() < 128 ? number(f) : number(f) + ".25"; },
                           [&](word*) { return text(f); }, [&](std::string*) { return text(f); },
                           [&](bool*) { return std::string(f.byte() % 2 == 0 ? "true" : "false"); },
                           [&](art*) { return std::string(name(static_cast<art>(f.below(art_count)))); },
                           [&](const panel*) { return screen_name(f); }, [&](auto*) { return number(f); }},
                      kinds[n.kind]);
}

std::string named(feed& f, std::string_view command) {
    const auto& all = known_names();
    const known_name& n = all[static_cast<std::size_t>(f.below(all.size()))];
    return std::string(command) + n.name + " " + value(f, n);
}

// A field, rather than one of the many properties.
std::string set_field(feed& f) {
    const auto& rows = field_rows();
    const auto& row = rows[static_cast<std::size_t>(f.below(rows.size()))];
    for (const known_name& n : known_names())
        if (n.name == row.name)
            return "set " + n.name + " " + value(f, n);
    return "";
}

std::string operation(feed& f) {
    const operation_row& o = operation_rows()[static_cast<std::size_t>(f.below(operation_rows().size()))];
    return "call " + std::string(row(o.where).name) + "." + std::string(o.name);
}

std::string raw(feed& f) {
    std::string line;
    for (int n = f.byte() % 24; n > 0; --n)
        line += static_cast<char>(f.byte());
    return line;
}

std::string timer_starts(feed& f) {
    return "set " + full_name(static_cast<timer>(f.below(timer_count))) + ".running true";
}

// A first line before the boot: files that are whole, or not.
std::string stored(feed& f) {
    std::string lines = f.byte() % 2 == 0 ? "file game.dat\n" : "file hscore.dat\n";
    for (int n = f.byte() % 40; n > 0; --n)
        lines += f.byte() < 20 ? raw(f) + "\n" : f.byte() < 60 ? "on\n" : number(f) + "\n";
    return lines + "end";
}

std::string command(feed& f) {
    switch (f.byte() % 24) {
    case 0:
    case 1:
    case 2:
    case 3: return "press " + element_name(f);
    case 4:
    case 5:
    case 6:
    case 7: return "run " + ms(f);
    case 8:
    case 9: return set_field(f);
    case 10: return named(f, "set ");
    case 11:
    case 12:
    case 13: return timer_starts(f);
    case 14:
    case 15: return operation(f);
    case 16: return "key " + std::to_string(f.byte()) + " " + screen_name(f);
    case 17: return "load " + screen_name(f);
    case 18:
        return (f.byte() % 3 == 0 ? "unload " : f.byte() % 2 == 0 ? "focus " : "close ") + screen_name(f);
    case 19: return f.byte() % 4 == 0 ? named(f, "until ") + " " + ms(f) : named(f, "expect ");
    case 20: return "type Entername.Text1 " + text(f);
    case 21:
        return f.byte() < 4
                   ? "draws " + number(f)
                   : "reel " + std::to_string(1 + f.byte() % 3) + " " + std::to_string(1 + f.byte() % 16);
    case 22: {
        // What looks at every value is slow, and so comes seldom.
        constexpr std::string_view looks[] = {"trace on", "trace off", "trace off", "hash", "dump"};
        constexpr std::string_view plain[] = {"answer yes", "answer no", "forget",
                                              "get front boxes sounds midi"};
        return std::string(f.byte() < 24 ? looks[f.below(std::size(looks))]
                                         : plain[f.below(std::size(plain))]);
    }
    default: return f.byte() < 4 ? raw(f) : "press main.start";
    }
}

} // namespace

std::string script_of(const std::uint8_t* bytes, std::size_t size) {
    feed f{bytes, size};
    std::string text;
    if (f.byte() % 4 == 0)
        text += stored(f) + "\n";
    while (f.left > 0)
        text += command(f) + "\n";
    return text;
}

} // namespace hustle::fuzz
