#include "board/checks.h"

#include <span>

namespace hustle {

namespace {

using enum element;

struct roll {
    int square, die;
};

// clang-format off
// In a guarded run the token jumps from 14 to 18 straight to 19, over the GAME OVER of 15.
constexpr roll not_the_jump[] = {
    {14, 1}, {14, 2}, {14, 3}, {14, 4},          {14, 6},
    {15, 1}, {15, 2}, {15, 3},          {15, 5}, {15, 6},
    {16, 1}, {16, 2},          {16, 4}, {16, 5}, {16, 6},
    {17, 1},          {17, 3}, {17, 4}, {17, 5}, {17, 6},
             {18, 2}, {18, 3}, {18, 4}, {18, 5}, {18, 6},
};
constexpr roll to_3[]        = {{1, 2}, {2, 1}, {21, 6}, {22, 5}, {23, 4}, {24, 3}};
constexpr roll to_2_or_16[]  = {{1, 1}, {15, 1}, {10, 6}, {20, 6}, {11, 5}, {21, 5},
                                {12, 4}, {22, 4}, {13, 3}, {23, 3}, {14, 2}, {24, 2}};
constexpr roll richest[]     = {{1, 5}, {1, 2}, {3, 4}, {7, 5}, {4, 5}, {17, 5}, {5, 5}, {10, 4}, {14, 4}};
constexpr roll to_8[]        = {{2, 6}, {3, 5}, {4, 4}, {5, 3}, {6, 2}, {7, 1}};
constexpr roll to_19[]       = {{14, 5}, {15, 4}, {16, 3}, {17, 2}, {18, 1}}; // 13:6 may pass
constexpr roll to_15_or_24[] = {{9, 6}, {10, 5}, {11, 4}, {12, 3}, {13, 2}, {14, 1},
                                {18, 6}, {19, 5}, {20, 4}, {21, 3}, {22, 2}, {23, 1}};
// clang-format on

bool guarded(const game& g) { return g.m.invincible == flag::yes; }
bool much_cash(const game& g) { return g.b.cashrung >= 5; }
bool high_ladder(const game& g) { return g.b.cashrung >= 7 || g.b.featurerung >= 7 || g.b.shots >= 7; }
bool always(const game&) { return true; }
bool paid_much(const game& g) { return g.m.pcent > 85; }
bool has_life(const game& g) { return is_visible(g.p, feature_el); }

struct check {
    bool (*holds)(const game&);
    std::span<const roll> refused;
};
constexpr check checks[] = {
    {guarded, not_the_jump}, {much_cash, to_3},  {high_ladder, to_2_or_16}, {always, richest},
    {paid_much, to_8},       {paid_much, to_19}, {has_life, to_8},          {guarded, to_15_or_24},
};

} // namespace

bool call_wins(const board& b) {
    return b.hilochoice == choice::hi ? b.dice > b.lastdice : b.dice < b.lastdice;
}

// A guarded run refuses what loses, a machine that has paid much refuses what wins. From a 1 or a
// 6 every draw beats the die, and nothing is refused.
bool call_is_refused(const game& g) {
    const machine& m = g.m;
    const board& b = g.b;
    if (m.invincible == flag::yes)
        return !call_wins(b);
    if (m.invincible != flag::no || b.lastdice < 2 || b.lastdice > 5 || !call_wins(b))
        return false;
    return (m.pcent > 90 && m.win >= 2) || (m.pcent > 75 && (m.win == 5 || m.win == 8));
}

bool roll_is_refused(const game& g) {
    for (const check& c : checks)
        for (const roll& r : c.refused)
            if (r.square == g.b.boardpos && r.die == g.b.dice && c.holds(g))
                return true;
    return false;
}

} // namespace hustle
