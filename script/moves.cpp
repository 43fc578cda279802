#include "script/moves.h"

#include "screens/dispatch.h"
#include "script/names.h"

namespace hustle::script {

namespace {

struct deed_row {
    std::string_view begins; // the line up to the value
    void (*make)(game&, int);
};

constexpr deed_row deeds[] = {
    {"press ", nullptr},
    {"answer yes\npress ", nullptr},
    {"run ", nullptr},
    {"set pairholds ", [](game& g, int to) { set(g.m.pairholds, to); }},
    {"set moneyout ", [](game& g, int to) { g.m.moneyout = static_cast<single>(to); }},
    {"set feature.featurerung ", [](game& g, int to) { set(g.b.featurerung, to); }},
    {"set feature.shots ", [](game& g, int to) { set(g.b.shots, to); }},
    {"set ", [](game& g, int e) { set_picture(g.p, static_cast<element>(e), art::bombiconlight); }},
};

const deed_row& row(deed d) { return deeds[static_cast<std::size_t>(d)]; }

void press(game& g, element e) {
    apply(g, {.what = input::kind::press, .on = e});
    settle(g);
}

} // namespace

void make(game& g, monkeyworld& w, const move& m) {
    if (row(m.what).make != nullptr)
        return row(m.what).make(g, m.value);
    if (m.what == deed::run)
        return;
    w.yes = m.what == deed::press_yes;
    press(g, static_cast<element>(m.value));
}

std::string written(std::uint64_t seed, std::span<const move> moves) {
    std::string text = "seed " + std::to_string(seed) + "\n";
    for (const move& m : moves) {
        text += row(m.what).begins;
        if (m.what == deed::press || m.what == deed::press_yes)
            text += full_name(static_cast<element>(m.value));
        else if (m.what == deed::bomb)
            text += full_name(static_cast<element>(m.value)) + ".art bombiconlight";
        else
            text += std::to_string(m.value);
        text += '\n';
    }
    return text;
}

} // namespace hustle::script
