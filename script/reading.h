// A script as it comes in: whole, of a bounded size, and text.
#pragma once

#include <istream>
#include <string>
#include <string_view>

namespace hustle::script {

inline constexpr std::size_t longest_script = 16 << 20; // bytes of a stranger's
inline constexpr std::size_t longest_of_lab = 1000
                                              << 20; // bytes: a machine of the lab that was played for days

// Reads a whole script. Returns what is wrong with it, empty where nothing is: it cannot be read, is
// longer than `most` bytes, is no text, or is named and is no plain file.
std::string read_script(std::istream&, std::string& text, std::size_t most = longest_script);
std::string read_script_file(const std::string& path, std::string& text, std::size_t most = longest_script);

// A message with no control characters in it (each stands as a "?"), cut where it grows too long to
// be read.
std::string printable(std::string_view message);

} // namespace hustle::script
