// The compensator's gates at the edges of their bands of pcent.
#include "core/nudges.h"
#include "core/reels.h"
#include "core/wins.h"
#include "tests/trailgame.h"

namespace hustle {
namespace {

struct gategame : trailgame {
    void at_percent(float percent, std::initializer_list<int> draws) {
        g.m.pcent = percent;
        world.draws = draws;
    }
    void reels_show(int a, int b, int c) {
        const int stops[] = {a, b, c};
        for (int which = 1; which <= 3; ++which)
            set_stop(g, which, stops[which - 1]);
    }
    bool offers_holds() {
        g.m.holdsoffered = flag::no;
        offerholds(g);
        return g.m.holdsoffered == flag::yes;
    }
};

// One in two up to 90, one in six above. A pair that is being held is kept going: pounds at 1 or 2, melons
// at 1 only. No offer, and no draw, on the Bonus lamp.
TEST(Gates, HoldsAreOfferedByWhatTheMachineHasPaid) {
    gategame t;
    struct {
        float percent;
        int draw;
        bool offered;
    } const rows[] = {{90, 3, true}, {90, 4, false}, {90.01f, 2, false}, {90.01f, 1, true}};
    for (const auto& r : rows) {
        t.at_percent(r.percent, {r.draw});
        EXPECT_EQ(t.offers_holds(), r.offered) << r.percent << " " << r.draw;
    }
    t.at_percent(90.01f, {6, 6, 6});
    t.reels_show(2, 7, 1);
    t.g.m.pairholds = 2;
    EXPECT_TRUE(t.offers_holds());
    t.reels_show(6, 13, 1);
    EXPECT_FALSE(t.offers_holds());
    t.g.m.pairholds = 1;
    EXPECT_TRUE(t.offers_holds());
    t.world.draws = {1};
    t.g.m.trailvalue = 4;
    EXPECT_FALSE(t.offers_holds());
    EXPECT_EQ(t.world.draws.size(), 1u);
}

// Skill up to 75, a draw above it, between 85 and 86 what it was; add nudges stand between whole numbers of
// percent for nothing, and above 95 for one without a draw.
TEST(Gates, NudgesAreOfferedByWhatTheMachineHasPaid) {
    struct {
        float percent;
        std::initializer_list<int> draws;
        int mode, nudges; // the mode before is 1
    } const rows[] = {
        {75, {3}, 3, 0}, {75.01f, {3, 2}, 2, 0}, {85.5f, {3}, 1, 0}, {90.5f, {3}, 1, 0}, {95.01f, {3}, 1, 1}};
    for (const auto& r : rows) {
        gategame t;
        t.g.m.nudgemode = 1;
        t.g.m.holdsoffered = flag::no;
        t.at_percent(r.percent, r.draws);
        offernudges(t.g);
        EXPECT_EQ(t.g.m.nudgemode, r.mode) << r.percent;
        EXPECT_EQ(t.g.m.nudges, r.nudges) << r.percent;
        EXPECT_TRUE(t.world.draws.empty()) << r.percent;
        EXPECT_EQ(t.runs(timer::addnudges), r.nudges > 0) << r.percent;
        EXPECT_EQ(t.runs(timer::skill_nudges), r.mode == 3) << r.percent;
        EXPECT_EQ(t.line() == "      RANDOM NUDGES", r.mode == 2) << r.percent;
    }
}

// A promise by one in three up to 85, without a draw's say between 85 and 85.1, one in six above; without a
// pair an offer stands alone.
TEST(Gates, APromiseIsMadeByWhatTheMachineHasPaid) {
    struct {
        float percent;
        int draw;
        bool pair, promised;
    } const rows[] = {
        {85.1f, 2, true, false}, {85, 2, true, true}, {85.05f, 6, true, true}, {80, 1, false, false}};
    for (const auto& r : rows) {
        gategame t;
        t.reels_show(5, r.pair ? 9 : 1, 1);
        if (!r.pair)
            reel(t.g.m, 3).sym = "bar";
        t.at_percent(r.percent, {r.draw});
        t.g.m.holdsoffered = flag::no;
        offerdontholdany(t.g);
        EXPECT_EQ(t.g.m.linepromised == truth::is, r.promised) << r.percent;
        EXPECT_EQ(t.g.m.holdsbarred == truth::is, r.promised) << r.percent;
        EXPECT_EQ(t.g.m.holdsoffered == flag::yes, r.percent != 85.1f) << r.percent;
    }
}

// A pair of sevens of two colours takes the word of the first reel named: mixed sevens.
TEST(Gates, APromiseOnTwoKindsOfSevensMakesMixedSevens) {
    gategame t;
    t.reels_show(8, 3, 1);
    reel(t.g.m, 1).held = reel(t.g.m, 2).held = flag::yes;
    t.g.m.linepromised = truth::is;
    spinforcedline(t.g);
    t.run(3000);
    EXPECT_TRUE(shows(t.g.p, element::reel3, art::psc));
    EXPECT_EQ(reel(t.g.m, 3).sym, "rseven");
    EXPECT_EQ(t.g.m.win, 1.6f);
    EXPECT_NE(t.g.m.linepromised, truth::is);
}

} // namespace
} // namespace hustle
