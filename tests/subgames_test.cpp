// The sub-games of the board: the belts' prices, and the long-run shares of the three lights that
// run at random, each against the shares that its rules give.
//
// The walks remember where they stood, so that samples are taken far enough apart to be independent.
#include "core/ticks.h"
#include "subgames/belts.h"
#include "subgames/subgames.h"
#include "tests/chisquare.h"
#include "tests/testgame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace hustle {
namespace {

template <class Step, class Read> std::map<int, int> sample(int samples, int gap, Step step, Read read) {
    std::map<int, int> seen;
    for (int i = 0; i < samples; ++i) {
        for (int tick = 0; tick < gap; ++tick)
            step();
        ++seen[read()];
    }
    return seen;
}

int pence(float pounds) { return static_cast<int>(pounds * 100 + 0.5f); }

// The sums of the 25 triples of a belt that can stand in the window, in pence.
std::vector<int> triples(std::string_view belt) {
    std::vector<int> prices;
    for (std::size_t at = 9; at < belt.size(); at += 9)
        prices.push_back(pence(std::stof(std::string(belt.substr(at, 4)))));
    std::vector<int> sums;
    for (std::size_t k = 0; k + 2 < prices.size(); ++k)
        sums.push_back(prices[k] + prices[k + 1] + prices[k + 2]);
    return sums;
}

TEST(Belts, RunFromTheirWorstToTheirBestTriple) {
    struct ends {
        int worst, best;
        int weighed; // the triples, each times its place: no price can be another
    };
    const ends creepy[] = {
        {60, 370, 67960}, {100, 500, 85870}, {50, 320, 69970}, {80, 320, 51820}, {80, 620, 82090}};
    const ends super[] = {
        {220, 810, 163500}, {300, 1040, 186700}, {320, 850, 189500}, {340, 970, 169980}, {300, 920, 184460}};
    for (int row = 1; row <= belts_each; ++row)
        for (const bool is_super : {false, true}) {
            const std::string_view belt = is_super ? super_belt(row) : creepy_belt(row);
            const ends wanted = (is_super ? super : creepy)[row - 1];
            EXPECT_EQ(belt.size(), 247u);
            const std::vector<int> sums = triples(belt);
            ASSERT_EQ(sums.size(), 25u);
            EXPECT_EQ(*std::min_element(sums.begin(), sums.end()), wanted.worst) << row << is_super;
            EXPECT_EQ(*std::max_element(sums.begin(), sums.end()), wanted.best) << row << is_super;
            int weighed = 0;
            for (std::size_t i = 0; i < sums.size(); ++i)
                weighed += static_cast<int>(i + 1) * sums[i];
            EXPECT_EQ(weighed, wanted.weighed) << row << is_super;
        }
}

// Stopped wherever it runs, a belt stands at the next place where three prices fill the window.
TEST(Belts, StopAtTheNextWholeTriple) {
    for (int row = 1; row <= belts_each; ++row)
        for (const std::string_view award : {"moneybelt", "supermoneybelt"}) {
            const std::string_view belt = award == "moneybelt" ? creepy_belt(row) : super_belt(row);
            const std::vector<int> sums = triples(belt);
            for (int offset = 0; offset <= 221; ++offset) {
                testgame r(1);
                open_screen(r.g.p, screen::feature);
                r.g.m.award = award;
                r.g.b.beltphase = 1;
                r.g.b.beltstep = 1;
                r.g.b.beltstrip = belt;
                for (int tick = 0; tick < offset; ++tick) // 221: it stops by itself
                    feature_moneybelttimer(r.g);
                if (offset < 221)
                    stoppress(r.g);
                int ticks = 0;
                for (; r.g.b.beltphase != 4 && ticks < 20; ++ticks)
                    feature_moneybelttimer(r.g);
                const int next = std::min((std::max(offset - 7, 0) + 8) / 9, 24);
                EXPECT_EQ(pence(r.g.m.win), sums[static_cast<std::size_t>(next)]) << row << award << offset;
                EXPECT_LE(ticks, 10);
            }
        }
}

// Fast Cash. The pointer r walks 2 to 10 by fair tosses, resting at both ends, but passes 4 as it
// came. With a for the share of each of 2, 3, 5 ... 10: what enters 4 from below is a/2 and leaves
// upward, what enters from above is a/2 and leaves downward, so 4 has share a as well, and a = 1/9.
// A rung's value stands after a move up from it or down from the one above, each half of 1/9:
// 1/9 for rungs 2 to 9, and half of that for rung 1 (only from above) and rung 10 (only from it).
// Its slowest part fades as cos(pi/9) per tick: 400 ticks leave 1e-11 of it.
TEST(LongRun, FastCashStandsOnItsRungs) {
    testgame r(20);
    open_screen(r.g.p, screen::feature);
    r.g.m.fastcashway = "up";
    r.g.b.readystep = 2; // once rung 1 has lit, the pointer never falls below 2
    const int samples = 18000;
    const auto seen = sample(
        samples, 400, [&] { feature_fastcash(r.g); }, [&] { return pence(r.g.m.win); });
    std::map<int, double> shares;
    for (int value : {160, 200, 300, 360, 400, 500, 600, 800})
        shares[value] = 1.0 / 9;
    shares[100] = shares[1500] = 1.0 / 18;
    expect_shares(shares, seen, samples);
}

// The shock. With an extra life on offer each tick goes to one of the seven other places, so that
// all eight have 1/8. Without one, place 6 gives way to 7, which can follow itself that way: from 7
// it stays with 1/7, from any other place it comes with 2/7. Its share s keeps s = s/7 + (1-s)*2/7,
// so s = 1/4, and the six others share the rest.
TEST(LongRun, TheShockStandsOnItsPlaces) {
    const int samples = 24000;
    for (const bool life : {true, false}) {
        testgame r(21);
        open_screen(r.g.p, screen::feature);
        r.g.m.pcent = life ? 84.9f : 85.0f;
        const auto seen = sample(
            samples, 12, [&] { feature_shock_timer(r.g); }, [&] { return int{r.g.b.shockpos}; });
        std::map<int, double> shares;
        for (int place = 1; place <= 8; ++place)
            shares[place] = 1.0 / 8;
        if (!life) {
            shares.erase(6);
            shares[7] = 1.0 / 4;
        }
        expect_shares(shares, seen, samples);
    }
}

// The random stop: each of the 24 squares is as likely as any other at each tick.
TEST(LongRun, TheRandomStopStandsOnEverySquare) {
    testgame r(22);
    open_screen(r.g.p, screen::feature);
    r.g.b.boardpos = 23;
    const int samples = 48000;
    const auto seen = sample(
        samples, 1, [&] { feature_randomstop(r.g); }, [&] { return int{r.g.b.boardpos}; });
    std::map<int, double> shares;
    for (int square = 1; square <= 24; ++square)
        shares[square] = 1.0 / 24;
    expect_shares(shares, seen, samples);
}

} // namespace
} // namespace hustle
