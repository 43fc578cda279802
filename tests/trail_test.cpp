// The trail's games: its runs, the Trail Climber, Trail Skill and Stopper, the Selector.
#include "tests/trailgame.h"

namespace hustle {
namespace {

using enum element;

// Runs to each lamp from real stops. After the stops come the draws of the hold offer, the nudge event and
// the trail hold.
TEST(Trail, RunsToTheSumOfItsNumbers) {
    struct {
        int height;
        std::initializer_list<int> draws;
    } const runs[] = {{1, {4, 2, 6, 6, 1, 8}},  {2, {14, 2, 6, 6, 1, 8}}, {3, {9, 2, 6, 6, 1, 8}},
                      {5, {14, 5, 2, 6, 1, 8}}, {6, {5, 9, 2, 6, 1, 8}},  {7, {5, 9, 11, 6, 1, 8}},
                      {8, {5, 9, 14, 6, 1, 8}}};
    for (const auto& r : runs) {
        trailgame t;
        t.draw(r.draws);
        t.press(start);
        ASSERT_TRUE(t.until(timer::numbers2));
        t.run(80 * r.height - 1);
        EXPECT_EQ(t.lamp(r.height), dark) << r.height;
        t.run(1);
        t.stands_at(r.height);
        t.run(80);
        t.stands_at(r.height);
        EXPECT_FALSE(t.runs(timer::numbers2));
        EXPECT_FALSE(t.held());
    }
}

// The Trail Climber, missed a tick after the last catch: each pair before is worth its two lamps.
TEST(TrailClimber, StaysBelowThePairThatIsMissed) {
    struct {
        int pairs, hold_draw;
    } const misses[] = {{0, 1}, {1, 4}, {2, 1}, {3, 5}, {4, 3}};
    for (const auto& m : misses) {
        trailgame t;
        t.bonus({8, 3});
        for (int i = 0; i < m.pairs; ++i) {
            t.run(150);
            t.press(stopper);
            EXPECT_EQ(t.g.m.climbpair, i + 2);
        }
        t.run(m.pairs == 0 ? 300 : 0); // lit and dark again
        t.draw({m.hold_draw});
        t.press(stopper);
        const bool again = m.pairs == 2; // lamp 4: a second Bonus
        t.stands_at(2 * m.pairs);
        EXPECT_EQ(t.g.m.climbpair, 1);
        EXPECT_FALSE(t.runs(timer::trailclimb));
        EXPECT_EQ(t.held(), m.pairs > 0 && !again) << m.pairs;
        EXPECT_EQ(t.can(start), !again);
        EXPECT_EQ(t.can(stopper), again);
        EXPECT_EQ(t.runs(timer::start_bonus), again);
    }
}

TEST(TrailClimber, LeadsToTheRingWhenAllPairsAreCaught) {
    trailgame t;
    t.bonus({8, 3});
    for (int i = 0; i < 5; ++i) {
        t.run(150);
        t.press(stopper);
    }
    EXPECT_EQ(t.g.m.climbpair, 1);
    EXPECT_FALSE(t.runs(timer::trailclimb));
    EXPECT_FALSE(t.can(stopper));
    EXPECT_TRUE(t.runs(timer::feature_start));
    t.reaches_the_ring();
}

// One lamp runs from the one above lamp 4, 40 ms each.
TEST(TrailSkill, LandsOnTheLampThatIsTaken) {
    trailgame t;
    t.bonus({1});
    EXPECT_EQ(t.lamp(4), dark);
    EXPECT_EQ(interval(t.g.p, timer::trailskill), 40);
    t.run(40);
    EXPECT_EQ(t.lamp(5), lit);
    t.run(280);
    EXPECT_EQ(t.g.m.trailtarget, 3);
    t.press(stopper);
    EXPECT_TRUE(t.can(start));
    EXPECT_EQ(t.lamp(3), dark);
    t.draw({4}); // held, by one in two
    t.run(240);
    t.stands_at(3);
    EXPECT_TRUE(t.held());

    trailgame nine;
    nine.bonus({1});
    nine.run(200);
    nine.press(stopper);
    EXPECT_EQ(nine.lamp(9), dark);
    nine.run(720);
    EXPECT_TRUE(nine.runs(timer::feature_start));
    nine.reaches_the_ring();
}

TEST(TrailSkill, OnFourGivesABonusAnewAndBeforeAnyLampGivesStartBack) {
    trailgame t;
    t.bonus({8, 1});
    t.run(360);
    t.draw({1});
    t.press(stopper);
    EXPECT_FALSE(t.can(start));
    ASSERT_TRUE(t.until(timer::start_bonus));
    EXPECT_FALSE(t.can(start));

    trailgame early;
    early.g.m.trailtarget = 0;
    start_timer(early.g.p, timer::trailskill);
    enable(early.g.p, stopper);
    disable(early.g.p, start);
    early.press(stopper);
    EXPECT_TRUE(early.can(start));
    EXPECT_FALSE(early.runs(timer::numbers2));
}

TEST(TrailStopper, StandsOnItsLampWithoutAHold) {
    trailgame t;
    t.bonus({10});
    EXPECT_TRUE(t.runs(timer::trailstopper));
    t.draw({5, 5, 2});
    t.run(150);
    EXPECT_EQ(t.lamp(9), lit);
    t.run(75);
    EXPECT_EQ(t.lamp(9), dark);
    t.press(stopper);
    EXPECT_TRUE(t.can(start));
    t.run(160);
    EXPECT_EQ(t.lamp(6), lit);
    EXPECT_EQ(t.lamp(7), dark);
    EXPECT_FALSE(t.runs(timer::numbers2));
    EXPECT_FALSE(t.held());

    // On 9: lamps 5 to 8 walk up, then the run-up.
    trailgame nine;
    nine.to_the_wheel();
    nine.draw({8, 10});
    nine.run(300);
    nine.draw({5});
    nine.press(stopper);
    nine.run(75);
    nine.press(stopper);
    EXPECT_FALSE(nine.can(start));
    nine.run(320);
    EXPECT_EQ(nine.lamp(8), lit);
    EXPECT_FALSE(nine.runs(timer::feature_start));
    nine.run(80);
    EXPECT_TRUE(nine.runs(timer::feature_start));
    nine.reaches_the_ring();
}

// Ten jumps, a draw each, no height twice running, then it ends by itself.
TEST(Selector, EndsByItselfAtTheTenthJump) {
    trailgame t;
    t.bonus({2});
    EXPECT_EQ(t.g.m.trailvalue, 0);
    t.draw({3, 3, 7});
    t.run(1000);
    t.stands_at(7);
    t.draw({2});
    t.run(500);
    t.stands_at(2);
    t.draw({9, 1, 5, 6, 7, 8});
    t.run(3000);
    EXPECT_TRUE(t.runs(timer::selector));
    t.draw({5});
    t.run(500);
    EXPECT_TRUE(t.world.draws.empty()) << "a draw each";
    EXPECT_FALSE(t.runs(timer::selector));
    EXPECT_EQ(t.g.m.selectorticks, 0);
    t.stands_at(5);
    EXPECT_TRUE(t.can(start));
    EXPECT_FALSE(t.can(stopper));
    EXPECT_FALSE(t.held());
}

// From 90 percent on lamp 9 becomes 8, and 8 may follow 8.
TEST(Selector, KeepsLampNineFromAMachineThatHasPaidMuch) {
    trailgame t;
    t.bonus({8, 2});
    t.g.m.pcent = 90;
    t.draw({9, 9, 1, 2, 1, 2, 1, 2, 1});
    t.run(1000);
    t.stands_at(8);
    t.run(3500);
    t.draw({4, 10}); // ending on 4 it brings a Bonus: by chance a True Skill one
    t.run(500);
    EXPECT_TRUE(t.runs(timer::start_superbonus));
    EXPECT_FALSE(t.can(start));

    for (const bool taken : {true, false}) {
        trailgame below;
        below.bonus({8, 2});
        below.g.m.pcent = 89.99f;
        below.draw(taken ? std::initializer_list<int>{9}
                         : std::initializer_list<int>{1, 2, 1, 2, 1, 2, 1, 2, 1, 9});
        below.run(taken ? 500 : 5000);
        if (taken)
            below.press(stopper);
        EXPECT_TRUE(below.runs(timer::feature_start)) << taken;
        below.reaches_the_ring();
    }
}

TEST(Selector, TakenOnFourBringsABonusAndElsewhereStart) {
    trailgame t;
    t.bonus({8, 2});
    t.draw({6});
    t.run(500);
    t.draw({4, 1});
    t.run(500);
    t.press(stopper);
    EXPECT_TRUE(t.runs(timer::start_bonus));
    t.stands_at(4);
    t.take({8, 2});
    t.draw({6});
    t.run(500);
    t.press(stopper);
    EXPECT_TRUE(t.can(start));
    t.stands_at(6);
    EXPECT_EQ(t.g.m.selectorticks, 0);

    trailgame early; // before the first jump
    early.bonus({8, 2});
    early.press(stopper);
    early.stands_at(0);
    EXPECT_TRUE(early.can(start));
}

} // namespace
} // namespace hustle
