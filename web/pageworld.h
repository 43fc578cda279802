// The page's side of the machine's contract with the world: most of it is passed on to the page,
// and all of it is noted, so that a session can be told as a script.
#pragma once

#include "panel/world.h"
#include "script/scriptworld.h"
#include "web/record.h"

#include <cstdint>
#include <deque>

namespace hustle::web {

struct pageworld final : world {
    std::uint64_t state = 1;     // of the generator
    bool repeats = false;        // the clock is kept out of the draws
    std::deque<int> answers;     // of the next boxes: 0 no, 1 yes, 2 ok
    bool answers_itself = false; // a box with no answer waiting is not shown
    script::scriptworld said;    // what a script's logs would hold, and the stored files
    record past;

    int draw(int n) override;
    void play(sound) override;
    void midi(tune) override;
    bool box(const message&) override;
    void wait(int ms) override;
    std::optional<std::string> read(store) override;
    bool write(store, std::string_view text) override;
    std::string set_aside(store) override;
    void browse(page) override;
    bool system_info() override;
    std::string currency(float amount) override;
    void exit() override;
};

} // namespace hustle::web
