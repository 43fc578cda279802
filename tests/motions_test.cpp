// How what moves beyond the panel moves, millisecond by millisecond: reels, the
// belt, a win and its coins.
#include "core/reels.h"
#include "show/motions.h"
#include "tests/showgame.h"

#include <algorithm>
#include <cmath>
#include <set>

using namespace hustle;

namespace {

using phase = reel_motion::phase;

constexpr timer reel_timers[] = {timer::reelspin1, timer::reelspin2, timer::reelspin3, timer::spinreel1,
                                 timer::spinreel2, timer::spinreel3, timer::reelskill};

struct Motions : showgame {
    std::int64_t now = 0; // of an eye on a machine that stands still

    // Reel 1 shows a frame while a timer runs, seen for some ms.
    void roll(timer behind, int ms) {
        start_timer(g.p, behind);
        set_picture(g.p, element::reel1, art::effect1);
        take_in_reel(s, g, 1, now);
        for (int i = 0; i < ms; ++i)
            advance_reel(s, g, 1, ++now);
    }
    void write_stop(int stop) {
        for (const timer t : reel_timers)
            stop_timer(g.p, t);
        set_stop(g, 1, stop);
        take_in_reel(s, g, 1, now);
    }
};

// 24 stops a second after 70 ms, a quarter of it at once; the strip runs
// downwards and is round.
TEST_F(Motions, AReelSpeedsUpAndBlursAsFastAsItGoes) {
    const reel_motion& r = s.reels[0];
    roll(timer::reelspin1, 0);
    for (int ms = 1; ms <= 1000; ++ms) {
        const double before = r.at;
        EXPECT_TRUE(advance_reel(s, g, 1, ++now));
        const double speed = ms < 18 ? 0.006 : ms < 70 ? 0.024 * ms / 70 : 0.024;
        EXPECT_NEAR(std::fmod(before - r.at + 16, 16), speed, 1e-9) << ms;
        EXPECT_NEAR(r.blur, speed * 1000 / 60, 1e-9) << ms;
        EXPECT_TRUE(r.at >= 0 && r.at < 16);
    }
    set_reduced(s, g, true);
    EXPECT_FALSE(advance_reel(s, g, 1, now + 1));
    EXPECT_EQ(r.blur, 16) << "one even smear";
}

TEST_F(Motions, AReelThatIsPutOnAStopIsSharp) {
    roll(timer::reelspin1, 200);
    stop_timer(g.p, timer::reelspin1);
    set_picture(g.p, element::reel1, art::none);
    take_in_reel(s, g, 1, now);
    write_stop(3);
    EXPECT_EQ(s.reels[0].now, phase::rests);
    EXPECT_EQ(s.reels[0].blur, 0);
}

TEST_F(Motions, AReelRollsByEachOfItsChainsAndStandsWhereNoneRuns) {
    for (const timer behind : reel_timers)
        for (int frame = 1; frame <= 4; ++frame) {
            write_stop(3);
            start_timer(g.p, behind);
            set_picture(g.p, element::reel1, nth(art::effect1, frame));
            take_in_reel(s, g, 1, now);
            EXPECT_EQ(s.reels[0].now, phase::rolls) << row(behind).name << frame;
            EXPECT_TRUE(s.reels[0].on_strip);
            stop_timer(g.p, behind); // the frame stays
            EXPECT_FALSE(advance_reel(s, g, 1, now));
            EXPECT_FALSE(s.reels[0].on_strip);
            EXPECT_EQ(s.reels[0].now, phase::rests);
        }
    set_picture(g.p, element::reel1, art::none);
    start_timer(g.p, timer::reelspin1);
    take_in_reel(s, g, 1, now);
    EXPECT_FALSE(s.reels[0].on_strip);
}

// It runs on at its speed by one to two stops, goes an eighth of one too far,
// and stands after 118 ms; a nudge by one stop takes 90.
TEST_F(Motions, AReelRunsOutWithoutAJumpAndComesBackFromALittleTooFar) {
    const reel_motion& r = s.reels[0];
    for (int stop = 1; stop <= 16; ++stop) {
        roll(timer::reelspin1, 200 + 17 * stop);
        const double rolled = r.at;
        write_stop(stop);
        EXPECT_NEAR(std::remainder(r.from + stop - 1 - rolled, 1), 0, 1e-9);
        EXPECT_TRUE(r.from >= 1 && r.from < 2);
        double deepest = 0, last = 0;
        for (int ms = 0; ms < 118; ++ms) {
            take_in_reel(s, g, 1, now + ms); // nothing new
            EXPECT_TRUE(advance_reel(s, g, 1, now + ms)) << ms;
            const double ahead = std::remainder(r.at - (stop - 1), 16);
            if (ms < r.from / 0.024) {
                EXPECT_NEAR(ahead, r.from - 0.024 * ms, 1e-9) << ms;
            }
            EXPECT_TRUE(r.at >= 0 && r.at < 16);
            EXPECT_NEAR(r.blur, ahead > 0 ? 0.4 : 0, 1e-9) << ms;
            deepest = std::min(deepest, ahead);
            last = ahead;
        }
        EXPECT_NEAR(deepest, -0.121, 0.001);
        EXPECT_NEAR(last, 0, 0.01);
        EXPECT_FALSE(advance_reel(s, g, 1, now += 118));
        EXPECT_EQ(r.at, stop - 1);
    }
    write_stop(15); // a nudge
    double deepest = 0;
    for (int ms = 0; ms < 90; ++ms) {
        EXPECT_TRUE(advance_reel(s, g, 1, now + ms));
        EXPECT_EQ(r.blur, 0);
        const double ahead = r.at - 14;
        if (ms < 54) {
            EXPECT_NEAR(ahead, 1 - ms / 54.0, 1e-9) << ms;
        }
        deepest = std::min(deepest, ahead);
    }
    EXPECT_NEAR(deepest, -0.0465, 0.001);
    EXPECT_FALSE(advance_reel(s, g, 1, now + 90));
    EXPECT_EQ(r.at, 14);
}

TEST_F(Motions, AReelGoesAtOnceWhereNothingRolled) {
    const reel_motion& r = s.reels[0];
    write_stop(9);
    for (const int stop : {11, 10, 9}) { // two further back, a nudge, another before it has ended
        write_stop(stop);
        EXPECT_EQ(r.now == phase::settles, stop == 10);
        EXPECT_EQ(r.at, (stop == 9 ? 9 : 11) - 1);
        if (stop == 9) {
            advance_reel(s, g, 1, now += 90);
        }
    }
    set_picture(g.p, element::reel1, art::none);
    take_in_reel(s, g, 1, now);
    write_stop(8); // from no stop
    EXPECT_EQ(r.now, phase::rests);
    EXPECT_EQ(r.at, 7);
    set_reduced(s, g, true);
    write_stop(7);
    EXPECT_EQ(r.at, 6);
    roll(timer::reelspin1, 100);
    write_stop(5);
    EXPECT_FALSE(advance_reel(s, g, 1, now + 1));
    EXPECT_EQ(r.at, 4);
}

// While it runs the next tick takes one letter off, and the dots are on their
// way there evenly.
TEST_F(Motions, TheBeltRunsExactlyWhereItsNextTickTakesALetterOff) {
    open_board("feature", 1);
    run(2000);
    g.m.award = award::moneybelt;
    start_timer(g.p, timer::feature_moneybelttimer);
    std::string before,
        behind; // the text since the last tick, and where its blanks began
    bool ran = false;
    std::int64_t since = 0;
    int moved = 0, stood = 0;
    run(60'000, [&] {
        const std::string text(caption(g.p, element::feature_displayline));
        if (text != before || g.p.now - since == 150) {
            if (ran && !before.empty()) {
                EXPECT_EQ(text, before.substr(1)) << g.b.beltphase;
                ++moved;
            } else if (before.size() > 26 && text.size() + 1 == before.size()) {
                ADD_FAILURE() << "it moved by itself: " << text;
            }
            since = g.p.now;
            before = text;
        }
        stood += !s.belt.runs && g.b.beltphase == 3;
        ran = s.belt.runs;
        const auto columns = ran ? std::min<std::int64_t>((g.p.now - s.belt.since) * 6 / 150, 5) : 0;
        EXPECT_EQ(s.belt.columns, columns);
        if (g.b.beltphase == 1 && g.b.beltstep == 60)
            key(space);
    });
    EXPECT_GT(moved, 55);
    EXPECT_LE(stood, 151) << "once, before the prices are taken";
}

