#include "show/spokennames.h"

#include "art/lamplooks.h"
#include "panel/ring.h"
#include "panel/sheet.h"
#include "panel/text.h"

#include <algorithm>
#include <iterator>

namespace hustle {

namespace {

using enum element;

struct fixed_name {
    element id;
    std::string_view name;
};
constexpr fixed_name names[] = {
    {cancelbutton, "Cancel"},
    {stopper, "Stop"},
    {start, "Start"},
    {transfer, "Transfer a pound from the bank to credits"},
    {trailheld, "Trail held"},
    {feature_hibutton, "Higher"},
    {feature_lobutton, "Lower"},
    {feature_collect, "Collect"},
    {feature_featurebutton, "Take the features ladder"},
    {feature_cashbutton, "Take the cash ladder"},
    {feature_shotbutton, "Take the shots"},
    {feature_exchangebutton, "Exchange"},
    {feature_stopfeature, "Stop"},
    {feature_startbutton, "Start"},
    {feature_el, "Extra life"},
    {feature_losegamble, "Lose"},
    {statistics_Picture1, "Back"},
    {statistics_Picture2, "Reset"},
    {Highscore_Picture1, "Exit"},
    {Highscore_Picture2, "Return"},
    {Highscore_Picture3, "Reset"},
    {Entername_image1, "Enter score"},
    {reelguide_Image1, "Strip of reel 1"},
    {reelguide_Image2, "Strip of reel 2"},
    {reelguide_Image3, "Strip of reel 3"},
    {wintable_Picture1, "Table of wins"},
};

// What a landing gives, by the kind of the square.
constexpr std::string_view landings[] = {
    "start",       "multi add: one of each",
    "one cash",    "two cash",
    "one shot",    "two shots",
    "one feature", "two features",
    "mystery",     "extra life",
    "boost",       "game over",
    "skill stop",  "random stop",
    "bomb",
};
static_assert(std::size(landings) == square_kinds);

std::string_view landing_on(int n) {
    return landings[static_cast<std::size_t>(ring[static_cast<std::size_t>(n - 1)])];
}

// A member of a family that stands in a row, counted from 1; 0 for any other element.
int place_in(element first, element last, element e) {
    return e >= first && e <= last ? static_cast<int>(e) - static_cast<int>(first) + 1 : 0;
}

std::string numbered(std::string_view family, int n, std::string_view what) {
    std::string name = std::string(family) + ' ' + std::to_string(n);
    return what.empty() ? name : (name += ": ") += what;
}

std::string_view symbol(const machine& m, int reel) {
    const std::string_view sym = m.reels[static_cast<std::size_t>(reel - 1)].sym;
    if (sym == "rseven")
        return "red seven";
    return sym == "bseven" ? std::string_view("blue seven") : sym;
}

std::string lamp(const std::string& name, bool lit) { return lit ? name + ", lit" : name; }

std::string hold_name(const game& g, element e, int n) {
    const art a = at(g.p, e).picture;
    if (a == art::nudgepicdark || a == art::nudgepiclight)
        return numbered("Nudge reel", n, {});
    if (a == art::stoppicdark || a == art::stoppiclight)
        return numbered("Stop reel", n, {});
    const machine& m = g.m;
    const bool held = reel(m, n).held == flag::yes;
    const std::string name = numbered("Hold reel", n, {});
    if (held)
        return name + ", held";
    return m.holdsoffered == flag::yes && m.nudges == 0 && m.holdsbarred != truth::is ? name + ", offered"
                                                                                      : name;
}

// The machine's lines are in capitals: what has none and no figure is a mark round a flashing text, "*" or
// "xxx", and is not read out.
std::string line_text(std::string_view text) {
    std::string said;
    while (!text.empty()) {
        const std::size_t blank = std::min(text.find(' '), text.size());
        const std::string_view part = text.substr(0, blank);
        text.remove_prefix(std::min(blank + 1, text.size()));
        const bool spoken = std::any_of(part.begin(), part.end(), [](char c) {
            return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z');
        });
        if (spoken)
            (said += said.empty() ? "" : " ") += part;
    }
    return said;
}

std::string counted(std::string_view figures, std::string_view one, std::string_view many) {
    return std::string(figures) + ' ' + std::string(figures == "1" ? one : many);
}

// "3 pounds 60"; nothing more where there is no odd penny.
std::string money_in_words(const game& g, single amount) {
    const short_text all = fixed(amount);
    const std::string_view text = all;
    const bool dollars = g.m.currency == setting::usd;
    std::string words = counted(text.substr(0, text.size() - 3), dollars ? "dollar" : "pound",
                                dollars ? "dollars" : "pounds");
    const std::string_view odd = text.substr(text.size() - 2);
    return odd == "00" ? words : (words += ' ') += odd;
}

// The figures line, bank at the left and credits at the right, is told from any other by its shape.
bool shows_figures(const game& g) {
    const std::string_view text = caption(g.p, displayline);
    const short_text start = short_text(" ").add(fixed(g.m.bank)).add("  ");
    const short_text end = short_text(" ").add(plain(g.m.credits));
    return text.starts_with(std::string_view(start)) && text.ends_with(std::string_view(end));
}

std::string figures(const game& g) {
    std::string words = "Bank " + money_in_words(g, g.m.bank);
    if (is_running(g.p, timer::wintobank) && g.m.win > 0.15f)
        words += ", win " + money_in_words(g, g.m.win);
    return words + ", " + counted(plain(g.m.credits), "credit", "credits");
}

std::string family_name(const game& g, element e) {
    const panel& p = g.p;
    const art a = at(p, e).picture;
    if (const int n = place_in(reel1, reel3, e))
        return numbered("Reel", n, symbol(g.m, n));
    if (const int n = place_in(hold1, hold3, e))
        return hold_name(g, e, n);
    if (const int n = place_in(feature_square1, feature_square24, e))
        return lamp(numbered("Square", n, landing_on(n)), a >= art::boxlight1 && a <= art::boxlight24);
    if (const int n = place_in(feature_bomb1, feature_bomb3, e))
        return lamp(numbered("Bomb", n, {}), a == art::bombiconlight);
    if (const int n = place_in(numberone, numbernine, e))
        return lamp(numbered("Trail", n, caption(p, e)), is_lit(row(e), at(p, e)));
    if (e == picture1)
        return "Nudges: " + std::to_string(g.m.nudges);
    if (e == nudgenow)
        return a == art::nudgenowpiclight ? "Nudge now" : "Nudge lamp, dark";
    if (e == feature_dicepic && a >= art::dice1pic && a <= art::dice6pic)
        return "Die: " + std::to_string(static_cast<int>(a) - static_cast<int>(art::dice1pic) + 1);
    return {};
}

std::string line_name(const game& g, element e) {
    if (e == displayline && shows_figures(g))
        return figures(g);
    const std::string text = line_text(caption(g.p, e));
    return e == feature_shotbox ? "Shots: " + text : text;
}

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

} // namespace

std::string spoken_name(const game& g, element e) {
    for (const fixed_name& f : names)
        if (f.id == e)
            return std::string(f.name);
    if (std::string family = family_name(g, e); !family.empty())
        return family;
    const element_row& r = row(e);
    const element_state& state = at(g.p, e);
    switch (r.what) {
    case kind::label: return lamp(state.text, is_lamp(r) && is_lit(r, state));
    case kind::line: return line_name(g, e);
    case kind::textbox: return trimmed(state.text);
    case kind::push: {
        std::string text = state.text;
        std::erase(text, '&');
        return text;
    }
    default: return {};
    }
}

} // namespace hustle
