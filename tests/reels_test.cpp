#include "core/play.h"
#include "core/reels.h"
#include "core/wins.h"
#include "tests/testgame.h"

#include <gtest/gtest.h>

#include <map>

namespace hustle {
namespace {

void hold(game& g, bool one, bool two, bool three) {
    reel(g.m, 1).held = one ? "yes" : "no";
    reel(g.m, 2).held = two ? "yes" : "no";
    reel(g.m, 3).held = three ? "yes" : "no";
}

// Plays many free spins under one pattern of holds and counts the lines that fall.
int lines_fallen(testgame& t, bool one, bool two, bool three, int pairholds) {
    game& g = t.g;
    int fallen = 0;
    for (int i = 0; i < 20000; ++i) {
        hold(g, false, false, false);
        set_stop(g, 1, 1 + i % 16);
        set_stop(g, 2, 1 + i / 16 % 16);
        set_stop(g, 3, 1 + i / 256 % 16);
        const bool stood = all_alike(g.m);
        hold(g, one, two, three);
        g.m.pairholds = static_cast<count>(pairholds);
        drawreel1(g);
        drawreel2(g);
        drawreel3(g);
        const bool line = all_alike(g.m);
        fallen += line && !stood;
    }
    return fallen;
}

TEST(Reels, AFreeReelFallsIntoALineOnlyWhereNothingRedraws) {
    testgame t;
    EXPECT_EQ(lines_fallen(t, false, false, false, 0), 0);
    EXPECT_EQ(lines_fallen(t, false, false, false, 3), 0);
    EXPECT_EQ(lines_fallen(t, true, true, false, 2), 0);
    EXPECT_EQ(lines_fallen(t, true, false, false, 0), 0);
    EXPECT_EQ(lines_fallen(t, false, true, false, 1), 0);
    EXPECT_EQ(lines_fallen(t, false, true, true, 0), 0);
    EXPECT_GT(lines_fallen(t, true, true, false, 3), 0) << "a pair held three plays running";
    EXPECT_GT(lines_fallen(t, true, false, true, 0), 0) << "reel 2 does not redraw";
    EXPECT_GT(lines_fallen(t, false, false, true, 0), 0);
}

TEST(Reels, MixedSevensFallByTheDrawAlone) {
    testgame t;
    t.world.draws = {8, 14, 3};
    hold(t.g, false, false, false);
    drawreel1(t.g);
    drawreel2(t.g);
    drawreel3(t.g);
    EXPECT_TRUE(t.world.draws.empty());
    checkline(t.g);
    EXPECT_EQ(t.g.m.win, 1.6f);
}

TEST(Wins, EveryLinePaysItsPrizeAndNothingElseDoes) {
    testgame t;
    game& g = t.g;
    std::map<single, int> paid;
    for (int a = 1; a <= 16; ++a)
        for (int b = 1; b <= 16; ++b)
            for (int c = 1; c <= 16; ++c) {
                set_stop(g, 1, a);
                set_stop(g, 2, b);
                set_stop(g, 3, c);
                g.m.win = 0;
                checkline(g);
                ++paid[g.m.win];
            }
    // By the number of stops that carry each symbol: one bell, two of each seven and so on.
    const std::map<single, int> wanted = {{15.0f, 1}, {8.0f, 8},  {6.0f, 8},  {5.0f, 8},         {4.0f, 8},
                                          {2.0f, 27}, {1.0f, 64}, {1.6f, 48}, {0.0f, 4096 - 172}};
    EXPECT_EQ(paid, wanted);
}

TEST(Play, ThreeHeldReelsStandStillAndCountTheirNumbersAgain) {
    testgame t;
    for (int which = 1; which <= 3; ++which)
        set_stop(t.g, which, 4); // bars, with a 1 each: no line is looked for on the way
    reel(t.g.m, 3).sym = "melon";
    hold(t.g, true, true, true);
    t.g.m.pairholds = 2;
    const single in = t.g.m.moneyin;
    t.press(element::start);
    EXPECT_EQ(t.g.m.pairholds, 0);
    t.run(40);
    EXPECT_EQ(t.g.m.moneyin, in + 0.25f);
    EXPECT_EQ(t.g.m.trailvalue, 3);
    EXPECT_EQ(reel(t.g.m, 1).held, "no");
}

} // namespace
} // namespace hustle
