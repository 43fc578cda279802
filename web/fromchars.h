// The WebAssembly toolchain's standard library reads no single from characters (libc++ has it from 20 on);
// the machine does so in its stored files and its belt. Every file of the module is compiled with this before
// it, so that no file of the machine knows of it.
#pragma once
#include <charconv>
#include <cstdlib>
#include <string>
namespace std {
inline from_chars_result from_chars(const char* first, const char* last, float& value) {
    const string text(first, last);
    char* end = nullptr;
    if (first == last || (*first != '-' && *first != '.' && (*first < '0' || *first > '9')))
        return {first, errc::invalid_argument};
    const float v = strtof(text.c_str(), &end);
    if (end == text.c_str())
        return {first, errc::invalid_argument};
    value = v;
    return {first + (end - text.c_str()), errc{}};
}
inline from_chars_result from_chars(const char* first, const char* last, double& value) {
    const string text(first, last);
    char* end = nullptr;
    if (first == last || (*first != '-' && *first != '.' && (*first < '0' || *first > '9')))
        return {first, errc::invalid_argument};
    const double v = strtod(text.c_str(), &end);
    if (end == text.c_str())
        return {first, errc::invalid_argument};
    value = v;
    return {first + (end - text.c_str()), errc{}};
}
} // namespace std
