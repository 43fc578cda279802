// The machine of all tests, in a world that can be told its next draws and keeps what it was asked.
#pragma once

#include "core/start.h"
#include "panel/stillworld.h"
#include "screens/dispatch.h"

#include <deque>
#include <string>
#include <vector>

namespace hustle {

struct testworld : stillworld {
    std::deque<int> draws;          // these come before the generator's
    std::vector<std::string> boxes; // the boxes shown: title, a bar, text
    std::vector<page> pages;        // the pages opened
    bool yes = false;               // the answer to a question
    bool has_system_info = false;
    std::string money; // how the system writes an amount; empty: as in the UK

    int draw(int n) override {
        if (draws.empty())
            return stillworld::draw(n);
        const int k = draws.front();
        draws.pop_front();
        return k;
    }
    bool box(const message& m) override {
        boxes.push_back(std::string(m.title) + "|" + std::string(m.text));
        return m.yes_or_no ? yes : true;
    }
    void browse(page which) override { pages.push_back(which); }
    bool system_info() override { return has_system_info; }
    std::string currency(float amount) override {
        return money.empty() ? stillworld::currency(amount) : money;
    }
};

struct testgame {
    testworld world;
    game g{world};

    testgame() { boot_up(); } // booted, with main in front
    // As it stands before any screen is loaded, with the generator at a seed.
    explicit testgame(std::uint64_t seed) {
        world.state = seed;
        reset_game(g, 0);
    }
    void boot_up() {
        reset_game(g, 43200000);
        boot(g);
        run(350);
    }
    void run(int ms) { deliver(g, g.p.now + ms); }
    // Delivers ticks until a timer runs; false where a minute of the machine's has passed first.
    bool until(timer t) {
        const std::int64_t end = g.p.now + 60'000;
        for (timer tick{}; !is_running(g.p, t);)
            if (!deliver_one(g, end, tick))
                return false;
        return true;
    }
    bool press(element e) { return apply(g, {.what = input::kind::press, .on = e}); }
};

} // namespace hustle
