// The awards of the Bonus wheel, each taken from a run on stops 4, 5 and 2 (1 + 3) to lamp 4.
#include "tests/trailgame.h"

namespace hustle {
namespace {

using enum element;

TEST(Bonus, AddAgainAddsTheSameNumbers) {
    trailgame t;
    t.to_the_wheel();
    t.draw({8});
    t.run(150);
    EXPECT_EQ(t.line(), "      * ADD AGAIN *");
    t.press(stopper);
    EXPECT_TRUE(t.can(start));
    EXPECT_FALSE(t.can(stopper));
    t.draw({3});
    t.run(320);
    t.stands_at(8);
    EXPECT_TRUE(t.held());
}

// No stake, the old numbers gone, the 4 kept; without a number no second Bonus.
TEST(Bonus, RespinTakesNoStakeAndKeepsTheTrail) {
    trailgame t;
    t.to_the_wheel();
    t.draw({4});
    t.run(150);
    EXPECT_EQ(t.line(), "        * RESPIN *");
    t.draw({2, 6, 12, 1});
    const machine before = t.g.m;
    t.press(stopper);
    EXPECT_EQ(reel(t.g.m, 2).num, 0);
    EXPECT_FALSE(t.can(start));
    EXPECT_FALSE(t.runs(timer::init_trail_timer));
    t.run(5000);
    EXPECT_TRUE(t.can(start));
    EXPECT_EQ(t.g.m.credits, before.credits);
    EXPECT_EQ(t.g.m.moneyin, before.moneyin + 0.25f) << "it counts as a play all the same";
    EXPECT_FALSE(t.runs(timer::numbers2));
    t.stands_at(4);
}

// The runner moves each reel on, 3 4 1, 2 3 16, 1 2 15. The step to lamp 5 takes no hold chance.
TEST(Bonus, NumberRunnerStepsTheReelsUnderTheTrail) {
    trailgame t;
    t.to_the_wheel();
    t.draw({11});
    t.run(150);
    EXPECT_EQ(t.line(), "    * NUMBER RUNNER *");
    t.press(stopper);
    const std::uint64_t chances = t.world.state;
    t.run(1200);
    EXPECT_EQ(reel(t.g.m, 2).sym, "bar");
    EXPECT_EQ(t.g.m.trailvalue, 5);
    t.run(2400);
    EXPECT_EQ(reel(t.g.m, 1).pos, 1);
    EXPECT_EQ(reel(t.g.m, 2).pos, 2);
    EXPECT_TRUE(shows(t.g.p, reel3, art::spc));
    EXPECT_EQ(reel(t.g.m, 2).num, 0);
    EXPECT_FALSE(t.can(start));
    t.run(1200);
    EXPECT_TRUE(t.can(start));
    EXPECT_FALSE(t.runs(timer::numberrun));
    EXPECT_EQ(t.g.m.runnersteps, 0);
    EXPECT_EQ(t.world.state, chances) << "nothing is drawn";
    EXPECT_FALSE(t.held());
    t.stands_at(5);
}

// Nudges by pcent: 5 up to 70, a draw of 5 up to 85, a draw of 3 above.
TEST(Bonus, NudgesGoByWhatTheMachineHasPaid) {
    struct {
        float pcent;
        std::initializer_list<int> draws;
        int nudges;
    } const rows[] = {{70, {}, 5}, {70.01f, {2}, 2}, {85, {4}, 4}, {85.01f, {3}, 3}};
    for (const auto& r : rows) {
        trailgame t;
        t.to_the_wheel();
        t.draw({7});
        t.run(150);
        EXPECT_EQ(t.line(), "        * NUDGES *");
        t.g.m.pcent = r.pcent;
        t.draw(r.draws);
        t.press(stopper);
        EXPECT_EQ(t.g.m.nudges, r.nudges) << r.pcent;
        EXPECT_TRUE(t.world.draws.empty());
        ASSERT_TRUE(t.until(timer::nudgetimer));
        for (int n = r.nudges; n > 0; --n) { // down: no number, no line
            EXPECT_FALSE(t.can(start));
            t.press(hold1);
        }
        EXPECT_EQ(reel(t.g.m, 1).pos, (4 - r.nudges + 15) % 16 + 1);
        t.run(2000);
        EXPECT_TRUE(t.can(start));
        EXPECT_EQ(t.g.m.trailvalue, 4);
    }
}

// Up to 75 percent Trail Boost overrules its draw, and the full trail opens the board; above it climbs by
// the draw, a lamp each 200 ms.
TEST(Bonus, TrailBoostClimbsByItsDrawOrToTheTop) {
    trailgame t;
    t.to_the_wheel();
    t.draw({5});
    t.run(150);
    EXPECT_EQ(t.line(), "     * TRAIL BOOST *");
    t.g.m.pcent = 75.01f;
    t.draw({3});
    t.press(stopper);
    EXPECT_EQ(t.g.m.trailvalue, 7);
    t.run(400);
    EXPECT_EQ(t.lamp(6), lit);
    EXPECT_EQ(t.lamp(7), dark);
    EXPECT_FALSE(t.can(start));
    t.run(200);
    t.stands_at(7);
    EXPECT_TRUE(t.can(start));
    EXPECT_FALSE(t.runs(timer::bonusnumbers));

    trailgame top;
    top.to_the_wheel();
    top.draw({5});
    top.run(150);
    top.g.m.pcent = 75;
    top.draw({2});
    top.press(stopper);
    EXPECT_TRUE(top.world.draws.empty());
    EXPECT_EQ(top.g.m.boostcount, 5);
    EXPECT_EQ(top.g.m.trailvalue, 9);
    top.run(800);
    EXPECT_EQ(top.lamp(8), lit);
    EXPECT_EQ(top.lamp(9), dark);
    EXPECT_FALSE(top.runs(timer::feature_start));
    top.run(200);
    EXPECT_TRUE(top.runs(timer::feature_start));
    EXPECT_FALSE(top.can(start));
    top.reaches_the_ring();
    top.run(195);
    EXPECT_EQ(top.line(), "      * FULL TRAIL *");
}

TEST(Bonus, SuperBoostDrawsNothingAndOpensTheRing) {
    trailgame t;
    t.to_the_wheel();
    t.draw({6});
    t.run(150);
    EXPECT_EQ(t.line(), "     * SUPER BOOST *");
    t.g.m.pcent = 200;
    const std::uint64_t chances = t.world.state;
    t.press(stopper);
    EXPECT_EQ(t.g.m.trailvalue, 9);
    EXPECT_EQ(t.world.state, chances);
    t.reaches_the_ring();
    EXPECT_EQ(t.g.m.featuremode, mode::hilo);
    ASSERT_TRUE(t.until(timer::feature_butflash));
    EXPECT_EQ(t.g.m.featuremode, mode::feature);
}

TEST(Bonus, TrailClimberMissedAtOnceLeavesADarkTrailAndNoHoldChance) {
    trailgame t;
    t.to_the_wheel();
    t.draw({3});
    t.run(150);
    EXPECT_EQ(t.line(), "    * TRAIL CLIMBER *");
    t.press(stopper);
    EXPECT_TRUE(t.can(stopper));
    const std::uint64_t chances = t.world.state;
    t.press(stopper);
    EXPECT_EQ(t.world.state, chances);
    t.stands_at(0);
    EXPECT_TRUE(t.can(start));
}

TEST(Bonus, SpinAWinIsOneSpin) {
    trailgame t;
    t.to_the_wheel();
    t.draw({9});
    t.run(150);
    EXPECT_EQ(t.line(), "      * SPIN A WIN *");
    t.press(stopper);
    EXPECT_EQ(t.g.m.award, award::winspins);
    EXPECT_EQ(t.g.m.winspinsleft, 1);
    EXPECT_TRUE(t.runs(timer::start_winspins));
    EXPECT_FALSE(t.can(stopper));
}

} // namespace
} // namespace hustle
