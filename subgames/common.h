// What several sub-games share.
#pragma once

#include "board/board.h"
#include "core/game.h"
#include "panel/text.h"

namespace hustle {

// The four buttons of play are out of action and three of them dark; `startbutton` keeps its look.
inline void hold_buttons(game& g) {
    using enum element;
    for (element button :
         {feature_startbutton, feature_featurebutton, feature_cashbutton, feature_shotbutton})
        disable(g.p, button);
    set_picture(g.p, feature_featurebutton, art::featurepicdark);
    set_picture(g.p, feature_cashbutton, art::cashpicdark);
    set_picture(g.p, feature_shotbutton, art::shotspicdark);
}

inline void offer_stop(game& g) {
    show(g.p, element::feature_stopfeature);
    enable(g.p, element::feature_stopfeature);
}

inline void won_line(game& g) { board_line(g, short_text("     YOU HAVE WON ").add(fixed(g.m.win))); }

// Even steps show the text, odd ones blank the line; nothing outside `first` to `last`.
inline void flash_line(game& g, int step, int first, int last, std::string_view text) {
    if (step >= first && step <= last)
        board_line(g, step % 2 == 0 ? text : "");
}

inline void next_of_two(count& phase) { phase = next_of(phase, 2); }

} // namespace hustle
