// The waves and the tune that the synthesiser makes.
#include "panel/sheet.h"
#include "sounds/notes.h"
#include "sounds/synth.h"
#include "sounds/tune.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using hustle::sound;
namespace sounds = hustle::sounds;

int loudest(const std::vector<std::int16_t>& wave) {
    int most = 0;
    for (const int x : wave)
        most = std::max(most, std::abs(x));
    return most;
}

TEST(Waves, EachHasABodyAndQuietEndsAndIsNoOther) {
    std::set<std::string> all;
    for (std::size_t i = 0; i < hustle::sound_count; ++i) {
        const auto wave = static_cast<sound>(i);
        SCOPED_TRACE(hustle::name(wave));
        const auto samples = sounds::render(wave);
        EXPECT_GT(samples.size(), sounds::rate / 20U);
        EXPECT_LT(samples.size(), sounds::rate * 6U);
        EXPECT_EQ(loudest(samples) == 0, wave == sound::none);
        EXPECT_TRUE(wave == sound::none || loudest(samples) > 32767 / 6);
        EXPECT_LE(loudest(samples), 32767 * 71 / 100); // -3 dB
        ASSERT_FALSE(samples.empty());
        EXPECT_LT(std::abs(int{samples.front()}), 40);
        EXPECT_LT(std::abs(int{samples.back()}), 40);
        EXPECT_TRUE(all.insert(sounds::wave_file(samples)).second);
    }
    EXPECT_EQ(all.size(), 49U);
}

// What runs at every few ticks must have said its say when the next one cuts it.
TEST(Waves, ThePayoutFitsItsTick) {
    EXPECT_LT(sounds::render(sound::win2bank).size(), sounds::rate * 80U / 1000U);
}

// How strong each third of an octave is in each twentieth of a second.
constexpr std::size_t bands = 24, frame = sounds::rate / 20;
using imprint = std::vector<std::array<double, bands>>;

imprint imprint_of(const std::vector<std::int16_t>& wave) {
    imprint all((wave.size() + frame - 1) / frame);
    for (std::size_t band = 0; band < bands; ++band) {
        const double turn = 6.283185307179586 * 73.4 * std::pow(2.0, band / 3.0) / sounds::rate;
        const double width = std::sin(turn) / 8; // of a resonator that rings four times
        double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
        for (std::size_t i = 0; i < wave.size(); ++i) {
            const double x = wave[i];
            const double y = (width * (x - x2) + 2 * std::cos(turn) * y1 - (1 - width) * y2) / (1 + width);
            x2 = std::exchange(x1, x);
            y2 = std::exchange(y1, y);
            all[i / frame][band] += y * y;
        }
        for (auto& moment : all)
            moment[band] = std::sqrt(moment[band] / frame);
    }
    return all;
}

// 0: the same to a fifth of a second's shift and a volume; 1: nothing in common.
double apart(const imprint& a, const imprint& b) {
    const auto product = [](const imprint& p, const imprint& q, std::ptrdiff_t shift) {
        double sum = 0;
        for (std::size_t i = 0; i < p.size(); ++i) {
            const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(i) + shift;
            if (at >= 0 && at < std::ssize(q))
                sum = std::inner_product(p[i].begin(), p[i].end(), q[static_cast<std::size_t>(at)].begin(),
                                         sum);
        }
        return sum;
    };
    double likeness = 0;
    for (std::ptrdiff_t shift = -4; shift <= 4; ++shift)
        likeness = std::max(likeness, product(a, b, shift));
    return 1 - likeness / std::sqrt(product(a, a, 0) * product(b, b, 0));
}

double loudest_moment(const std::vector<std::int16_t>& wave) {
    double most = 0;
    for (std::size_t first = 0; first + frame <= wave.size(); first += frame / 2) {
        double sum = 0;
        for (std::size_t i = first; i < first + frame; ++i)
            sum += static_cast<double>(wave[i]) * wave[i];
        most = std::max(most, 10 * std::log10(sum / frame)); // dB
    }
    return most;
}

// Whoever loses often hears five ends of a game, not one; and none is louder than the others.
TEST(Waves, TheGameOversAreToldApartAndLevelled) {
    constexpr sound set[] = {sound::gameover, sound::gameover1, sound::gameover2, sound::gameover3,
                             sound::gameover4};
    std::vector<imprint> heard;
    double least = 1000, most = 0;
    for (const sound wave : set) {
        const auto samples = sounds::render(wave);
        for (std::size_t i = 0; i < heard.size(); ++i)
            EXPECT_GT(apart(imprint_of(samples), heard[i]), 0.33) << hustle::name(wave) << ' ' << i;
        heard.push_back(imprint_of(samples));
        least = std::min(least, loudest_moment(samples));
        most = std::max(most, loudest_moment(samples));
    }
    EXPECT_LT(most - least, 2);
}

TEST(Waves, TheFileSaysWhatItHolds) {
    const std::string file = sounds::wave_file({1, -2, 300});
    EXPECT_EQ(file.size(), 44U + 6U);
    EXPECT_EQ(file.substr(0, 4) + file.substr(8, 8) + file.substr(36, 4), "RIFFWAVEfmt data");
    EXPECT_EQ(file.substr(44), std::string("\x01\x00\xFE\xFF\x2C\x01", 6));
}

