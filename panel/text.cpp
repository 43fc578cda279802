#include "panel/text.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace hustle {

namespace {

// Adds one to the last digit of a plain decimal number without sign, carrying to the left.
void round_up(short_text& digits) {
    for (std::size_t i = digits.length; i-- > 0;) {
        char& c = digits.data[i];
        if (c == '.')
            continue;
        if (c != '9') {
            ++c;
            return;
        }
        c = '0';
    }
    std::memmove(digits.data.data() + 1, digits.data.data(), digits.length);
    digits.data[0] = '1';
    ++digits.length;
}

// A plain decimal without sign, cut and rounded to two decimals, halves upward.
short_text two_decimals(std::string_view number) {
    const std::size_t point = std::min(number.find('.'), number.size());
    const std::string_view decimals = point < number.size() ? number.substr(point + 1) : std::string_view{};
    short_text result(number.substr(0, point));
    result.add(".").add(decimals.substr(0, 2));
    for (std::size_t have = decimals.size(); have < 2; ++have)
        result.add("0");
    if (decimals.size() > 2 && decimals[2] >= '5')
        round_up(result);
    return result;
}

// The two parts of an amount: its sign ("-" or nothing) and its size to two decimals.
struct signed_amount {
    std::string_view sign;
    short_text size;
};

signed_amount amount_of(float amount) {
    const short_text number = plain(amount);
    std::string_view digits = number;
    const bool negative = digits.starts_with('-');
    if (negative)
        digits.remove_prefix(1);
    signed_amount result{negative ? "-" : "", two_decimals(digits)};
    if (std::string_view(result.size).find_first_not_of("0.") == std::string_view::npos)
        result.sign = "";
    return result;
}

} // namespace

short_text& short_text::add(std::string_view text) {
    const std::size_t room = std::min(text.size(), data.size() - 1 - length);
    std::copy_n(text.data(), room, data.data() + length);
    length += room;
    return *this;
}

short_text& short_text::blanks(int n) {
    for (; n > 0; --n)
        add(" ");
    return *this;
}

short_text plain(float value) {
    short_text text;
    const auto [end, error] = std::to_chars(text.data.data(), text.data.data() + text.data.size() - 1, value,
                                            std::chars_format::fixed);
    text.length = static_cast<std::size_t>(end - text.data.data());
    return std::string_view(text) == "-0" ? short_text("0") : text;
}

short_text plain(int value) {
    short_text text;
    const auto [end, error] = std::to_chars(text.data.data(), text.data.data() + text.data.size() - 1, value);
    text.length = static_cast<std::size_t>(end - text.data.data());
    return text;
}

short_text fixed(float amount) {
    const signed_amount parts = amount_of(amount);
    short_text text(parts.sign);
    return text.add(parts.size);
}

short_text uk_currency(float amount) {
    const signed_amount parts = amount_of(amount);
    const std::string_view size = parts.size;
    const std::size_t whole = size.find('.');
    short_text text(parts.sign);
    text.add("£");
    for (std::size_t i = 0; i < whole; ++i) {
        if (i > 0 && (whole - i) % 3 == 0)
            text.add(",");
        text.add(size.substr(i, 1));
    }
    return text.add(size.substr(whole));
}

} // namespace hustle