TEST_F(Motions, AWinStandsWhileItIsToldAndCountedOnMain) {
    const auto stands = [&] {
        take_in_win(s, g, now);
        return s.win.shows;
    };
    for (const timer told : {timer::feature_start, timer::wintobank}) {
        g.m.win = 0.2F;
        EXPECT_FALSE(stands());
        start_timer(g.p, told);
        EXPECT_TRUE(stands());
        for (const timer turns : reel_timers)
            if (turns != timer::reelskill) {
                start_timer(g.p, turns);
                EXPECT_FALSE(stands()) << row(turns).name;
                stop_timer(g.p, turns);
                EXPECT_TRUE(stands());
            }
        g.m.win = 0;
        EXPECT_FALSE(stands());
        stop_timer(g.p, told);
    }
    g.m.win = 0.2F;
    start_timer(g.p, timer::wintobank);
    open_screen(g.p, screen::feature);
    EXPECT_FALSE(stands());
}

// The glow comes up from nothing and breathes from then on, and three symbols
// that made a line with it.
TEST_F(Motions, AWinBreathesEvenly) {
    for (const bool line : {false, true}) {
        for (int which = 1; which <= 3; ++which)
            show_stop(g, which, line ? 1 : which);
        for (int which = 2; which <= 3; ++which)
            g.m.reels[static_cast<std::size_t>(which) - 1].sym = line ? g.m.reels[0].sym : word{"melon"};
        g.m.reels[0].sym = line ? g.m.reels[0].sym : word{"bell"};
        g.m.win = 1;
        start_timer(g.p, timer::feature_start);
        take_in_win(s, g, now);
        EXPECT_EQ(s.win.glow, 0);
        double last = 0;
        for (int ms = 0; ms <= 3300; ++ms) {
            EXPECT_EQ(advance_win(s, g, now + ms), 33);
            const double u = ms / 1100.0 - std::floor(ms / 1100.0);
            const double up = u < 0.5 ? 2 * u : 2 - 2 * u;
            const double least = ms < 550 ? 0 : 0.35;
            EXPECT_NEAR(s.win.glow, least + (1 - least) * up, 0.11) << ms; // a breath is rounder
            EXPECT_NEAR(s.win.glow, last, 0.003) << ms;
            EXPECT_NEAR(s.win.swell, line ? 1 + 0.06 * up : 1, line ? 0.0065 : 0) << ms;
            last = s.win.glow;
        }
        g.m.win = 0;
        take_in_win(s, g, now);
        EXPECT_EQ(s.win.glow, 0);
        EXPECT_EQ(s.win.swell, 1);
        EXPECT_EQ(advance_win(s, g, now), -1);
    }
}

