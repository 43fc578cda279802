#include "show/hints.h"

#include "board/board.h"
#include "core/play.h"
#include "core/reels.h"
#include "panel/text.h"

#include <algorithm>

namespace hustle {

namespace {

// In the texts below {a|b} is a for one who plays by keys, and b for one who touches the buttons.

using enum element;

bool runs(const game& g, timer t) { return is_running(g.p, t); }
bool live(const game& g, element e) { return is_enabled(g.p, e) && is_visible(g.p, e); }

template <std::size_t n> bool any_runs(const game& g, const timer (&timers)[n]) {
    return std::any_of(std::begin(timers), std::end(timers), [&](timer t) { return runs(g, t); });
}

// What the stop button of main stops: the first of these that runs.
struct stop_hint {
    timer running;
    std::string_view text;
};
constexpr stop_hint main_stops[] = {
    {timer::skill_nudges, "The figure counts 1 to 5: {Space|Stop} takes it as your nudges"},
    {timer::pseudo_nudges, "The figure jumps: {Space|Stop} takes it as your nudges"},
    {timer::rollem, "{Space stops|Stop ends} the roll"},
    {timer::selector, "The trail jumps: {Space|Stop} keeps it where it stands"},
    {timer::trailstopper, "{Space stops|Stop halts} the light on the trail"},
    {timer::trailskill, "{Space stops|Stop halts} the light on the trail; {C|Cancel} slows it"},
    {timer::trailclimb, "{Space stops|Stop halts} the light: climb as far as you can"},
    {timer::bonus_timer, "{Space|Stop} takes the award that the line names"},
    {timer::yes_no, "{Space stops|Stop halts} YES and NO: YES gives it once more"},
};

std::string_view stopper_hint(const game& g) {
    for (const stop_hint& s : main_stops)
        if (runs(g, s.running))
            return s.text;
    return {}; // live before its light runs
}

constexpr timer reels[] = {timer::reelspin1, timer::reelspin2, timer::reelspin3,    timer::spinreel1,
                           timer::spinreel2, timer::spinreel3, timer::start_spin_in};

std::string_view offer_hint(const game& g) {
    const machine& m = g.m;
    if (m.badholdmade == truth::is)
        return "A hold breaks the promise of a win: {C|Cancel} takes it back; {Space|Start} plays";
    if (m.holdsbarred == truth::is)
        return "Hold nothing: {Space|Start} spins free, and the reels make a win";
    if (m.linepromised == truth::is)
        return "Hold nothing more: {Space|Start} spins free, and the reels make a win";
    if (held_reels(m) == 3)
        return "{C|Cancel} clears the holds; {Space|Start} plays";
    if (held_reels(m) > 0)
        return "{1 2 3 hold|Hold holds} a reel, {C|Cancel} clears the holds; {Space|Start} plays";
    return "Hold lamps flash: {1 2 3 hold|Hold holds} a reel; {Space|Start} plays";
}

// With no play left and the machine free.
std::string_view empty_hint(const game& g) {
    const machine& m = g.m;
    if (m.bank > 0.1f)
        return g.p.dollars ? "No credits: {0 turns|The arrows turn} $1 of the bank into four plays"
                           : "No credits: {0 turns|The arrows turn} £1 of the bank into four plays";
    return "No credits and no bank: Game, New";
}

// Chains that keep no play waiting, and after which Start is lit again.
constexpr timer passing[] = {timer::init_trail_timer, timer::ilikeit,       timer::dontholdany,
                             timer::letemspin,        timer::banktocredits, timer::numbers2};

std::string_view main_hint(const game& g) {
    const machine& m = g.m;
    if (live(g, stopper))
        return stopper_hint(g);
    if (runs(g, timer::reelskill))
        return "{1|The first Hold} stops reel 1";
    if (runs(g, timer::reelskill2))
        return "{3|The third Hold} stops reel 3: on the symbol of reel 1 it wins";
    if (any_runs(g, reels))
        return {};
    if (m.nudges >= 1 && runs(g, timer::nudgetimer))
        return "{1 2 3 nudge|Hold nudges} a reel down by one stop";
    if (runs(g, timer::wintobank))
        return "The win is counted into the bank";
    if (machine_busy(g))
        return {};
    if (m.credits <= 0.1f)
        return empty_hint(g);
    if (!live(g, start))
        return any_runs(g, passing) ? "" : "A promise cannot be kept, and Start stays dark: Game, New";
    return m.holdsoffered == flag::yes ? offer_hint(g) : "{Space|Start} plays";
}

constexpr stop_hint board_stops[] = {
    {timer::feature_shots_timer, "{Space|Stop} shoots"},
    {timer::feature_skillstoptimer, "{Space stops|Stop halts} the light on a square"},
    {timer::feature_randomstop, "{Space stops|Stop halts} the light on a square"},
    {timer::feature_moneybelttimer,
     "{Space stops|Stop halts} the belt: three prices in the window are yours"},
    {timer::feature_fastcash, "{Space stops|Stop halts} the light on the cash ladder"},
    {timer::feature_shock_timer, "{Space stops|Stop halts} the light on a label"},
    {timer::feature_shock_trueskill, "{Space stops|Stop halts} the light on a label"},
    {timer::feature_pickaladder, "{Space|Stop} takes the ladder that flashes"},
    {timer::feature_yesorno, "{Space stops|Stop halts} YES and NO"},
};

std::string_view board_stop_hint(const game& g) {
    if (g.m.award == award::shots && g.b.shotstate == shooting::on_offer)
        return "{Space shoots again; Tab and Enter on|Start shoots again;} Collect takes the prize";
    if ((runs(g, timer::feature_pickaladder) && g.b.ladderpick == 0) ||
        (runs(g, timer::feature_yesorno) && g.b.yesnoanswer.empty()))
        return {}; // nothing is shown yet, and nothing is taken
    for (const stop_hint& s : board_stops)
        if (runs(g, s.running))
            return s.text;
    return {};
}

bool can_call(const game& g) { return live(g, feature_hibutton) || live(g, feature_lobutton); }

std::string_view gamble_hint(const game& g) {
    if (!can_call(g))
        return {};
    if (live(g, feature_exchangebutton))
        return "{Tab and Enter: |}Higher, Lower, Exchange for the ring, or Collect";
    return "{Tab and Enter: |}Higher or Lower gambles, Collect takes the win";
}

std::string_view board_hint(const game& g) {
    if (runs(g, timer::feature_exittimer)) // the board closes, whatever key is still live
        return {};
    if (live(g, feature_stopfeature))
        return board_stop_hint(g);
    if (board_chain_runs(g))
        return {};
    if (g.m.featuremode == mode::hilo)
        return gamble_hint(g);
    if (live(g, feature_startbutton))
        return live(g, feature_cashbutton) ? "{Space|Start} rolls the die; {Tab and Enter on |}Cash, Feature "
                                             "or Shots takes that ladder"
                                           : "{Space|Start} goes on";
    return {};
}

std::string_view hint_of(const game& g) {
    const screen s = front(g.p);
    if (s == screen::feature)
        return board_hint(g);
    if (s == screen::main)
        return main_hint(g);
    return s == screen::Entername ? "Type your name; {Enter|the button beneath} puts it into the table" : "";
}

} // namespace

std::string hint(const game& g, hand with) {
    std::string said;
    bool choice = false, first = true; // within braces; before the bar
    for (const char letter : hint_of(g))
        if (letter == '{' || letter == '}')
            choice = letter == '{', first = true;
        else if (choice && letter == '|')
            first = false;
        else if (!choice || first == (with == hand::keys))
            said += letter;
    return said;
}

std::string bank_label(const game& g) {
    std::string text = g.m.currency == setting::usd ? "Bank $" : "Bank £";
    return text += std::string_view(fixed(g.m.bank));
}

std::string credits_label(const game& g) {
    return "Credits " + std::string(std::string_view(plain(g.m.credits)));
}

} // namespace hustle
