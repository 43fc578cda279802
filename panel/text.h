// Text of figures, made without allocating.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace hustle {

// A text of at most 255 bytes that is built by adding to its end; what does not fit is dropped.
struct short_text {
    std::array<char, 256> data;
    std::size_t length = 0;

    short_text() {} // NOLINT: `data` is written before it is read
    short_text(std::string_view text) { add(text); }
    operator std::string_view() const { return {data.data(), length}; }
    std::size_t room(std::size_t wanted) const { return std::min(wanted, data.size() - 1 - length); }
    short_text& add(std::string_view text) {
        length = static_cast<std::size_t>(std::copy_n(text.data(), room(text.size()), data.data() + length) -
                                          data.data());
        return *this;
    }
    short_text& blanks(int n) { // none where n is 0 or below
        if (n > 0)
            length = static_cast<std::size_t>(
                std::fill_n(data.data() + length, room(static_cast<std::size_t>(n)), ' ') - data.data());
        return *this;
    }
};

// "Fixed" form: two decimals, at least one digit before the point, no currency sign: "3.60".
// Rounded to the nearest, halves away from zero, from the shortest decimal that stands for the
// stored value; a result of nought has no minus sign.
short_text fixed(float amount);
// The shortest plain decimal that reads back to the same 32-bit value, never with an exponent:
// "20", "0.2", "80.19802".
short_text plain(float value);
short_text plain(int value);
// The 32-bit value nearest to a decimal at the start of `text`, which has no blank and no plus in front;
// `rest` is what stands behind the number. Nothing where there is no number or none so large or small.
std::optional<float> number_at(std::string_view text, std::string_view& rest);
// An amount in pounds as the UK writes it: "£1,234.50", "-£0.80".
short_text uk_currency(float amount);

} // namespace hustle