// From three places on the win line, one for each few steps of the count, up to
// the bank's figures.
TEST_F(Motions, CoinsRiseWhileMoneyIsCounted) {
    for (const bool reduced : {false, true}) {
        set_reduced(s, g, reduced);
        const std::int64_t least_gap = reduced ? 800 : 170;
        const single bank = g.m.bank;
        std::set<double> starts;
        std::vector<coin> before;
        std::int64_t last = -1000;
        const auto flies = [&] {
            EXPECT_TRUE(s.win.coins.empty() || g.m.bank > bank) << "none before the money";
            if (!s.win.coins.empty() && s.win.coins.back().born != last) {
                const std::int64_t born = s.win.coins.back().born;
                EXPECT_TRUE(last == -1000 || (born - last >= least_gap && born - last < least_gap + 60));
                starts.insert(s.win.coins.back().x);
                last = born;
            }
            const rect a = coin_area();
            for (const coin& c : s.win.coins) {
                const double u = static_cast<double>(g.p.now - c.born) / 520, eased = u * u * (3 - 2 * u);
                const double from = 352 + 150 * static_cast<double>(c.born / 170 % 3 - 1);
                EXPECT_LT(u, 1);
                EXPECT_NEAR(c.y, 284 - 158 * eased, 1e-6);
                EXPECT_NEAR(c.x, from + (172 - from) * eased * eased, 1e-6);
                EXPECT_NEAR(c.opacity, std::min({1.0, u * 8, (1 - u) * 4}), 1e-6);
                EXPECT_TRUE(c.x * 15 >= a.left + coin_size * 7 && c.y * 15 >= a.top + coin_size * 7 &&
                            c.x * 15 <= a.left + a.width - coin_size * 7 &&
                            c.y * 15 <= a.top + a.height - coin_size * 7);
            }
            for (const coin& c : before)
                EXPECT_TRUE(g.p.now - c.born >= 520 ||
                            std::any_of(s.win.coins.begin(), s.win.coins.end(),
                                        [&](const coin& still) { return still.born == c.born; }));
            before = s.win.coins;
            stage later = s;
            EXPECT_TRUE(before.empty() || advance_win(later, g, g.p.now) == 0) << "as soon as can be";
        };
        g.m.win = 4;
        start_timer(g.p, timer::wintobank);
        run(6000, flies);
        EXPECT_GE(starts.size(), reduced ? 2U : 3U);
        EXPECT_TRUE(s.win.coins.empty());
    }
}

} // namespace
