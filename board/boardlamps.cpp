// The buttons of the board: their looks, their flashing, and when a press of them counts.
#include "board/boardlamps.h"
#include "board/board.h"
#include "panel/sheet.h"

namespace hustle {

namespace {

using enum element;

struct lamp {
    element button;
    art dark, light;
};
// The first seven flash with butflash.
constexpr lamp lamps[] = {
    {feature_startbutton, art::fstartpicdark, art::fstartpiclight},
    {feature_collect, art::collectpicdark, art::collectpiclight},
    {feature_exchangebutton, art::exchangepicdark, art::exchangepiclight},
    {feature_shotbutton, art::shotspicdark, art::shotspiclight},
    {feature_featurebutton, art::featurepicdark, art::featurepiclight},
    {feature_cashbutton, art::cashpicdark, art::cashpiclight},
    {feature_stopfeature, art::fstoppicdark, art::fstoppiclight},
    {feature_hibutton, art::hipicdark, art::hipiclight},
    {feature_lobutton, art::lopicdark, art::lopiclight},
};
constexpr std::size_t flashing = 7;

const lamp& lamp_of(element button) {
    for (const lamp& l : lamps)
        if (l.button == button)
            return l;
    return lamps[0];
}

// With a shot's prize on offer the stop button is a start button: it fires again.
const lamp& flash_look(const game& g, const lamp& l) {
    static constexpr lamp fire_again = {feature_stopfeature, art::fstartpicdark, art::fstartpiclight};
    const bool on_offer = g.m.award == award::shots && g.b.shotstate == shooting::on_offer;
    return l.button == feature_stopfeature && on_offer ? fire_again : l;
}

constexpr element turn_buttons[] = {feature_startbutton, feature_featurebutton, feature_cashbutton,
                                    feature_shotbutton};

} // namespace

void show_dark(game& g, element button) { set_picture(g.p, button, lamp_of(button).dark); }
void show_lit(game& g, element button) { set_picture(g.p, button, lamp_of(button).light); }

void shut(game& g, element button) {
    disable(g.p, button);
    show_dark(g, button);
}

void feature_butflash(game& g) {
    count& phase = g.b.flashstep;
    const bool bright = phase == 1;
    for (std::size_t i = 0; i < flashing && phase != 0; ++i) {
        const lamp& l = flash_look(g, lamps[i]);
        const bool held_back = l.button == feature_startbutton && g.m.award == award::electricshock;
        if (!bright)
            set_picture(g.p, l.button, l.dark);
        else if (is_enabled(g.p, l.button) && !held_back)
            set_picture(g.p, l.button, l.light);
    }
    phase = next_of(phase, 2);
}

void feature_darkbuttons(game& g) {
    for (const element button : turn_buttons)
        shut(g, button);
}

void feature_enablebuttons(game& g) {
    for (const element button : turn_buttons)
        enable(g.p, button);
}

bool board_chain_runs(const game& g) { return chain_runs(g.p, chain::board); }

} // namespace hustle
