// A game as a player comes to the Bonus: from Start through a run to lamp 4 to the turning wheel.
#pragma once

#include "tests/testgame.h"

#include <gtest/gtest.h>

namespace hustle {

inline constexpr colour lit = 255, dark = 192;

struct trailgame : testgame {
    void draw(std::initializer_list<int> results) { world.draws.insert(world.draws.end(), results); }
    // A first play whose stops and chances run to lamp 4, up to the turning wheel.
    void to_the_wheel() {
        draw({4, 5, 2, 1, 1});
        press(element::start);
        ASSERT_TRUE(until(timer::bonus_timer));
    }
    // The wheel turns by these results, one each 150 ms, and the last one is taken.
    void take(std::initializer_list<int> turns) {
        ASSERT_TRUE(until(timer::bonus_timer));
        draw(turns);
        run(150 * static_cast<int>(turns.size()));
        press(element::stopper);
    }
    void bonus(std::initializer_list<int> turns) {
        to_the_wheel();
        take(turns);
    }
    bool runs(timer t) const { return is_running(g.p, t); }
    bool can(element e) const { return is_enabled(g.p, e); }
    std::string_view line() const { return caption(g.p, element::displayline); }
    bool held() const { return is_visible(g.p, element::trailheld); }
    colour lamp(int n) const { return back(g.p, nth(element::numberone, n)); }
    // The trail stands at a height, to the lamp.
    void stands_at(int n) const {
        EXPECT_EQ(g.m.trailvalue, n);
        for (int i = 1; i <= 9; ++i)
            EXPECT_EQ(lamp(i), i <= n ? lit : dark) << "lamp " << i << " of " << n;
    }
    void reaches_the_ring() {
        ASSERT_TRUE(until(timer::feature_start));
        EXPECT_EQ(g.m.win, 1);
        stands_at(9);
        EXPECT_FALSE(held());
    }
};

} // namespace hustle
