#include "script/reading.h"

#include "script/lexer.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace hustle::script {

namespace {

constexpr std::size_t longest_message = 400;

// Control characters, and the marks that turn the direction of writing.
bool misleads(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x61C || (c >= 0x200B && c <= 0x200F) ||
           (c >= 0x2028 && c <= 0x202E) || (c >= 0x2060 && c <= 0x206F) || c == 0xFEFF;
}

// The character at `i`, which is moved behind it; 0xFFFD for a byte that begins none.
char32_t next_character(std::string_view text, std::size_t& i) {
    const std::size_t length = character_at(text, i);
    if (length == 0) {
        ++i;
        return 0xFFFD;
    }
    const auto first = static_cast<unsigned char>(text[i]);
    char32_t c = length == 1 ? first : first & (0x7FU >> length);
    for (std::size_t k = 1; k < length; ++k)
        c = c << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3F);
    i += length;
    return c;
}

} // namespace

std::string read_script(std::istream& from, std::string& text, std::size_t most) {
    constexpr std::size_t piece = 1 << 20;
    text.clear();
    while (from && text.size() <= most) {
        const std::size_t had = text.size(), wanted = std::min(piece, most + 1 - had);
        text.resize(had + wanted);
        from.read(text.data() + had, static_cast<std::streamsize>(wanted));
        text.resize(had + static_cast<std::size_t>(from.gcount()));
    }
    if (text.size() > most)
        return "is longer than " + std::to_string(most) + " bytes";
    if (from.bad() || !from.eof())
        return "cannot be read";
    return text.find('\0') == std::string::npos ? "" : "is no text";
}

std::string read_script_file(const std::string& path, std::string& text, std::size_t most) {
    std::error_code unknown;
    const auto what = std::filesystem::status(path, unknown).type();
    if (what == std::filesystem::file_type::directory)
        return "is a folder";
    if (std::filesystem::exists(std::filesystem::file_status(what)) &&
        what != std::filesystem::file_type::regular)
        return "is a pipe or a device, not a file"; // it might keep its reader waiting, or never end
    std::ifstream file(path, std::ios::binary);
    return file ? read_script(file, text, most) : "cannot be read";
}

std::string printable(std::string_view message) {
    std::string shown;
    for (std::size_t i = 0; i < message.size();) {
        const std::size_t from = i;
        const char32_t c = next_character(message, i);
        if (shown.size() + (i - from) > longest_message)
            return shown + "...";
        if (c == 0xFFFD || misleads(c))
            shown += '?';
        else
            shown += message.substr(from, i - from);
    }
    return shown;
}

} // namespace hustle::script
