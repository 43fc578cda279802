#include "script/moves.h"

#include "core/upward.h"
#include "panel/sheet.h"
#include "panel/text.h"
#include "screens/events.h"
#include "script/names.h"
#include "script/operations.h"

namespace hustle::script {

namespace {

element as_element(int value) { return static_cast<element>(value); }
screen as_screen(int value) { return static_cast<screen>(value & 15); }
const operation_row& as_operation(int value) { return operation_rows()[static_cast<std::size_t>(value)]; }

void press(game& g, int e) { apply(g, {.what = input::kind::press, .on = as_element(e)}); }
void key(game& g, int value) {
    apply(g, {.what = input::kind::key, .where = as_screen(value), .code = value >> 4});
}
void close(game& g, int s) { apply(g, {.what = input::kind::close, .where = as_screen(s)}); }
void call(game& g, int operation) { as_operation(operation).run(g); }

constexpr word awards[] = {"",         "nothing",     "continue",  "electricshock",  "fastcash",
                           "jackpot",  "luckysevens", "moneybelt", "supermoneybelt", "pickaladder",
                           "pickawin", "randomstop",  "shots",     "skillstop",      "winspins",
                           "winstreak"};
word as_award(int value) { return awards[value]; }
timer as_timer(int value) { return static_cast<timer>(value); }

std::string element_text(int e) { return full_name(as_element(e)); }
std::string number_text(int value) { return std::to_string(value); }
std::string bomb_text(int e) { return element_text(e) + ".art bombiconlight"; }
std::string screen_text(int s) { return std::string(row(as_screen(s)).name); }
std::string key_text(int value) { return number_text(value >> 4) + " " + screen_text(value); }
std::string call_text(int operation) {
    const operation_row& o = as_operation(operation);
    return std::string(row(o.where).name) + "." + std::string(o.name);
}

single tenths(int value) { return static_cast<single>(value / 10.0); }
single quarters(int value) { return static_cast<single>(value / 4.0); }
std::string tenths_text(int value) { return std::string(plain(tenths(value))); }
std::string quarters_text(int value) { return std::string(plain(quarters(value))); }

const field_row& as_field(int value) { return field_rows()[static_cast<std::size_t>(value / 64)]; }
int field_value(int value) {
    const auto& bears = as_field(value).bears;
    return bears ? bears->least + value % 64 % (bears->most - bears->least + 1) : value % 64;
}
void set_field(game& g, int value) {
    const auto to = static_cast<count>(field_value(value));
    const auto set_reel = [&](const reel_place& f) {
        std::visit(each{[&](count reel_state::*what) { reel(g.m, f.which).*what = to; }, [](auto) {}},
                   f.what);
    };
    std::visit(each{set_reel, [&](count machine::*f) { g.m.*f = to; }, [&](count board::*f) { g.b.*f = to; },
                    [&](count table_fields::*f) { g.t.*f = to; }, [](auto) {}},
               as_field(value).where);
}
std::string field_text(int value) {
    return std::string(as_field(value).name) + " " + std::to_string(field_value(value));
}

std::string timer_text(int t) { return full_name(as_timer(t)) + ".running true"; }
std::string award_text(int value) { return quote(as_award(value)); }

struct deed_row {
    deed what;
    std::string_view begins; // the line up to the value
    std::string (*rest)(int);
    void (*make)(game&, int);
};

// clang-format off
constexpr deed_row deeds[] = {
    {deed::press,       "press ",             element_text, press},
    {deed::press_yes,   "answer yes\npress ", element_text, press},
    {deed::run,         "run ",               number_text,  [](game&, int) {}},
    {deed::pairholds,   "set pairholds ",     number_text,  [](game& g, int to) { g.m.pairholds = static_cast<count>(to); }},
    {deed::moneyout,    "set moneyout ",      number_text,
                        [](game& g, int to) { g.m.moneyout = static_cast<single>(to); }},
    {deed::featurerung, "set feature.featurerung ", number_text,
                        [](game& g, int to) { g.b.featurerung = static_cast<count>(to); }},
    {deed::shots,       "set feature.shots ", number_text,  [](game& g, int to) { g.b.shots = static_cast<count>(to); }},
    {deed::bomb,        "set ",               bomb_text,
                        [](game& g, int e) { set_picture(g.p, as_element(e), art::bombiconlight); }},
    {deed::key,         "key ",               key_text,     key},
    {deed::close,       "close ",             screen_text,  close},
    {deed::call,        "call ",              call_text,    call},
    {deed::load,        "load ",              screen_text,  [](game& g, int s) { load_screen(g, as_screen(s)); }},
    {deed::begin,       "set ",               timer_text,   [](game& g, int t) { start_timer(g.p, as_timer(t)); }},
    {deed::award,       "set award ",         award_text,   [](game& g, int to) { g.m.award = as_award(to); }},
    {deed::pcent,       "set pcent ",         number_text,
                        [](game& g, int to) { g.m.pcent = static_cast<single>(to); }},
    {deed::win,         "set win ",           tenths_text,  [](game& g, int to) { g.m.win = tenths(to); }},
    {deed::credits,     "set credits ",       quarters_text, [](game& g, int to) { g.m.credits = quarters(to); }},
    {deed::field,       "set ",               field_text,   set_field},
};
// clang-format on

const deed_row& row(deed d) { return deeds[static_cast<std::size_t>(d)]; }

} // namespace

std::span<const word> award_words() { return awards; }

void make(game& g, monkeyworld& w, const move& m) {
    w.yes = m.what == deed::press_yes;
    row(m.what).make(g, m.value);
    settle(g); // of an operation that was called
}

std::string written(std::uint64_t seed, std::span<const move> moves) {
    std::string text = "seed " + std::to_string(seed) + "\n";
    for (const move& m : moves)
        text.append(row(m.what).begins).append(row(m.what).rest(m.value)).append("\n");
    return text;
}

} // namespace hustle::script
