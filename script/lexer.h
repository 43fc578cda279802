// The words of a panel script's line, and how text is written in it.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace hustle::script {

// What is wrong with a line; the runner tells it with the place and ends.
struct script_error : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct token {
    std::string text;    // a bare word, or what stands between the quotes, escapes resolved
    bool quoted = false; // it was written in double quotes
};

// The words of one line; none for an empty line or one that holds a comment alone. Throws
// script_error for a text without its end, an unknown escape, bytes that are no UTF-8, or a control
// character.
std::vector<token> words_of(std::string_view line);

// How many bytes the UTF-8 character takes that begins at `i`, which is below the size; 0 where none
// begins.
std::size_t character_at(std::string_view text, std::size_t i);

// A text as a script writes it: in double quotes, with \" \\ \r \n.
std::string quote(std::string_view text);

// A word as a script writes it.
inline std::string written(const token& t) { return t.quoted ? quote(t.text) : t.text; }

} // namespace hustle::script
