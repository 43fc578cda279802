// A machine that has booted, the eye on it, and a hand on its keys.
#pragma once

#include "core/upward.h"
#include "screens/events.h"
#include "show/stage.h"
#include "tests/testgame.h"

#include <gtest/gtest.h>

#include <functional>

namespace hustle {

inline constexpr int space = 32;

struct showgame : testing::Test, testgame {
    stage s;

    void SetUp() override {
        boot_up();
        testgame::run(50);
        look();
    }
    void look() {
        take_in(s, g, g.p.now);
        for (element_state& e : g.p.elements)
            e.touched = false;
        advance(s, g, g.p.now);
        s.patches.clear();
    }
    // Lets the machine run, looking at it every millisecond.
    void run(
        int ms, const std::function<void()>& each = [] {}) {
        for (int i = 0; i < ms; ++i) {
            deliver(g, g.p.now + 1);
            look();
            each();
        }
    }
    bool key(int code) {
        const bool taken =
            apply(g, {input::kind::key, is_loaded(g.p, screen::feature) ? screen::feature : screen::main,
                      element::total, code});
        settle(g);
        return taken;
    }
    void open_board(std::string_view mode, single win) {
        g.m.win = win;
        g.m.featuremode = mode;
        load_screen(g, screen::feature);
        settle(g);
    }
    // A game on the board that waits for its stop button.
    void open_stop(word award, timer waits, int ms) {
        open_board("feature", 1);
        run(2000);
        g.m.award = award;
        start_timer(g.p, waits);
        enable(g.p, element::feature_stopfeature);
        run(ms);
    }
};

} // namespace hustle
