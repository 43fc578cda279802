#include "script/lexer.h"

namespace hustle::script {

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

// How many bytes a character takes by its first one; 0 where none may begin so.
std::size_t length_of(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first < 0xE0)
        return 2;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

// What a line must not hold: bytes that are no UTF-8, and control characters but the blanks.
void check_text(std::string_view line) {
    for (std::size_t i = 0; i < line.size();) {
        const std::size_t length = character_at(line, i);
        if (length == 0)
            throw script_error("the line is not UTF-8");
        const auto c = static_cast<unsigned char>(line[i]);
        if ((c < 0x20 && !is_blank(line[i])) || c == 0x7F)
            throw script_error("a control character stands in the line");
        i += length;
    }
}

char escaped(char c) {
    switch (c) {
    case '"': return '"';
    case '\\': return '\\';
    case 'r': return '\r';
    case 'n': return '\n';
    default: throw script_error(std::string("unknown escape \\") + c + " in a text");
    }
}

// Reads the text whose opening quote stands at `i`, and leaves `i` behind its closing quote.
token read_text(std::string_view line, std::size_t& i) {
    token result{{}, true};
    for (++i; i < line.size(); ++i) {
        if (line[i] == '"') {
            ++i;
            return result;
        }
        if (line[i] != '\\')
            result.text += line[i];
        else if (++i < line.size())
            result.text += escaped(line[i]);
    }
    throw script_error("a text has no closing quote");
}

token read_word(std::string_view line, std::size_t& i) {
    const std::size_t first = i;
    while (i < line.size() && !is_blank(line[i]) && line[i] != '#' && line[i] != '"')
        ++i;
    return {std::string(line.substr(first, i - first)), false};
}

} // namespace

std::size_t character_at(std::string_view text, std::size_t i) {
    const std::size_t length = length_of(static_cast<unsigned char>(text[i]));
    if (length == 0 || i + length > text.size())
        return 0;
    for (std::size_t k = 1; k < length; ++k)
        if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80)
            return 0;
    return length;
}

std::vector<token> words_of(std::string_view line) {
    check_text(line);
    std::vector<token> words;
    std::size_t i = 0;
    while (i < line.size() && line[i] != '#') {
        if (is_blank(line[i])) {
            ++i;
            continue;
        }
        words.push_back(line[i] == '"' ? read_text(line, i) : read_word(line, i));
        if (i < line.size() && !is_blank(line[i]) && line[i] != '#')
            throw script_error("a blank is missing before or behind a text in quotes");
    }
    return words;
}

std::string quote(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        switch (c) {
        case '"': result += "\\\""; break;
        case '\\': result += "\\\\"; break;
        case '\r': result += "\\r"; break;
        case '\n': result += "\\n"; break;
        default: result += c;
        }
    }
    return result += '"';
}

} // namespace hustle::script
