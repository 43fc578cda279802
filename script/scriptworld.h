// The world of a script: draws that repeat, answers and files from the script, and a record of all
// that the machine asked for.
#pragma once

#include "panel/world.h"

#include <array>
#include <cstdint>
#include <deque>
#include <string>

namespace hustle::script {

inline constexpr std::size_t longest_log = 16 << 20; // bytes, of sounds, of commands or of boxes

enum class answer : std::uint8_t { yes, no, ok };

// What a script and its trace call a command for the tune: "open ...", "play mid1 from 0", "stop mid1",
// "close mid1".
std::string_view command_text(tune);

struct scriptworld final : world {
    struct stored {
        bool there = false;
        std::string text; // empty where there is none
    };

    std::uint64_t generator = 1;
    std::deque<long long> draws; // the next results, before the generator
    std::deque<answer> answers;  // of the next boxes
    std::array<stored, 2> files;
    bool ended = false;

    // The logs since the start or the last `forget`. One that has grown longer than `longest_log` is
    // written no further, and is refused where it is asked for.
    std::string sounds;   // names, a blank between
    std::string commands; // of the tune, ";" between
    std::string boxes;    // title|text, ";" between
    int drawn = 0;        // no further than an int counts

    // The effects of the running event as trace lines, while a trace is written.
    bool telling = false;
    std::string effects;

    stored& file(store s) { return files[static_cast<std::size_t>(s)]; }
    void forget();

    int draw(int n) override;
    void play(sound) override;
    void midi(tune) override;
    bool box(const message&) override;
    void wait(int ms) override;
    std::optional<std::string> read(store) override;
    bool write(store, std::string_view text) override;
    std::string set_aside(store) override;
    void browse(page) override;
    bool system_info() override { return false; }
    std::string currency(float amount) override;
    void exit() override;

private:
    template <class... Words> void tell(const Words&... words);
};

} // namespace hustle::script
