#include "show/hints.h"

#include "board/board.h"
#include "core/play.h"
#include "core/reels.h"
#include "panel/text.h"

#include <algorithm>

namespace hustle {

namespace {

using enum element;

bool runs(const game& g, timer t) { return is_running(g.p, t); }
bool live(const game& g, element e) { return is_enabled(g.p, e) && is_visible(g.p, e); }

template <std::size_t n> bool any_runs(const game& g, const timer (&timers)[n]) {
    return std::any_of(std::begin(timers), std::end(timers), [&](timer t) { return runs(g, t); });
}

// What a hint says to whom plays by keys, and to whom touches the screen.
struct words {
    std::string_view by_keys, by_touch;
};
constexpr words to_both(std::string_view text) { return {text, text}; }

// What the stop button of main stops: the first of these that runs.
struct stop_hint {
    timer running;
    words text;
};
constexpr stop_hint main_stops[] = {
    {timer::skill_nudges,
     {"The figure counts 1 to 5: Space takes it as your nudges",
      "The figure counts 1 to 5: Stop takes it as your nudges"}},
    {timer::pseudo_nudges,
     {"The figure jumps: Space takes it as your nudges", "The figure jumps: Stop takes it as your nudges"}},
    {timer::rollem, {"Space stops the roll", "Stop ends the roll"}},
    {timer::selector,
     {"The trail jumps: Space keeps it where it stands", "The trail jumps: Stop keeps it where it stands"}},
    {timer::trailstopper, {"Space stops the light on the trail", "Stop halts the light on the trail"}},
    {timer::trailskill,
     {"Space stops the light on the trail; C slows it",
      "Stop halts the light on the trail; Cancel slows it"}},
    {timer::trailclimb,
     {"Space stops the light: climb as far as you can", "Stop halts the light: climb as far as you can"}},
    {timer::bonus_timer,
     {"Space takes the award that the line names", "Stop takes the award that the line names"}},
    {timer::yes_no, {"Space stops YES and NO: YES gives it once more", "Stop on YES gives it once more"}},
};

words stopper_hint(const game& g) {
    for (const stop_hint& s : main_stops)
        if (runs(g, s.running))
            return s.text;
    return {}; // live before its light runs
}

constexpr timer reels[] = {timer::reelspin1, timer::reelspin2, timer::reelspin3,    timer::spinreel1,
                           timer::spinreel2, timer::spinreel3, timer::start_spin_in};

words offer_hint(const game& g) {
    const machine& m = g.m;
    if (m.badholdmade == truth::is)
        return {"A hold breaks the promise of a win: C takes it back; Space plays",
                "A hold breaks the promise of a win: Cancel takes it back; Start plays"};
    if (m.holdsbarred == truth::is)
        return {"Hold nothing: Space spins free, and the reels make a win",
                "Hold nothing: Start spins free, and the reels make a win"};
    if (m.linepromised == truth::is)
        return {"Hold nothing more: Space spins free, and the reels make a win",
                "Hold nothing more: Start spins free, and the reels make a win"};
    if (held_reels(m) == 3)
        return {"C clears the holds; Space plays", "Cancel clears the holds; Start plays"};
    if (held_reels(m) > 0)
        return {"1 2 3 hold a reel, C clears the holds; Space plays",
                "Hold keeps its reel, Cancel clears the holds; Start plays"};
    return {"Hold lamps flash: 1 2 3 hold a reel; Space plays",
            "Hold lamps flash: Hold keeps its reel; Start plays"};
}

// With no play left and the machine free.
words empty_hint(const game& g) {
    const machine& m = g.m;
    if (m.bank > 0.1f)
        return g.p.dollars
                   ? words{"No credits: 0 turns $1 of the bank into four plays",
                           "No credits: the button with the coin turns $1 of the bank into four plays"}
                   : words{"No credits: 0 turns £1 of the bank into four plays",
                           "No credits: the button with the coin turns £1 of the bank into four plays"};
    return to_both("No credits and no bank: Game, New");
}

// Chains that keep no play waiting, and after which Start is lit again.
constexpr timer passing[] = {timer::init_trail_timer, timer::ilikeit,       timer::dontholdany,
                             timer::letemspin,        timer::banktocredits, timer::numbers2};

words main_hint(const game& g) {
    const machine& m = g.m;
    if (live(g, stopper))
        return stopper_hint(g);
    if (runs(g, timer::reelskill))
        return {"1 stops reel 1", "The left Hold stops reel 1"};
    if (runs(g, timer::reelskill2))
        return {"3 stops reel 3: on the symbol of reel 1 it wins",
                "The right Hold stops reel 3: on the symbol of reel 1 it wins"};
    if (any_runs(g, reels))
        return {};
    if (m.nudges >= 1 && runs(g, timer::nudgetimer))
        return {"1 2 3 nudge a reel down by one stop", "Nudge moves its reel down by one stop"};
    if (runs(g, timer::wintobank))
        return to_both("The win is counted into the bank");
    if (machine_busy(g))
        return {};
    if (m.credits <= 0.1f)
        return empty_hint(g);
    if (!live(g, start))
        return to_both(any_runs(g, passing) ? ""
                                            : "A promise cannot be kept, and Start stays dark: Game, New");
    return m.holdsoffered == flag::yes ? offer_hint(g) : words{"Space plays", "Start plays"};
}

constexpr stop_hint board_stops[] = {
    {timer::feature_shots_timer, {"Space shoots", "Stop shoots"}},
    {timer::feature_skillstoptimer,
     {"Space stops the light on a square", "Stop halts the light on a square"}},
    {timer::feature_randomstop, {"Space stops the light on a square", "Stop halts the light on a square"}},
    {timer::feature_moneybelttimer,
     {"Space stops the belt: three prices in the window are yours",
      "Stop halts the belt: three prices in the window are yours"}},
    {timer::feature_fastcash,
     {"Space stops the light on the cash ladder", "Stop halts the light on the cash ladder"}},
    {timer::feature_shock_timer, {"Space stops the light on a label", "Stop halts the light on a label"}},
    {timer::feature_shock_trueskill, {"Space stops the light on a label", "Stop halts the light on a label"}},
    {timer::feature_pickaladder,
     {"Space takes the ladder that flashes", "Stop takes the ladder that flashes"}},
    {timer::feature_yesorno, {"Space stops YES and NO", "Stop takes the YES or the NO"}},
};

words board_stop_hint(const game& g) {
    if (g.m.award == award::shots && g.b.shotstate == shooting::on_offer)
        return {"Space shoots again; Tab and Enter on Collect takes the prize",
                "The lit Start shoots again; Collect takes the prize"}; // Stop shows another picture then
    if ((runs(g, timer::feature_pickaladder) && g.b.ladderpick == 0) ||
        (runs(g, timer::feature_yesorno) && g.b.yesnoanswer.empty()))
        return {}; // nothing is shown yet, and nothing is taken
    for (const stop_hint& s : board_stops)
        if (runs(g, s.running))
            return s.text;
    return {};
}

bool can_call(const game& g) { return live(g, feature_hibutton) || live(g, feature_lobutton); }

words gamble_hint(const game& g) {
    if (!can_call(g))
        return {};
    if (live(g, feature_exchangebutton))
        return {"Tab and Enter: Higher, Lower, Exchange for the ring, or Collect",
                "Higher, Lower, Exchange for the ring, or Collect"};
    return {"Tab and Enter: Higher or Lower gambles, Collect takes the win",
            "Higher or Lower gambles, Collect takes the win"};
}

words board_hint(const game& g) {
    if (runs(g, timer::feature_exittimer)) // the board closes, whatever key is still live
        return {};
    if (live(g, feature_stopfeature))
        return board_stop_hint(g);
    if (board_chain_runs(g))
        return {};
    if (g.m.featuremode == mode::hilo)
        return gamble_hint(g);
    if (live(g, feature_startbutton))
        return live(g, feature_cashbutton)
                   ? words{"Space rolls the die; Tab and Enter on Cash, Feature or Shots takes that ladder",
                           "Start rolls the die; Cash, Feature or Shots takes that ladder"}
                   : words{"Space goes on", "Start goes on"};
    return {};
}

words words_for(const game& g) {
    const screen s = front(g.p);
    if (s == screen::feature)
        return board_hint(g);
    if (s == screen::main)
        return main_hint(g);
    return s == screen::Entername ? words{"Type your name; Enter puts it into the table",
                                          "Type your name; the button beneath puts it into the table"}
                                  : words{};
}

} // namespace

std::string_view hint(const game& g, hands by) {
    const words said = words_for(g);
    return by == hands::keys ? said.by_keys : said.by_touch;
}

std::string bank_label(const game& g) {
    std::string text = g.m.currency == setting::usd ? "Bank $" : "Bank £";
    return text += std::string_view(fixed(g.m.bank));
}

std::string credits_label(const game& g) {
    return "Credits " + std::string(std::string_view(plain(g.m.credits)));
}

} // namespace hustle
