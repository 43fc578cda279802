#include "script/values.h"

#include "panel/sheet.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace hustle::script {

namespace {

[[noreturn]] void wrong(std::string_view what, std::string_view takes, const token& t) {
    throw script_error(std::string(what) + " takes " + std::string(takes) + ", not " + written(t));
}

template <class Number> bool parse(std::string_view text, Number& number) {
    if (text.find_first_not_of("-.0123456789") != std::string_view::npos)
        return false; // neither exponents nor words for numbers
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size();
}

value read_number(std::string_view name, const token& t, std::string_view digits, double least, double most,
                  bool whole) {
    value v;
    float nearest = 0;
    const bool fits = whole ? parse(digits, v.number) && v.number == std::floor(v.number) &&
                                  digits.find('.') == std::string_view::npos
                            : parse(digits, nearest);
    if (t.quoted || !fits)
        wrong(name, whole ? "a whole number" : "a number", t);
    if (!whole)
        v.number = static_cast<double>(nearest);
    if (v.number < least || v.number > most)
        wrong(name,
              "a number from " + std::to_string(static_cast<long long>(least)) + " to " +
                  std::to_string(static_cast<long long>(most)),
              t);
    return v;
}

value read_near(std::string_view name, const token& t) {
    value v;
    v.near = true;
    if (t.quoted || !parse(std::string_view(t.text).substr(1), v.number))
        wrong(name, "a number", t);
    return v;
}

value read_yes(std::string_view name, const token& t) {
    if (t.quoted || (t.text != "true" && t.text != "false"))
        wrong(name, "true or false", t);
    value v;
    v.yes = t.text == "true";
    return v;
}

value read_art(std::string_view name, const token& t) {
    for (std::size_t a = 0; !t.quoted && a < art_count; ++a) {
        if (hustle::name(static_cast<art>(a)) != t.text)
            continue;
        value v;
        v.picture = static_cast<art>(a);
        return v;
    }
    wrong(name, "the name of a picture", t);
}

value read_text(std::string_view name, const token& t) {
    if (!t.quoted)
        wrong(name, "a text in double quotes", t);
    value v;
    v.text = t.text;
    return v;
}

value read_screen(std::string_view name, const token& t) {
    value v;
    v.text = t.text;
    for (const screen_row& s : screen_rows())
        if (s.name == t.text)
            return v;
    wrong(name, "the name of a screen", t);
}

bool same_number(double found, const value& wanted) {
    return wanted.near ? std::abs(found - wanted.number) <= 0.005 : found == wanted.number;
}

} // namespace

value read_value(const slot& as, std::string_view name, const token& t, bool may_be_near) {
    const bool near = may_be_near && !t.quoted && t.text.starts_with('~');
    const auto number = [&](double least, double most, bool whole) {
        return near ? read_near(name, t) : read_number(name, t, t.text, least, most, whole);
    };
    constexpr double most_int = std::numeric_limits<int>::max();
    constexpr double most_single = std::numeric_limits<single>::max();
    return std::visit(each{
                          [&](const single*) { return number(-most_single, most_single, false); },
                          [&](const count*) { return number(-32768, 32767, true); },
                          [&](const int*) { return number(-most_int, most_int, true); },
                          [&](const colour*) { return number(0, 0xFFFFFF, true); },
                          [&](const word*) { return read_text(name, t); },
                          [&](const std::string*) { return read_text(name, t); },
                          [&](const bool*) { return read_yes(name, t); },
                          [&](const art*) { return read_art(name, t); },
                          [&](const panel*) { return read_screen(name, t); },
                      },
                      as);
}

bool holds(const slot& s, const value& wanted) {
    return std::visit(each{
                          [&](const single* v) { return same_number(static_cast<double>(*v), wanted); },
                          [&](const count* v) { return same_number(*v, wanted); },
                          [&](const int* v) { return same_number(*v, wanted); },
                          [&](const colour* v) { return same_number(*v, wanted); },
                          [&](const word* v) { return *v == wanted.text; },
                          [&](const std::string* v) { return *v == wanted.text; },
                          [&](const bool* v) { return *v == wanted.yes; },
                          [&](const art* v) { return *v == wanted.picture; },
                          [&](const panel* v) { return row(front(*v)).name == wanted.text; },
                      },
                      s);
}

long long read_whole(const token& t, std::string_view what, long long least, long long most) {
    long long number = 0;
    if (t.quoted || !parse(t.text, number))
        wrong(what, "a whole number", t);
    if (number < least || number > most)
        wrong(what, "a number from " + std::to_string(least) + " to " + std::to_string(most), t);
    return number;
}

std::uint64_t read_seed(const token& t, std::string_view what) {
    std::uint64_t number = 0;
    if (t.quoted || !parse(t.text, number))
        wrong(what, "a whole number of 64 bits", t);
    return number;
}

double read_decimal(const token& t, std::string_view what) {
    double number = 0;
    if (t.quoted || !parse(t.text, number))
        wrong(what, "a number", t);
    return number;
}

} // namespace hustle::script
