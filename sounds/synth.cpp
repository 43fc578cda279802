#include "sounds/synth.h"

#include "sounds/notes.h"
#include "sounds/score.h"
#include "sounds/tone.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace hustle::sounds {
namespace {

constexpr float ceiling = 0.7F;   // -3 dB: the loudest sample
constexpr float loudness = 0.24F; // of the loudest 80 ms of a wave, as a mean
constexpr float silence = 0.0015F;
constexpr std::size_t rest = rate / 10; // samples of a wave that has no notes: it only ends what plays

void play_phrase(std::vector<float>& wave, const phrase& p, dice& d) {
    double at = p.at / 1000.0;
    std::string_view text = p.notes;
    while (const auto s = next_step(text)) {
        const int length = s->length > 0 ? s->length : p.length;
        for (int i = 0; i < s->count; ++i)
            add_note(wave, row(p.who),
                     {.key = static_cast<float>(s->keys[static_cast<std::size_t>(i)]),
                      .slide = static_cast<float>(s->slide),
                      .at = at,
                      .length = length / 1000.0,
                      .level = static_cast<float>(p.level) / 100},
                     d);
        at += p.step / 1000.0;
    }
}

// The echo of a wooden cabinet: four loops of unequal length, and two that blur them.
void add_room(std::vector<float>& wave, int percent) {
    if (percent == 0)
        return;
    wave.resize(wave.size() + rate / 2, 0.0F);
    std::vector<float> echo(wave.size(), 0.0F);
    for (const std::size_t length : {1116U, 1277U, 1422U, 1557U}) {
        std::vector<float> loop(length, 0.0F);
        float soft = 0;
        for (std::size_t i = 0; i < wave.size(); ++i) {
            float& slot = loop[i % length];
            echo[i] += slot;
            soft = 0.65F * slot + 0.35F * soft;
            slot = wave[i] + 0.72F * soft;
        }
    }
    for (const std::size_t length : {556U, 225U}) {
        std::vector<float> loop(length, 0.0F);
        for (std::size_t i = 0; i < echo.size(); ++i) {
            float& slot = loop[i % length];
            const float out = slot - 0.5F * echo[i];
            slot = echo[i] + 0.5F * out;
            echo[i] = out;
        }
    }
    for (std::size_t i = 0; i < wave.size(); ++i)
        wave[i] += echo[i] * static_cast<float>(percent) / 400;
}

// Takes away what is too low to hear and would only eat the room below the ceiling.
void lift(std::vector<float>& wave) {
    float before = 0, out = 0;
    for (float& x : wave) {
        out = x - before + 0.995F * out;
        before = x;
        x = out;
    }
}

float loudest_stretch(const std::vector<float>& wave) {
    constexpr std::size_t window = rate * 80 / 1000;
    float most = 0;
    for (std::size_t first = 0; first < wave.size(); first += window / 2) {
        float sum = 0;
        for (std::size_t i = first; i < std::min(first + window, wave.size()); ++i)
            sum += wave[i] * wave[i];
        most = std::max(most, std::sqrt(sum / window));
    }
    return most;
}

// Brings a wave to the common loudness; what would pass the ceiling bends under it.
void level(std::vector<float>& wave, int decibels) {
    float peak = 0;
    for (const float x : wave)
        peak = std::max(peak, std::abs(x));
    const float least = 1e-6F;
    const float up = std::pow(10.0F, static_cast<float>(decibels) / 20);
    const float gain =
        up * std::min(loudness / std::max(loudest_stretch(wave), least), 1.1F / std::max(peak, least));
    for (float& x : wave)
        x = ceiling * std::tanh(gain * x / ceiling);
}

// Ends the wave where it has died away, and smooths both ends down to nothing.
void trim(std::vector<float>& wave) {
    while (!wave.empty() && std::abs(wave.back()) < silence)
        wave.pop_back();
    const std::size_t in = rate / 2000, out = std::min<std::size_t>(rate / 50, wave.size() / 4);
    for (std::size_t i = 0; i < std::min(in, wave.size()); ++i)
        wave[i] *= static_cast<float>(i) / in;
    for (std::size_t i = 0; i < out; ++i)
        wave[wave.size() - 1 - i] *= static_cast<float>(i) / static_cast<float>(out);
}

void put(std::string& bytes, std::uint32_t value, int count) {
    for (; count > 0; --count, value >>= 8)
        bytes += static_cast<char>(value & 0xFF);
}

} // namespace

std::vector<std::int16_t> render(sound which) {
    std::vector<float> wave;
    dice d{0x9E3779B9U + static_cast<std::uint32_t>(which) * 7919U};
    for (const auto score : {reel_score(), board_score()})
        for (const phrase& p : score)
            if (p.wave == which)
                play_phrase(wave, p, d);
    if (wave.empty())
        return std::vector<std::int16_t>(rest, 0);
    const finish f = finish_of(which);
    add_room(wave, f.room);
    lift(wave);
    level(wave, f.level);
    trim(wave);
    std::vector<std::int16_t> samples;
    samples.reserve(wave.size());
    for (const float x : wave)
        samples.push_back(static_cast<std::int16_t>(std::lround(x * 32767)));
    return samples;
}

std::string wave_file(const std::vector<std::int16_t>& samples) {
    const auto size = static_cast<std::uint32_t>(samples.size() * 2);
    std::string bytes = "RIFF";
    put(bytes, 36 + size, 4);
    bytes += "WAVEfmt ";
    put(bytes, 16, 4);
    put(bytes, 1, 2); // plain samples
    put(bytes, 1, 2); // mono
    put(bytes, rate, 4);
    put(bytes, rate * 2, 4);
    put(bytes, 2, 2);
    put(bytes, 16, 2);
    bytes += "data";
    put(bytes, size, 4);
    for (const std::int16_t x : samples)
        put(bytes, static_cast<std::uint16_t>(x), 2);
    return bytes;
}

} // namespace hustle::sounds
