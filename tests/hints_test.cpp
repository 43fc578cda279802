// The hint line: what it names is taken by the machine at that moment, by keys and by touch, and a machine
// that waits always has a hint.
#include "core/bank.h"
#include "core/reels.h"
#include "panel/sheet.h"
#include "script/dump.h"
#include "show/hints.h"
#include "tests/showgame.h"

#include <algorithm>
#include <functional>
#include <set>
#include <vector>

using namespace hustle;

namespace {

struct Hints : showgame {};

// What a hint may name, and what the player then does; of several inputs one at least must act.
struct named_deed {
    std::string_view says;
    std::vector<input> deeds;
};
input key_of(screen where, int code) { return {input::kind::key, where, element::total, code}; }
input press_of(element e) { return {input::kind::press, row(e).where, e}; }

// The same for hands that touch: the button that is named acts.
std::vector<named_deed> touches_on(screen s) {
    if (s == screen::main)
        return {{"Start ", {press_of(element::start)}},
                {"Stop ", {press_of(element::stopper)}},
                {"Cancel ", {press_of(element::cancelbutton)}},
                {"with the coin", {press_of(element::transfer)}},
                {"left Hold", {press_of(element::hold1)}},
                {"right Hold", {press_of(element::hold3)}},
                {" reel", {press_of(element::hold1), press_of(element::hold2), press_of(element::hold3)}}};
    // With a prize of the shots on offer the stop button shows Start.
    return {{"Start ", {press_of(element::feature_startbutton), press_of(element::feature_stopfeature)}},
            {"Stop ", {press_of(element::feature_stopfeature)}}};
}

std::vector<named_deed> deeds_on(screen s) {
    const auto key = [s](int code) { return std::vector{key_of(s, code)}; };
    if (s == screen::main)
        return {{"Space", key(space)},  {"C takes", key('C')},
                {"C clears", key('C')}, {"C slows", key('C')},
                {"0 turns", key('0')},  {"1 stops", key('1')},
                {"3 stops", key('3')},  {"1 2 3", {key_of(s, '1'), key_of(s, '2'), key_of(s, '3')}}};
    return {{"Space", key(space)},
            {"Lower", {press_of(element::feature_hibutton), press_of(element::feature_lobutton)}},
            {"Collect", {press_of(element::feature_collect)}},
            {"Exchange", {press_of(element::feature_exchangebutton)}},
            {"Cash", {press_of(element::feature_cashbutton)}},
            {"Feature", {press_of(element::feature_featurebutton)}},
            {"Shots", {press_of(element::feature_shotbutton)}}};
}

// A machine beside another, to find out what an input would change.
struct twin {
    stillworld elsewhere;
    game g{elsewhere};
    script::names all{g};

