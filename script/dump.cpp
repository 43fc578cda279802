#include "script/dump.h"

#include "panel/sheet.h"
#include "panel/text.h"

namespace hustle::script {

namespace {

// Hands the text of a dump to `take`, piece by piece.
template <class Take> void dump_to(const names& known, const Take& take) {
    for (const cell& c : known.all()) {
        if (!c.traced)
            continue;
        take(c.name);
        take(" = ");
        take(shown(c.where));
        take("\n");
    }
}

} // namespace

std::string shown(const slot& s) {
    return std::visit(each{
                          [](const single* v) { return std::string(std::string_view(plain(*v))); },
                          [](const count* v) { return std::to_string(*v); },
                          [](const int* v) { return std::to_string(*v); },
                          [](const colour* v) { return std::to_string(*v); },
                          [](const word* v) { return quote(*v); },
                          [](const std::string* v) { return quote(*v); },
                          [](const bool* v) { return std::string(*v ? "true" : "false"); },
                          [](const art* v) { return std::string(name(*v)); },
                          [](const panel* v) { return quote(row(front(*v)).name); },
                      },
                      s);
}

std::string dump(const names& known) {
    std::string text;
    dump_to(known, [&](std::string_view piece) { text += piece; });
    return text;
}

std::uint64_t hash(const names& known) {
    std::uint64_t h = 0xcbf29ce484222325ULL;
    dump_to(known, [&](std::string_view piece) {
        for (const char c : piece)
            h = (h ^ static_cast<unsigned char>(c)) * 0x100000001b3ULL;
    });
    return h;
}

std::string hash_text(const names& known) {
    constexpr std::string_view digits = "0123456789abcdef";
    const std::uint64_t h = hash(known);
    std::string text;
    for (int shift = 60; shift >= 0; shift -= 4)
        text += digits[(h >> shift) & 15];
    return text;
}

} // namespace hustle::script
