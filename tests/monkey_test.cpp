// The monkey's long outings, and the one number that stands for the machine's behaviour.
// HUSTLE_MONKEY_TICKS sets another length, for the night.
#include "script/monkey.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace hustle::script {
namespace {

long length() {
    const char* const told = std::getenv("HUSTLE_MONKEY_TICKS");
    return told != nullptr ? std::atol(told) : 10'000'000;
}

// A change that moves one of these says so, and why.
TEST(Signature, ALongSeededRunGoesAsItWent) { EXPECT_EQ(signature(), 4852729874591000472ULL); }

TEST(Signature, EveryLampStandsAsItStood) { EXPECT_EQ(whole_signature(), 6609295468528879582ULL); }

TEST(Monkey, ItsFaultIsToldByTheFewestMoves) {
    outing o = let_loose(7, 20'000);
    ASSERT_EQ(o.fault, "");
    o.moves.insert(o.moves.begin() + 50, {deed::run, 4'000'000}); // of all, only this one matters
    o.fault = "no play has begun for an hour";
    EXPECT_EQ(written(7, shortest(o)), "seed 7\nrun 4000000\n");
}

class MonkeyOuting : public testing::TestWithParam<int> {};

TEST_P(MonkeyOuting, FindsNoDeadStateAndNoLostMoney) {
    const outing o = let_loose(static_cast<std::uint64_t>(GetParam()), length() / 5);
    if (!o.fault.empty())
        FAIL() << "seed " << o.seed << ": " << o.fault << "; the shortest script that leads there:\n"
               << written(o.seed, shortest(o));
}

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyOuting, testing::Values(1, 2, 3, 20260, 777));

} // namespace
} // namespace hustle::script
