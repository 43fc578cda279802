// Writes JSON text whose bytes depend on the values alone: no locale, no library's way of printing.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace hustle::lab {

struct jsontext {
    std::string out;
    bool first = true; // nothing stands in the open bracket yet

    void open(char bracket) { begin().push_back(bracket), first = true; }
    void close(char bracket) {
        break_line();
        out.push_back(bracket);
        first = false;
    }
    void key(std::string_view name) {
        text(name);
        out.push_back(':');
        first = true;
    }
    void text(std::string_view value) { // of letters, figures and plain marks
        begin().push_back('"');
        out.append(value).push_back('"');
    }
    void whole(std::uint64_t value) { begin() += std::to_string(value); }
    void negative_or_whole(std::int64_t value) { begin() += std::to_string(value); }
    void truth(bool value) { begin() += value ? "true" : "false"; }
    void nothing() { begin() += "null"; }
    // So many decimals, trailing noughts left out; what is no number is nothing.
    void real(double value, int decimals = 6) {
        if (!std::isfinite(value)) {
            nothing();
            return;
        }
        const double scale = std::pow(10.0, decimals);
        const std::int64_t scaled = std::llround(value * scale);
        const auto unit = static_cast<std::int64_t>(scale);
        std::string& to = begin();
        if (scaled < 0)
            to.push_back('-');
        to += std::to_string(std::abs(scaled) / unit);
        std::string part = std::to_string(std::abs(scaled) % unit);
        part.insert(0, static_cast<std::size_t>(decimals) - part.size(), '0');
        while (!part.empty() && part.back() == '0')
            part.pop_back();
        if (!part.empty())
            to.append(".").append(part);
    }
    void line() { broken = true; } // what comes next stands on a new line

private:
    bool broken = false;

    void break_line() {
        if (broken)
            out.push_back('\n');
        broken = false;
    }
    std::string& begin() {
        if (!first)
            out.push_back(',');
        first = false;
        break_line();
        return out;
    }
};

} // namespace hustle::lab
