// The board's die, in the gamble and on the ring, and the awards' draws, against odds that are
// worked out here from the rules alone.
//
// Each measurement is over 100,000 rolls with a fixed seed.
#include "board/board.h"
#include "board/reelawards.h"
#include "tests/chisquare.h"
#include "tests/testgame.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <set>

namespace hustle {
namespace {

constexpr int rolls = 100000;
constexpr int checked_draws = 28; // from a count of 1: the next one, the thirtieth, stands

// One set of cells; `odds` and `seen` by die. What the rules refuse is one cell together: only the limit
// of draws lets it through.
void add_set(chi_square& found, const std::array<double, 7>& odds, const std::array<int, 7>& seen,
             int samples, auto allowed) {
    double rest = 0;
    int seen_rest = 0;
    for (std::size_t die = 1; die <= 6; ++die) {
        if (allowed(static_cast<int>(die)))
            found.cell(odds[die] * samples, seen[die]);
        else {
            rest += odds[die];
            seen_rest += seen[die];
        }
    }
    found.cell(rest * samples, seen_rest);
    found.end_set();
}

// The odds of a die that is drawn evenly from the possible faces, and again while it is refused.
std::array<double, 7> odds_of(auto possible, auto allowed) {
    int faces = 0;
    int good = 0;
    for (int die = 1; die <= 6; ++die) {
        faces += possible(die);
        good += possible(die) && allowed(die);
    }
    const double limit = std::pow(1.0 - double(good) / faces, checked_draws);
    std::array<double, 7> odds{};
    for (int die = 1; die <= 6; ++die)
        if (possible(die))
            odds[static_cast<std::size_t>(die)] = limit / faces + (allowed(die) ? (1 - limit) / good : 0.0);
    return odds;
}

// ---- the ring ----

struct ring_case {
    const char* name;
    int cashrung = 1, featurerung = 1, shots = 1;
    single pcent = 85;
    bool life = false, guarded = false;
};
constexpr ring_case ring_cases[] = {
    {"nothing in force", 4, 6, 6},
    {"cash at 5", 5},
    {"cash at 7", 7},
    {"features at 7", 1, 7},
    {"shots at 7", 1, 1, 7},
    {"paid above 85", 1, 1, 1, 85.5F},
    {"life held", 1, 1, 1, 85, true},
    {"guarded", 1, 1, 1, 70, false, true},
    {"all but paid much", 9, 9, 9, 70, true, true},
};

int square_after(int from, int die) { return (from + die - 1) % 24 + 1; }

// Which squares a roll never reaches, told by the squares and not by the dice.
bool may_reach(const ring_case& c, int from, int to) {
    constexpr std::pair<int, int> never[] = {{1, 3},   {1, 6},  {3, 7},   {7, 12}, {4, 9},
                                             {17, 22}, {5, 10}, {10, 14}, {14, 18}};
    for (const auto& [a, b] : never)
        if (from == a && to == b)
            return false;
    if (c.guarded && (to == 15 || to == 24 || (from >= 14 && from <= 18 && to != 19)))
        return false;
    if (c.cashrung >= 5 && to == 3)
        return false;
    if ((c.cashrung >= 7 || c.featurerung >= 7 || c.shots >= 7) && (to == 2 || to == 16))
        return false;
    if ((c.life || c.pcent > 85) && to == 8)
        return false;
    return !(c.pcent > 85 && to == 19 && from != 13);
}

void set_up(game& g, const ring_case& c, int from) {
    g.m.featuremode = "feature";
    g.b.rolltries = 1;
    g.m.pcent = c.pcent;
    g.m.invincible = c.guarded ? "yes" : "no";
    g.b.cashrung = static_cast<count>(c.cashrung);
    g.b.featurerung = static_cast<count>(c.featurerung);
    g.b.shots = static_cast<count>(c.shots);
    g.b.boardpos = static_cast<count>(from);
    g.b.movepos = static_cast<count>(from);
    set_visible(g.p, element::feature_el, c.life);
}

TEST(Ring, RefusesExactlyTheRollsThatTheRulesForbid) {
    testgame t(20240615);
    for (const ring_case& c : ring_cases)
        for (int from = 1; from <= 24; ++from) {
            int good = 1;
            while (!may_reach(c, from, square_after(from, good)))
                ++good;
            for (int die = 1; die <= 6; ++die) {
                set_up(t.g, c, from);
                t.world.draws = {die, good};
                rolldice(t.g);
                const bool stands = may_reach(c, from, square_after(from, die));
                EXPECT_EQ(t.g.b.boardpos, square_after(from, stands ? die : good))
                    << c.name << " " << from << ":" << die;
                EXPECT_EQ(t.world.draws.size(), stands ? 1u : 0u) << c.name << " " << from << ":" << die;
            }
        }
}

TEST(Ring, LetsTheLastDrawStandWhereNothingMayPass) {
    testgame t(20240615);
    const ring_case nothing_passes = {"", 1, 1, 1, 90, false, true}; // from 14: only a 5, and no 5
    for (const int counted : {0, 1}) {
        set_up(t.g, nothing_passes, 14);
        t.g.b.rolltries = static_cast<count>(counted);
        t.world.draws.assign(40, 5);
        rolldice(t.g);
        EXPECT_EQ(t.g.b.boardpos, 19);
        EXPECT_EQ(t.world.draws.size(), static_cast<std::size_t>(10 + counted));
        EXPECT_EQ(t.g.b.rolltries, 1);
    }
}

TEST(Ring, RollsWithTheOddsOfTheRules) {
    testgame t(20240615);
    for (const ring_case& c : ring_cases) {
        chi_square found;
        for (int from = 1; from <= 24; ++from) {
            const auto allowed = [&](int die) { return may_reach(c, from, square_after(from, die)); };
            std::array<int, 7> seen{};
            for (int i = 0; i < rolls / 24; ++i) {
                set_up(t.g, c, from);
                rolldice(t.g);
                ++seen[static_cast<std::size_t>(t.g.b.dice)];
            }
            add_set(found, odds_of([](int) { return true; }, allowed), seen, rolls / 24, allowed);
        }
        EXPECT_LT(found.sum, found.bound()) << c.name << ", " << found.freedom << " degrees";
    }
}

// ---- the gamble ----

struct call_case {
    const char* name;
    single pcent, win;
    bool guarded, loses; // loses: a call from 2 to 5 is refused what wins
};
constexpr call_case call_cases[] = {
    {"fair at 90", 90, 4.00F, false, false},  {"fair below 2.00", 95, 1.60F, false, false},
    {"fair at 75", 75, 5.00F, false, false},  {"fair at 6.00", 85, 6.00F, false, false},
    {"paid much", 90.5F, 2.00F, false, true}, {"5.00", 75.5F, 5.00F, false, true},
    {"8.00", 75.5F, 8.00F, false, true},      {"guarded", 95, 5.00F, true, false},
};

TEST(Gamble, RollsWithTheOddsOfTheRules) {
    testgame t(20240615);
    game& g = t.g;
    for (const call_case& c : call_cases) {
        chi_square found;
        for (int last = 1; last <= 6; ++last)
            for (const bool hi : {true, false}) {
                if ((hi && last == 6) || (!hi && last == 1))
                    continue; // that button is shut
                const auto wins = [&](int die) { return hi ? die > last : die < last; };
                const auto allowed = [&](int die) {
                    if (die == last)
                        return false;
                    if (c.guarded)
                        return wins(die);
                    return !(c.loses && last >= 2 && last <= 5 && wins(die));
                };
                std::array<int, 7> seen{};
                for (int i = 0; i < rolls / 10; ++i) {
                    g.m.featuremode = "hilo";
                    g.m.invincible = c.guarded ? "yes" : "no";
                    g.m.pcent = c.pcent;
                    g.m.win = c.win;
                    g.b.cashrung = rung_of(c.win);
                    g.b.hilochoice = hi ? "hi" : "lo";
                    g.b.lastdice = static_cast<count>(last);
                    rolldice(g);
                    const int die = g.b.dice;
                    ++seen[static_cast<std::size_t>(die)];
                    ASSERT_NE(die, last);
                    ASSERT_EQ(g.m.win == 0, !wins(die)); // a loss takes the money at once
                }
                add_set(found, odds_of([last](int die) { return die != last; }, allowed), seen, rolls / 10,
                        allowed);
            }
        EXPECT_LT(found.sum, found.bound()) << c.name << ", " << found.freedom << " degrees";
    }
}

// ---- the awards on the reels ----

// The rows that a draw reaches at a percentage, 0 where the row of the last spin stands.
std::set<int> rows_drawn(game& g, handler spin, count machine::*row, single pcent) {
    std::set<int> rows;
    for (int i = 0; i < 400; ++i) {
        g.m.pcent = pcent;
        g.m.*row = 0;
        spin(g);
        rows.insert(g.m.*row);
    }
    return rows;
}

TEST(Awards, DrawEveryRowOfTheirBandAndNoOther) {
    struct band {
        handler spin;
        count machine::*row;
        single pcent;
        int reach; // 0: no draw
    };
    constexpr auto award = &machine::awarddraw;
    constexpr auto pick = &machine::pickdraw;
    constexpr band bands[] = {
        {sevenspin, award, 75, 3},   {sevenspin, award, 75.5F, 3}, {sevenspin, award, 76, 2},
        {sevenspin, award, 85, 2},   {sevenspin, award, 85.1F, 1}, {pickspin, pick, 0, 8},
        {pickspin, pick, 70, 8},     {pickspin, pick, 70.5F, 0},   {pickspin, pick, 71, 7},
        {pickspin, pick, 75.9F, 0},  {pickspin, pick, 76, 6},      {pickspin, pick, 80.5F, 0},
        {pickspin, pick, 81, 4},     {pickspin, pick, 90, 4},      {pickspin, pick, 90.1F, 3},
        {winspin, award, 69.9F, 8},  {winspin, award, 70, 0},      {winspin, award, 70.05F, 0},
        {winspin, award, 70.1F, 6},  {winspin, award, 80, 6},      {winspin, award, 80.05F, 4},
        {winspin, award, 82, 4},     {winspin, award, 82.05F, 0},  {winspin, award, 82.1F, 3},
        {winspin, award, 90.05F, 0}, {winspin, award, 90.1F, 2},   {streakspin, award, 99, 7},
    };
    testgame t(20240615);
    for (const band& b : bands) {
        std::set<int> wanted;
        for (int row = b.reach == 0 ? 0 : 1; row <= b.reach; ++row)
            wanted.insert(row);
        EXPECT_EQ(rows_drawn(t.g, b.spin, b.row, b.pcent), wanted) << b.pcent;
    }
}

} // namespace
} // namespace hustle
