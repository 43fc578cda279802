#include "lab/sight.h"

#include "core/reels.h"

#include <array>

namespace hustle::lab {

namespace {

// The stop that a picture shows, by picture: every stop has one of its own.
constexpr std::array<std::uint8_t, art_count> no_stops{};

std::array<std::uint8_t, art_count> make_stops() {
    std::array<std::uint8_t, art_count> stops = no_stops;
    for (std::size_t n = 0; n < strip.size(); ++n)
        stops[static_cast<std::size_t>(strip[n].picture)] = static_cast<std::uint8_t>(n + 1);
    return stops;
}

} // namespace

int sight::stop(int reel) const {
    static const std::array<std::uint8_t, art_count> stops = make_stops();
    return stops[static_cast<std::size_t>(picture(nth(element::reel1, reel)))];
}

int sight::nudge_figure() const {
    const int figure = static_cast<int>(picture(element::picture1)) - static_cast<int>(art::nudge1) + 1;
    return figure >= 1 && figure <= 5 ? figure : 0;
}

int sight::nudge_ladder() const {
    switch (picture(element::picture1)) {
    case art::nudge1: return 1;
    case art::nudge12: return 2;
    case art::nudge123: return 3;
    case art::nudge1234: return 4;
    case art::nudge12345: return 5;
    default: return 0;
    }
}

int sight::die() const {
    const int face =
        static_cast<int>(picture(element::feature_dicepic)) - static_cast<int>(art::dice1pic) + 1;
    return face >= 1 && face <= 6 ? face : 0;
}

int sight::shots() const {
    int n = 0;
    for (const char c : caption(g.p, element::feature_shotbox))
        if (c >= '0' && c <= '9')
            n = n * 10 + (c - '0');
    return n;
}

int sight::bombs() const {
    int lit = 0;
    for (const element bomb : {element::feature_bomb1, element::feature_bomb2, element::feature_bomb3})
        lit += shows(bomb, art::bombiconlight);
    return lit;
}

int sight::cash_height() const {
    int rung = 0;
    while (rung < 10 && cash_lit(rung + 1))
        ++rung;
    return rung;
}

int sight::feature_height() const {
    int rung = 0;
    while (rung < 10 && feature_lit(rung + 1))
        ++rung;
    return rung;
}

int sight::gamble_rung() const {
    for (int rung = 1; rung <= 10; ++rung)
        if (cash_lit(rung))
            return rung;
    return 0;
}

word symbol_at(int stop) { return stop == 0 ? word{} : strip_stop(stop).symbol; }

} // namespace hustle::lab