TEST(Notes, AreReadAsWritten) {
    std::string_view text = "  a4:7 c#5+bb3 . d5>a4";
    auto s = sounds::next_step(text);
    ASSERT_TRUE(s);
    EXPECT_EQ(s->keys[0], 69);
    EXPECT_EQ(s->length, 7);
    s = sounds::next_step(text);
    EXPECT_EQ(s->count, 2);
    EXPECT_EQ(s->keys[0], 73);
    EXPECT_EQ(s->keys[1], 58);
    EXPECT_EQ(sounds::next_step(text)->count, 0);
    EXPECT_EQ(sounds::next_step(text)->slide, -5);
    EXPECT_FALSE(sounds::next_step(text));
}

// Each stretch of the tune fills its bars to the sixteenth.
TEST(Tune, StretchesFillTheirBars) {
    for (const auto& p : sounds::parts()) {
        std::string text(p.notes);
        std::replace(text.begin(), text.end(), '|', ' ');
        std::string_view rest = text;
        int length = 0, sum = 0, count = 0;
        while (const auto s = sounds::next_step(rest)) {
            length = s->length > 0 ? s->length : length;
            sum += length;
            count += s->count;
        }
        EXPECT_EQ(sum, p.bars * 16) << "bar " << p.bar << ": " << p.notes;
        EXPECT_GT(count, 0) << p.notes;
    }
    for (const auto& b : sounds::beats())
        EXPECT_EQ(b.bar_text.size(), 16U) << "bar " << b.bar << ": " << b.bar_text;
}

// A reader of MIDI files that knows what our writer may write.
struct reader {
    std::string_view bytes;
    unsigned take() {
        if (bytes.empty()) {
            ADD_FAILURE() << "the file ends too early";
            return 0;
        }
        const auto value = static_cast<unsigned char>(bytes.front());
        bytes.remove_prefix(1);
        return value;
    }
    unsigned number(int size) {
        unsigned value = 0;
        while (size-- > 0)
            value = value << 8 | take();
        return value;
    }
    unsigned short_number() {
        unsigned value = 0, byte = 0x80;
        while ((byte & 0x80) != 0 && !bytes.empty())
            value = value << 7 | ((byte = take()) & 0x7F);
        return value;
    }
    std::string_view chunk(std::string_view kind) {
        EXPECT_EQ(bytes.substr(0, 4), kind);
        number(4);
        const std::size_t size = number(4);
        EXPECT_LE(size, bytes.size());
        const std::string_view inside = bytes.substr(0, size);
        bytes.remove_prefix(inside.size());
        return inside;
    }
};

struct track_facts {
    unsigned length = 0; // ticks
    int notes = 0;
    bool ended = false;
};

track_facts read_track(reader r) {
    track_facts facts;
    std::map<unsigned, int> sounding;
    while (!r.bytes.empty() && !facts.ended) {
        facts.length += r.short_number();
        const unsigned status = r.take();
        const unsigned first = r.take();
        if (status == 0xFF) {
            for (unsigned size = r.short_number(); size > 0; --size)
                r.take();
            facts.ended = first == 0x2F;
        } else if (status >> 4 == 9) {
            EXPECT_GT(r.take(), 0U);
            EXPECT_EQ(++sounding[first], 1) << "key " << first << " struck twice at " << facts.length;
            ++facts.notes;
        } else if (status >> 4 == 8) {
            r.take();
            EXPECT_EQ(--sounding[first], 0) << "key " << first << " at " << facts.length;
        } else if (status >> 4 == 0xB) {
            r.take();
        } else {
            EXPECT_EQ(status >> 4, 0xCU);
        }
    }
    EXPECT_TRUE(r.bytes.empty());
    EXPECT_TRUE(
        std::all_of(sounding.begin(), sounding.end(), [](const auto& key) { return key.second == 0; }));
    return facts;
}

TEST(Tune, IsASoundMidiFileOfAMinuteAndMore) {
    const std::string file = sounds::tune_file();
    reader r{file};
    reader head{r.chunk("MThd")};
    EXPECT_EQ(head.number(2), 1U);
    const unsigned tracks = head.number(2);
    EXPECT_EQ(tracks, sounds::player_count + 1);
    EXPECT_EQ(head.number(2), 4U * sounds::ticks_a_sixteenth);
    unsigned longest = 0;
    for (unsigned i = 0; i < tracks; ++i) {
        const auto facts = read_track({r.chunk("MTrk")});
        EXPECT_TRUE(facts.ended);
        EXPECT_TRUE(i == 0 || facts.notes > 10);
        longest = std::max(longest, facts.length);
    }
    EXPECT_TRUE(r.bytes.empty());
    const unsigned seconds = longest / (4 * sounds::ticks_a_sixteenth) * 60 / sounds::beats_a_minute;
    EXPECT_GE(seconds, 60U);
    EXPECT_LE(seconds, 150U);
}

} // namespace