    bool would_act(const game& of, const input& in) {
        g.m = of.m, g.b = of.b, g.t = of.t, g.p = of.p;
        const std::uint64_t before = script::hash(all);
        apply(g, in);
        return script::hash(all) != before;
    }
};

// Each state of the machine: what the hint says, and that the key does it.
struct waiting_state {
    const char* name;
    void (*reach)(showgame&);
    std::string_view says; // empty: nothing, and neither Start nor a hold is taken
    int code;              // the key that it names; 0: none
    bool (*done)(const game&);
};

const waiting_state states[] = {
    {"no offer", [](showgame&) {}, "Space plays", space,
     [](const game& g) { return is_running(g.p, timer::reelspin1) && g.m.credits == 19; }},
    {"holds offered", [](showgame& t) { t.g.m.holdsoffered = "yes"; }, "Hold lamps flash: 1 2 3 hold a reel",
     '3', [](const game& g) { return reel(g.m, 3).held == "yes"; }},
    {"a reel held",
     [](showgame& t) {
         t.g.m.holdsoffered = "yes";
         t.key('1');
     },
     "C clears the holds", 'C', [](const game& g) { return reel(g.m, 1).held == "no"; }},
    {"three reels held",
     [](showgame& t) {
         t.g.m.holdsoffered = "yes";
         for (const int code : {'1', '2', '3'})
             t.key(code);
     },
     "C clears the holds; Space plays", 'C', [](const game& g) { return held_reels(g.m) == 0; }},
    {"let em spin", [](showgame& t) { t.g.m.holdsoffered = "yes", t.g.m.linepromised = "true"; },
     "Hold nothing more: Space spins free", space,
     [](const game& g) { return g.m.credits == 20 && is_running(g.p, timer::start_spin_in); }},
    {"reels running",
     [](showgame& t) {
         t.key(space);
         t.run(300);
     },
     "", 0, nullptr},
    {"dont hold any",
     [](showgame& t) { t.g.m.holdsoffered = t.g.m.linepromised = "yes", t.g.m.holdsbarred = "true"; },
     "Hold nothing: Space spins free", space, [](const game& g) { return reel(g.m, 1).held == "no"; }},
    {"bad hold",
     [](showgame& t) {
         t.g.m.holdsoffered = "yes";
         t.g.m.holdsbarred = t.g.m.linepromised = "true";
         t.key('1');
     },
     "C takes it back", 'C', [](const game& g) { return g.m.linepromised == "true"; }},
    {"nudges in hand",
     [](showgame& t) {
         t.g.m.nudges = 2;
         start_timer(t.g.p, timer::nudgetimer);
         t.run(130);
     },
     "1 2 3 nudge a reel", '2', [](const game& g) { return g.m.nudges == 1; }},
    {"random nudges",
     [](showgame& t) {
         enable(t.g.p, element::stopper);
         start_timer(t.g.p, timer::pseudo_nudges);
         t.run(100);
     },
     "Space takes it as your nudges", space, [](const game& g) { return is_running(g.p, timer::addnudges); }},
    {"skill nudges",
     [](showgame& t) {
         enable(t.g.p, element::stopper);
         start_timer(t.g.p, timer::skill_nudges);
         t.run(3 * 120 + 10);
     },
     "counts 1 to 5: Space takes it", space,
     [](const game& g) { return g.m.nudges == 3 && is_running(g.p, timer::addnudges); }},
    {"reel skill", [](showgame& t) { start_timer(t.g.p, timer::reelskill); }, "1 stops reel 1", '1',
     [](const game& g) { return !is_running(g.p, timer::reelskill); }},
    {"reel skill, its second stop", [](showgame& t) { start_timer(t.g.p, timer::reelskill2); },
     "3 stops reel 3", '3', [](const game& g) { return !is_running(g.p, timer::reelskill2); }},
    {"payout",
     [](showgame& t) {
         t.g.m.win = 2;
         start_timer(t.g.p, timer::wintobank);
     },
     "counted into the bank", 0, nullptr},
    {"a bank without credits",
     [](showgame& t) {
         t.g.m.credits = 0;
         t.g.m.bank = 3;
     },
     "0 turns £1 of the bank into four plays", '0',
     [](const game& g) { return is_running(g.p, timer::banktocredits); }},
    {"attract mode with a dead start",
     [](showgame& t) {
         t.g.m.credits = 0;
         t.run(10100);
     },
     "No credits and no bank: Game, New", 0, nullptr},
    {"a promise whose pair was nudged away",
     [](showgame& t) {
         t.g.m.bank = 3;
         for (int which = 1; which <= 3; ++which)
             set_stop(t.g, which, which); // bell, pound, ... no two alike
         t.g.m.linepromised = t.g.m.holdsbarred = "true";
         t.key(space);
         t.run(8000);
     },
     "Start stays dark: Game, New", 0, nullptr},
    {"the gamble", [](showgame& t) { t.open_board("hilo", 1); }, "Tab and Enter: Higher or Lower", 0,
     nullptr},
    {"continue or collect",
     [](showgame& t) {
         t.open_board("feature", 1);
         t.run(2000);
     },
     "Space rolls the die; Tab and Enter on Cash, Feature or Shots", space,
     [](const game& g) { return is_running(g.p, timer::feature_spin_dice); }},
    {"a light on the squares",
     [](showgame& t) { t.open_stop(award::randomstop, timer::feature_randomstop, 500); },
     "Space stops the light on a square", space,
     [](const game& g) { return !is_running(g.p, timer::feature_randomstop); }},
    {"two ladders before the first is shown",
     [](showgame& t) { t.open_stop(award::pickaladder, timer::feature_pickaladder, 0); }, "", 0, nullptr},
    {"two ladders", [](showgame& t) { t.open_stop(award::pickaladder, timer::feature_pickaladder, 1500); },
     "Space takes the ladder that flashes", space,
     [](const game& g) { return !is_running(g.p, timer::feature_pickaladder); }},
};

TEST_F(Hints, AnswerEachStateAndTheKeyTheyNameDoesIt) {
    twin other;
    for (const waiting_state& state : states) {
        s = {};
        SetUp();
        enable(g.p, element::start);
        state.reach(*this);
        EXPECT_NE(hint(g).find(state.says), std::string_view::npos) << state.name << ": " << hint(g);
        if (state.says.empty()) {
            EXPECT_EQ(hint(g), "") << state.name;
            for (const int code : {space, int{'1'}, int{'2'}, int{'3'}})
                EXPECT_FALSE(other.would_act(g, key_of(screen::main, code))) << state.name;
        }
        if (state.code == 0)
            continue;
        EXPECT_TRUE(key(state.code)) << state.name;
        EXPECT_TRUE(state.done(g)) << state.name;
    }
}

// In long play by random keys all that a hint names is taken by the machine at that moment, and a
// machine that waits always has a hint.
TEST_F(Hints, HoldInLongPlay) {
    const auto says = [&](std::string_view what) { return hint(g).find(what) != std::string_view::npos; };
    constexpr element board_buttons[] = {element::feature_hibutton,   element::feature_lobutton,
                                         element::feature_collect,    element::feature_exchangebutton,
                                         element::feature_cashbutton, element::feature_shotbutton};
    twin other;
    const auto acts = [&](const input& in) { return other.would_act(g, in); };
    int silent = 0, visits = 0;
    std::set<std::string_view> seen;
    for (int step = 0; step < 8000; ++step) {
        const bool board = is_loaded(g.p, screen::feature);
        EXPECT_LE(hint(g).size(), 91U);
        for (const named_deed& d : deeds_on(board ? screen::feature : screen::main)) {
            EXPECT_TRUE(!says(d.says) || std::any_of(d.deeds.begin(), d.deeds.end(), acts))
                << d.says << " of: " << hint(g) << " at step " << step;
        }
        const std::string_view touch = hint(g, hands::touch);
        EXPECT_EQ(touch.empty(), hint(g).empty());
        EXPECT_LE(touch.size(), 91U);
        EXPECT_EQ(touch.find("Space"), std::string_view::npos) << touch;
        EXPECT_EQ(touch.find("Tab"), std::string_view::npos) << touch;
        if (hint(g) != touch) {
            for (const named_deed& d : touches_on(board ? screen::feature : screen::main))
                EXPECT_TRUE(touch.find(d.says) == std::string_view::npos ||
                            std::any_of(d.deeds.begin(), d.deeds.end(), acts))
                    << d.says << " of: " << touch << " at step " << step;
        }
        seen.insert(hint(g));
        silent = hint(g).empty() ? silent + 1 : 0;
        ASSERT_LT(silent, 200) << "a minute without a word at step " << step;
        constexpr int codes[] = {space, space, '1', '2', '3', 'C', '0'};
        if (draw(g, 2) == 1)
            key(codes[draw(g, 7) - 1]);
        else if (board)
            apply(g, press_of(board_buttons[draw(g, 6) - 1]));
        if (g.m.credits <= 0.1F && g.m.bank <= 0.1F && says("Game, New"))
            startnewgame(g);
        deliver(g, g.p.now + draw(g, 600));
        visits += !board && is_loaded(g.p, screen::feature);
    }
    EXPECT_GT(seen.size(), 20U);
    EXPECT_GT(visits, 10);
}

} // namespace
