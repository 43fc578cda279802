// A word of the machine: the symbol of a reel, a flag, a mode, an answer.
#pragma once

#include <concepts>
#include <string>
#include <string_view>

namespace hustle {

// A view of a literal, or of a text that a file or a script brought and somebody keeps. Compared exactly,
// letter by letter; but two are most often one literal, which shows without a look at the letters.
struct word : std::string_view {
    constexpr word() = default;
    constexpr word(const char* text) : std::string_view(text) {}
    constexpr word(std::string_view text) : std::string_view(text) {}
    word(const std::string& text) : std::string_view(text) {}
};
constexpr bool operator==(word a, word b) {
    return a.size() == b.size() &&
           (a.data() == b.data() || std::char_traits<char>::compare(a.data(), b.data(), a.size()) == 0);
}
template <std::same_as<std::string_view> Text> constexpr bool operator==(word a, Text b) {
    return a == word(b);
}

} // namespace hustle
