#include "sounds/notes.h"

#include <cstddef>

namespace hustle::sounds {
namespace {

constexpr int semitones[] = {9, 11, 0, 2, 4, 5, 7}; // a to g, above c

bool take(std::string_view& text, char c) {
    if (text.empty() || text.front() != c)
        return false;
    text.remove_prefix(1);
    return true;
}

int take_number(std::string_view& text) {
    int value = 0;
    for (; !text.empty() && text.front() >= '0' && text.front() <= '9'; text.remove_prefix(1))
        value = value * 10 + (text.front() - '0');
    return value;
}

std::optional<int> take_key(std::string_view& text) {
    if (text.empty() || text.front() < 'a' || text.front() > 'g')
        return std::nullopt;
    int key = semitones[text.front() - 'a'];
    text.remove_prefix(1);
    if (take(text, '#'))
        ++key;
    else if (take(text, 'b'))
        --key;
    return key + 12 * (take_number(text) + 1);
}

} // namespace

std::optional<step> next_step(std::string_view& text) {
    while (take(text, ' ')) {
    }
    if (text.empty())
        return std::nullopt;
    std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(word.size());
    step s;
    if (!take(word, '.'))
        do {
            const auto key = take_key(word);
            if (!key)
                return step{};
            s.keys[static_cast<std::size_t>(s.count++)] = *key;
        } while (s.count < static_cast<int>(s.keys.size()) && take(word, '+'));
    if (take(word, '>'))
        if (const auto end = take_key(word))
            s.slide = *end - s.keys[0];
    if (take(word, ':'))
        s.length = take_number(word);
    return s;
}

} // namespace hustle::sounds
