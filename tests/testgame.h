// A machine for the tests: booted to main, in a world that can be told its next draws.
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
    std::vector<std::string> boxes; // the texts of the boxes shown
    bool yes = false;               // the answer to a question

    int draw(int n) override {
        if (draws.empty())
            return stillworld::draw(n);
        const int k = draws.front();
        draws.pop_front();
        return k;
    }
    bool box(const message& m) override {
        boxes.emplace_back(m.text);
        return m.yes_or_no ? yes : true;
    }
};

struct testgame {
    testworld world;
    game g{world};

    testgame() { start(); }
    void start() {
        reset_game(g, 43200000);
        boot(g);
        run(350);
    }
    void run(int ms) { deliver(g, g.p.now + ms); }
    bool press(element e) { return apply(g, {.what = input::kind::press, .on = e}); }
};

} // namespace hustle
