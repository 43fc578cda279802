// A player who presses anything at any moment. Two promises are kept: no money is made or lost but
// by a payout, a transfer or a new game; and no state is reached from which neither a press nor a
// running timer leads on. HUSTLE_MONKEY_TICKS sets another length, for the night.
#include "panel/sheet.h"
#include "tests/testgame.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <fstream>

namespace hustle {
namespace {

// What the monkey knows to press; the often pressed stand more than once.
constexpr element buttons[] = {element::start,
                               element::start,
                               element::start,
                               element::stopper,
                               element::stopper,
                               element::hold1,
                               element::hold2,
                               element::hold3,
                               element::cancelbutton,
                               element::transfer,
                               element::transfer,
                               element::feature_hibutton,
                               element::feature_lobutton,
                               element::feature_collect,
                               element::feature_featurebutton,
                               element::feature_cashbutton,
                               element::feature_shotbutton,
                               element::feature_exchangebutton,
                               element::feature_stopfeature,
                               element::feature_stopfeature,
                               element::feature_startbutton,
                               element::feature_startbutton};
constexpr element rare[] = {element::newgame,
                            element::gstat,
                            element::hscoretable,
                            element::freelspin,
                            element::sreelspin,
                            element::rreelspin,
                            element::reel1,
                            element::rwinmenu,
                            element::helpabout,
                            element::soundoff,
                            element::soundon,
                            element::bluedisp,
                            element::statistics_Picture1,
                            element::Highscore_Picture2,
                            element::About_cmdOK};

constexpr std::int64_t patience = 60 * 60 * 1000; // ms without a new play that mean a dead machine

struct monkey {
    testgame t;
    std::uint64_t choices; // the monkey's own generator; the machine has its seed
    std::vector<std::string> script;
    std::int64_t last_play = 0;
    long ticks = 0;
    std::uint64_t signature = 0xcbf29ce484222325ULL; // of every tick and the money after it
    std::string fault;

    explicit monkey(std::uint64_t seed) : choices(seed ^ 0x5eedULL) {
        t.world.state = seed;
        t.start();
        script.push_back("seed " + std::to_string(seed));
    }

    int choose(int n) { return splitmix_draw(choices, n) - 1; }

    void fail(const std::string& what) {
        if (fault.empty())
            fault = what + " at " + std::to_string(t.g.p.now) + " ms";
    }

    void press(element e, bool answer_yes = false) {
        const std::size_t boxes = t.world.boxes.size();
        script.push_back("press " + std::string(row(row(e).where).name) + "." + std::string(row(e).name));
        const machine before = money();
        t.world.yes = answer_yes;
        t.press(e);
        if (answer_yes && t.world.boxes.size() > boxes)
            script.insert(script.end() - 1, "answer yes");
        const machine& m = t.g.m;
        const bool new_game = m.credits == 20 && m.bank == 0; // by the menu or by the hidden presses
        if (m.bank != before.bank && !new_game)
            fail("a press moved the bank");
        if (m.credits == before.credits - 1 || new_game)
            last_play = t.g.p.now;
    }

    void sign(std::uint64_t value) { signature = (signature ^ value) * 0x100000001b3ULL; }

    // The money alone: a whole copy a tick would be slow.
    machine money() const {
        machine m;
        m.bank = t.g.m.bank;
        m.win = t.g.m.win;
        m.credits = t.g.m.credits;
        m.moneyout = t.g.m.moneyout;
        return m;
    }

    void check_tick(timer which, const machine& before) {
        machine paid = before;
        const machine& m = t.g.m;
        if (which == timer::wintobank && m.bank != before.bank) {
            add(paid.bank, 0.2);
            add(paid.win, -0.2);
            add(paid.moneyout, 0.2);
            if (m.win != paid.win || m.moneyout != paid.moneyout)
                fail("a payout step lost money");
        } else if (which == timer::banktocredits && m.bank != before.bank) {
            add(paid.bank, -0.25);
            if (m.credits != before.credits + 1)
                fail("a transfer step lost a credit");
        }
        if (m.bank != paid.bank)
            fail("the bank moved by " + std::string(row(which).name));
        if (m.win != m.win || std::abs(m.win) > 200)
            fail("a win out of nothing");
    }

