// What a seat counts, against plays whose outcome is known and against the machine's own ledgers.
#include "lab/seat.h"
#include "script/commands.h"

#include <gtest/gtest.h>

#include <memory>
#include <numeric>
#include <sstream>

extern std::size_t allocations; // of the whole program so far

namespace hustle::lab {
namespace {

terms short_run(std::string_view policy, number plays) {
    terms t;
    t.policy = find_policy(policy);
    t.plays = plays;
    t.seed = 77;
    return t;
}

std::unique_ptr<seat> played(const terms& t, std::string* script = nullptr) {
    auto s = std::make_unique<seat>();
    sit_down(*s, t, 0, 0, script);
    play_on(*s, t.plays);
    return s;
}

number of(const std::array<number, source_count>& counts, source s) {
    return counts[static_cast<std::size_t>(s)];
}

// Three plays of nothing, one pound by a nudge of reel 3 onto a third pound sign, six of nothing.
TEST(Seat, CountsPlaysWhoseEveryDrawIsKnown) {
    std::vector<int> draws;
    const auto quiet = [&draws](int plays) {
        for (int n = 0; n < plays; ++n)
            draws.insert(draws.end(), {2, 6, 8, 6, 6}); // no pair, no holds, no nudges
    };
    quiet(3);
    draws.insert(draws.end(), {2, 7, 3, 6, 3, 1, 1}); // no holds; nudges by adding: one
    draws.insert(draws.end(), {1, 1});                // the die and the guard of the board
    quiet(7);
    const terms t = short_run("holder", 10);
    seat s;
    sit_down(s, t, 0);
    s.world.queued = draws;
    play_on(s, t.plays);
    const tally& c = s.sum;
    ASSERT_FALSE(s.stuck);
    EXPECT_EQ(c.plays, 10U);
    EXPECT_EQ(c.staked, 50U);
    EXPECT_EQ(c.banked, 20U);
    EXPECT_EQ(c.squares, 400U);
    EXPECT_EQ(c.hits, 1U);
    EXPECT_EQ(c.dry, 6U);
    EXPECT_EQ(of(c.paid, source::nudged_line), 20U);
    EXPECT_EQ(of(c.payouts, source::nudged_line), 1U);
    EXPECT_EQ(c.times[static_cast<std::size_t>(feature::add_nudges)], 1U);
    EXPECT_EQ(c.times[static_cast<std::size_t>(feature::gamble_opened)], 1U);
    EXPECT_EQ(c.wins[0], 9U);
    EXPECT_EQ(c.wins[1], 1U);
    EXPECT_EQ(c.band_plays[2], 9U);   // 75 to 80
    EXPECT_EQ(c.band_plays[3], 1U);   // 81 of 101 is more
    EXPECT_EQ(c.look_banked[2], 0U);  // after 3 plays
    EXPECT_EQ(c.look_banked[3], 20U); // after 5
}

class Players : public testing::TestWithParam<std::string_view> {};

TEST_P(Players, AllMoneyHasASourceAndTheLedgersAgree) {
    const auto s = played(short_run(GetParam(), 3000));
    const tally& c = s->sum;
    ASSERT_FALSE(s->stuck);
    EXPECT_EQ(c.plays, 3000U);
    EXPECT_EQ(std::accumulate(c.paid.begin(), c.paid.end(), number{0}), c.banked);
    EXPECT_EQ(of(c.paid, source::unknown), 0U);
    EXPECT_EQ(std::accumulate(c.wins.begin(), c.wins.end(), number{0}), c.plays);
    EXPECT_EQ(std::accumulate(c.band_paid.begin(), c.band_paid.end(), number{0}), c.banked);
    EXPECT_GE(c.staked, c.plays * stake_units);
    // The machine's ledger drifts by the last bits of its singles.
    EXPECT_NEAR(double{s->g.m.moneyout} - 80, static_cast<double>(c.banked) / units_of_pound, 2);
}

TEST_P(Players, NothingIsAllocatedInAPlay) {
    const auto s = played(short_run(GetParam(), 4000)); // the longest texts have been shown
    const std::size_t before = allocations;
    play_on(*s, 8000);
    EXPECT_EQ(allocations, before);
}

TEST_P(Players, AScriptOfTheSamePressesLeavesTheSameMachine) {
    std::string script;
    const auto s = played(short_run(GetParam(), 400), &script);
    std::ostringstream out, err;
    const auto same = [&](const game& g) {
        EXPECT_EQ(g.p.now, s->g.p.now);
        for (const single machine::*ledger :
             {&machine::bank, &machine::win, &machine::credits, &machine::moneyin, &machine::moneyout,
              &machine::pcent, &machine::hopper, &machine::cashbox, &machine::winbank, &machine::streakbank,
              &machine::housecut})
            EXPECT_EQ(g.m.*ledger, s->g.m.*ledger);
        EXPECT_EQ(caption(g.p, element::displayline), caption(s->g.p, element::displayline));
    };
    EXPECT_EQ(script::run_script(script, "presses", out, err, same), 0) << err.str();
}

INSTANTIATE_TEST_SUITE_P(All, Players, testing::Values("starter", "holder", "gambler", "expert", "monkey"),
                         [](const auto& p) { return std::string(p.param); });

TEST(Seat, AMachineThatBeginsNoPlayIsGivenUp) {
    terms t = short_run("starter", 10);
    t.patience = 5;
    seat s;
    sit_down(s, t, 0);
    disable(s.g.p, element::start); // and nothing in play will ever light it
    play_on(s, t.plays);
    EXPECT_TRUE(s.stuck);
    EXPECT_EQ(s.sum.plays, 0U);
}

TEST(Seat, AWarmUpIsLeftOut) {
    const auto whole = played(short_run("monkey", 600));
    terms t = short_run("monkey", 500);
    t.warmup = 100;
    const auto rest = played(t);
    const auto first = played(short_run("monkey", 100));
    EXPECT_EQ(rest->sum.plays, 500U);
    EXPECT_EQ(rest->sum.banked, whole->sum.banked - first->sum.banked);
    EXPECT_EQ(rest->sum.ms, whole->sum.ms - first->sum.ms);
    EXPECT_EQ(rest->sum.own, whole->sum.own);
}

} // namespace
} // namespace hustle::lab
