#include "sounds/tone.h"

#include "sounds/synth.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace hustle::sounds {
namespace {

constexpr double turn = 2 * std::numbers::pi;

// The step of a square or saw, rounded so that it does not whistle: `at` and `width` in turns.
double corner(double at, double width) {
    if (at < width) {
        const double x = at / width;
        return x + x - x * x - 1;
    }
    if (at > 1 - width) {
        const double x = (at - 1) / width;
        return x * x + x + x + 1;
    }
    return 0;
}

double oscillate(shape wave, double phase, double width, dice& d) {
    const double at = phase - std::floor(phase);
    switch (wave) {
    case shape::sine: return std::sin(turn * phase);
    case shape::triangle: return 4 * std::abs(at - 0.5) - 1;
    case shape::square: {
        const double half = at < 0.5 ? at + 0.5 : at - 0.5;
        return (at < 0.5 ? 1 : -1) + corner(at, width) - corner(half, width);
    }
    case shape::saw: return 2 * at - 1 - corner(at, width);
    case shape::noise: return static_cast<double>(d.next());
    }
    return 0;
}

// A filter of two stages: what lies below its corner, or the band around it.
struct filter {
    double low = 0, band = 0;
    double pass(double in, double hz, double edge, bool want_band) {
        const double g = std::tan(std::numbers::pi * std::min(hz, 0.45 * rate) / rate);
        const double k = 1 / edge;
        const double middle = (band + g * (in - low)) / (1 + g * (g + k));
        const double bottom = low + g * middle;
        band = 2 * middle - band;
        low = 2 * bottom - low;
        return want_band ? middle * k : bottom;
    }
};

double envelope(const instrument& who, double t, double length) {
    const auto ms = [](int n) { return n / 1000.0; };
    const double hold = who.sustain / 100.0;
    const double in = std::min(1.0, t / ms(who.attack));
    const double fall = hold + (1 - hold) * std::exp(-std::max(0.0, t - ms(who.attack)) / ms(who.decay));
    const double out = t < length ? 1 : std::max(0.0, 1 - (t - length) / ms(who.release));
    return in * fall * out * out;
}

void add_plain_note(std::vector<float>& wave, const instrument& who, const note& what, dice& d) {
    const double seconds = what.length + who.release / 1000.0;
    const auto first = static_cast<std::size_t>(what.at * rate);
    const auto count = static_cast<std::size_t>(seconds * rate);
    wave.resize(std::max(wave.size(), first + count), 0.0F);
    const colour_of_tone& c = who.colour;
    const bool noise = who.wave == shape::noise;
    const double side = std::exp2(c.detune / 1200.0);
    double phase = 0, second = 0.37;
    filter f;
    for (std::size_t i = 0; i < count; ++i) {
        const double t = static_cast<double>(i) / rate;
        const double semitones = what.key - 69 + what.slide * std::min(1.0, t / what.length) +
                                 c.drop * std::exp(-t * 1000 / c.dropfall) +
                                 c.tremble / 100.0 * std::sin(turn * t * static_cast<double>(c.rate));
        const double hz = std::min(440 * std::exp2(semitones / 12), 0.45 * rate);
        phase += hz / rate;
        second += hz * side / rate;
        double bend = 0;
        if (c.ratio > 0)
            bend = static_cast<double>(c.depth) * std::exp(-t * 1000 / c.depthfall) *
                   std::sin(turn * phase * static_cast<double>(c.ratio)) / turn;
        double out = oscillate(who.wave, phase + bend, hz / rate, d);
        if (c.detune != 0)
            out = 0.6 * (out + oscillate(who.wave, second + bend, hz / rate, d));
        if (c.bright > 0)
            out = f.pass(out, hz * static_cast<double>(c.bright), static_cast<double>(c.edge), noise);
        wave[first + i] += static_cast<float>(out * envelope(who, t, what.length)) * what.level;
    }
}

} // namespace

float dice::next() {
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    return static_cast<float>(state) / 2147483648.0F - 1;
}

void add_note(std::vector<float>& wave, const instrument& who, const note& what, dice& d) {
    const colour_of_tone& c = who.colour;
    if (c.grains == 0) {
        add_plain_note(wave, who, what, d);
        return;
    }
    const int grains = static_cast<int>(what.length * c.grains);
    for (int i = 0; i < grains; ++i) {
        const double where = (static_cast<double>(d.next()) + 1) / 2;
        // They come up fast and go off slowly.
        const double rise = std::min(1.0, where * 8), fade = 1 - where * where;
        note grain = what;
        grain.at += where * what.length;
        grain.key += d.next() * static_cast<float>(c.spread);
        grain.length = 3 * who.decay / 1000.0;
        grain.level *= static_cast<float>(rise * fade) * (0.35F + 0.65F * std::abs(d.next()));
        add_plain_note(wave, who, grain, d);
    }
}

} // namespace hustle::sounds
