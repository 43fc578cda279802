#include "panel/text.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
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

void add_digits(short_text& text, unsigned number) {
    char* const end = text.data.data() + text.data.size() - 1;
    text.length = static_cast<std::size_t>(std::to_chars(text.data.data() + text.length, end, number).ptr -
                                           text.data.data());
}

// "Fixed" form of an amount below a thousand that lies clearly nearer to one penny than to the next:
// for it no decimal has to be found first. False for any other.
bool whole_pence(float amount, short_text& text) {
    const double pence = std::abs(static_cast<double>(amount)) * 100;
    if (!(pence < 100000))
        return false;
    const auto below = static_cast<unsigned>(pence);
    const double rest = pence - below;
    if (rest > 0.49 && rest < 0.51) // a half to the last place of a single
        return false;
    const unsigned nearest = rest < 0.5 ? below : below + 1;
    if (amount < 0 && nearest > 0)
        text.add("-");
    add_digits(text, nearest / 100);
    char* const end = text.data.data() + text.length;
    end[0] = '.';
    end[1] = static_cast<char>('0' + nearest % 100 / 10);
    end[2] = static_cast<char>('0' + nearest % 10);
    text.length += 3;
    return true;
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

short_text plain(float value) {
    short_text text;
    if (value >= 0 && value < 1e6F && value == static_cast<float>(static_cast<unsigned>(value))) {
        add_digits(text, static_cast<unsigned>(value));
        return text;
    }
    const auto [end, error] = std::to_chars(text.data.data(), text.data.data() + text.data.size() - 1, value,
                                            std::chars_format::fixed);
    text.length = static_cast<std::size_t>(end - text.data.data());
    if (std::string_view(text) == "-0") {
        text.length = 0;
        text.add("0");
    }
    return text;
}

short_text plain(int value) {
    short_text text;
    const auto [end, error] = std::to_chars(text.data.data(), text.data.data() + text.data.size() - 1, value);
    text.length = static_cast<std::size_t>(end - text.data.data());
    return text;
}

std::optional<float> number_at(std::string_view text, std::string_view& rest) {
    float value = 0;
#ifdef __cpp_lib_to_chars
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{})
        return std::nullopt;
    rest = text.substr(static_cast<std::size_t>(end - text.data()));
#else // a library that reads whole numbers alone: strtof rounds as exactly, of what may stand in a decimal
    const short_text decimal = text.substr(0, text.find_first_not_of("0123456789.-eE+"));
    short_text closed = decimal;
    closed.data[closed.length] = '\0';
    char* end = nullptr;
    errno = 0;
    value = std::strtof(closed.data.data(), &end);
    if (end == closed.data.data() || closed.data[0] == '+' ||
        (errno == ERANGE && (value == 0 || std::isinf(value))))
        return std::nullopt;
    rest = text.substr(static_cast<std::size_t>(end - closed.data.data()));
#endif
    return value;
}

short_text fixed(float amount) {
    short_text text;
    if (!whole_pence(amount, text)) {
        const signed_amount parts = amount_of(amount);
        text.add(parts.sign).add(parts.size);
    }
    return text;
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