    void run(int ms) {
        script.push_back("run " + std::to_string(ms));
        const std::int64_t until = t.g.p.now + ms;
        timer which{};
        while (fault.empty() && take_tick(t.g.p, until, which)) {
            ++ticks;
            const machine before = money();
            run_tick(t.g, which);
            settle(t.g);
            check_tick(which, before);
            sign(static_cast<std::uint64_t>(which));
            sign(static_cast<std::uint64_t>(t.g.p.now));
            for (const single value : {t.g.m.bank, t.g.m.win, t.g.m.pcent, t.g.m.winbank, t.g.m.streakbank})
                sign(std::bit_cast<std::uint32_t>(value));
        }
        t.g.p.now = std::max(t.g.p.now, until);
    }

    void set_field(const std::string& name, count& field, int value) {
        set(field, value);
        script.push_back("set " + name + " " + std::to_string(value));
    }

    // Chance alone seldom leads deep: now and then the machine is put where it may well stand.
    void shuffle() {
        machine& m = t.g.m;
        if (m.holdsoffered == "yes" && m.linepromised == "false" && m.badholdmade == "false" &&
            choose(20) == 0)
            set_field("pairholds", m.pairholds, 2);
        if (choose(400) == 0) {
            m.moneyout = static_cast<single>(static_cast<int>(m.moneyin) * (60 + choose(50)) / 100);
            script.push_back("set moneyout " + std::to_string(static_cast<int>(m.moneyout)));
        }
        if (m.featuremode != "feature" || !is_loaded(t.g.p, screen::feature))
            return;
        if (choose(20) == 0)
            set_field("feature.featurerung", t.g.b.featurerung, 1 + choose(9));
        if (choose(40) == 0)
            set_field("feature.shots", t.g.b.shots, 1 + choose(12));
        if (choose(60) == 0)
            for (const element bomb : {element::feature_bomb1, element::feature_bomb2}) {
                set_picture(t.g.p, bomb, art::bombiconlight);
                script.push_back("set feature." + std::string(row(bomb).name) + ".art bombiconlight");
            }
    }

    void step() {
        const machine& m = t.g.m;
        shuffle();
        const bool broke = m.credits <= 0.1f && m.bank <= 0.1f && m.win == 0;
        if (broke && choose(40) == 0)
            press(element::newgame, true);
        else if (choose(200) == 0)
            press(rare[choose(static_cast<int>(std::size(rare)))]);
        else
            press(buttons[choose(static_cast<int>(std::size(buttons)))]);
        run(choose(8) == 0 ? choose(1500) : choose(120));
        if (t.g.p.now - last_play > patience)
            fail("no play has begun for an hour");
    }
};

void let_loose(std::uint64_t seed, long ticks) {
    monkey ape(seed);
    while (ape.fault.empty() && ape.ticks < ticks)
        ape.step();
    if (ape.fault.empty())
        return;
    const std::string file = "monkey-" + std::to_string(seed) + ".txt";
    std::ofstream out(file);
    for (const std::string& command : ape.script)
        out << command << '\n';
    ADD_FAILURE() << "seed " << seed << ": " << ape.fault << "; the script that leads there is " << file;
}

long length() {
    const char* const told = std::getenv("HUSTLE_MONKEY_TICKS");
    return told != nullptr ? std::atol(told) : 10'000'000;
}

// One number for the behaviour of the whole machine. A change that moves it says so, and why.
TEST(Signature, ALongSeededRunGoesAsItWent) {
    monkey ape(2026);
    while (ape.fault.empty() && ape.ticks < 400'000)
        ape.step();
    EXPECT_EQ(ape.signature, 4852729874591000472ULL);
}

class Monkey : public testing::TestWithParam<int> {};

TEST_P(Monkey, FindsNoDeadStateAndNoLostMoney) {
    let_loose(static_cast<std::uint64_t>(GetParam()), length() / 5);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Monkey, testing::Values(1, 2, 3, 20260, 777));

} // namespace
} // namespace hustle
