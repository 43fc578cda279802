#include "lab/program/progress.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

namespace hustle::lab {

namespace {

std::string duration(double seconds) {
    const auto s = std::lround(seconds);
    char text[32];
    if (s >= 3600)
        std::snprintf(text, sizeof text, "%ld h %02ld min", s / 3600, s / 60 % 60);
    else if (s >= 60)
        std::snprintf(text, sizeof text, "%ld min %02ld s", s / 60, s % 60);
    else
        std::snprintf(text, sizeof text, "%ld s", s);
    return text;
}

} // namespace

double seconds_since(std::chrono::steady_clock::time_point then) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - then).count();
}

void progress::draw(std::uint64_t done) const {
    if (!on_terminal)
        return;
    constexpr int width = 30;
    const double seconds = std::max(seconds_since(began), 0.001);
    const double rate = static_cast<double>(done) / seconds;
    const double share =
        static_cast<double>(before + done) / static_cast<double>(std::max<std::uint64_t>(wanted, 1));
    const int filled = std::clamp(static_cast<int>(share * width), 0, width);
    const std::string bar = std::string(static_cast<std::size_t>(filled), '#') +
                            std::string(static_cast<std::size_t>(width - filled), '.');
    const double left = static_cast<double>(wanted - std::min(wanted, before + done));
    std::fprintf(stderr, "\r\033[K[%s] %5.1f %%  %.0f plays a second  %s left", bar.c_str(), 100 * share,
                 rate, rate > 0 ? duration(left / rate).c_str() : "?");
    std::fflush(stderr);
}

void progress::clear() const {
    if (on_terminal)
        std::fputs("\r\033[K", stderr);
}

} // namespace hustle::lab
