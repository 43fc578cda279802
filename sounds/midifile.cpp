#include "sounds/notes.h"
#include "sounds/tune.h"

#include <algorithm>
#include <vector>

namespace hustle::sounds {
namespace {

constexpr int lead_in = 2 * ticks_a_sixteenth;          // ticks of quiet before the first bar
constexpr int accents[] = {8, -8, 0, -6, 4, -8, 0, -6}; // velocity by sixteenth of a half bar

struct event {
    int at;    // ticks from the start
    int order; // at the same tick: lower first
    std::string bytes;
};

std::string bytes(std::initializer_list<int> values) {
    std::string text;
    for (const int v : values)
        text += static_cast<char>(v);
    return text;
}

std::string big_endian(std::uint32_t value, int count) {
    std::string text;
    for (int i = count - 1; i >= 0; --i)
        text += static_cast<char>(value >> (8 * i) & 0xFF);
    return text;
}

// A number in as few bytes as it needs, seven bits each, all but the last marked.
std::string short_number(int value) {
    std::string text(1, static_cast<char>(value & 0x7F));
    for (value >>= 7; value > 0; value >>= 7)
        text.insert(text.begin(), static_cast<char>((value & 0x7F) | 0x80));
    return text;
}

std::string chunk(std::string_view kind, const std::string& inside) {
    return std::string(kind) + big_endian(static_cast<std::uint32_t>(inside.size()), 4) + inside;
}

std::string track(std::vector<event> events) {
    std::stable_sort(events.begin(), events.end(), [](const event& a, const event& b) {
        return a.at != b.at ? a.at < b.at : a.order < b.order;
    });
    std::string inside;
    int now = 0;
    for (const event& e : events) {
        inside += short_number(e.at - now) + e.bytes;
        now = e.at;
    }
    return chunk("MTrk", inside + bytes({0, 0xFF, 0x2F, 0}));
}

void add_note(std::vector<event>& events, int channel, int key, int velocity, int at, int length) {
    const int accent = accents[static_cast<std::size_t>(at / ticks_a_sixteenth % 8)];
    const int loud = std::clamp(velocity + accent, 1, 127);
    events.push_back({lead_in + at, 2, bytes({0x90 | channel, key, loud})});
    events.push_back({lead_in + at + length, 1, bytes({0x80 | channel, key, 64})});
}

void add_part(std::vector<event>& events, int channel, const part& p) {
    for (int again = 0; again < p.times; ++again) {
        int at = (p.bar + again * p.bars) * ticks_a_bar;
        int sixteenths = 0;
        std::string_view text = p.notes;
        while (text = text.substr(std::min(text.find_first_not_of(" |"), text.size())), !text.empty()) {
            const auto s = next_step(text);
            if (s->length > 0)
                sixteenths = s->length;
            const int length = sixteenths * ticks_a_sixteenth;
            for (int i = 0; i < s->count; ++i)
                add_note(events, channel, s->keys[static_cast<std::size_t>(i)], p.velocity, at,
                         length - ticks_a_sixteenth / 4);
            at += length;
        }
    }
}

void add_beat(std::vector<event>& events, int channel, const beat& b) {
    for (int bar = b.bar; bar < b.bar + b.bars; ++bar)
        for (std::size_t i = 0; i < b.bar_text.size(); ++i)
            if (b.bar_text[i] != '.')
                add_note(events, channel, b.key, b.bar_text[i] == 'x' ? b.velocity : b.velocity * 6 / 10,
                         bar * ticks_a_bar + static_cast<int>(i) * ticks_a_sixteenth, ticks_a_sixteenth / 2);
}

std::string player_track(player who) {
    const seat& s = band()[static_cast<std::size_t>(who)];
    const std::string title(s.name);
    std::vector<event> events = {
        {0, 0, bytes({0xFF, 0x03}) + short_number(static_cast<int>(title.size())) + title},
        {0, 0, bytes({0xC0 | s.channel, s.program})},
        {0, 0, bytes({0xB0 | s.channel, 7, s.volume})},
        {0, 0, bytes({0xB0 | s.channel, 10, s.side})},
        {0, 0, bytes({0xB0 | s.channel, 91, s.room})},
    };
    for (const part& p : parts())
        if (p.who == who)
            add_part(events, s.channel, p);
    if (who == player::drums)
        for (const beat& b : beats())
            add_beat(events, s.channel, b);
    return track(std::move(events));
}

} // namespace

std::string tune_file() {
    const std::string title = "Hoard Hustle";
    const std::uint32_t beat_length = 60000000 / beats_a_minute; // microseconds
    std::string file = chunk("MThd", big_endian(1, 2) + big_endian(player_count + 1, 2) +
                                         big_endian(4 * ticks_a_sixteenth, 2));
    file += track({{0, 0, bytes({0xFF, 0x03, static_cast<int>(title.size())}) + title},
                   {0, 0, bytes({0xFF, 0x51, 3}) + big_endian(beat_length, 3)},
                   {0, 0, bytes({0xFF, 0x58, 4, 4, 2, 24, 8})}});
    for (std::size_t i = 0; i < player_count; ++i)
        file += player_track(static_cast<player>(i));
    return file;
}

} // namespace hustle::sounds
