#include "show/places.h"

#include <algorithm>

namespace hustle {

namespace {

using enum element;

constexpr int row_height = 345;     // of a line in the table: none covers the next
constexpr int first_row_up = 30;    // as far from the second as that from the third
constexpr int hold_over_reel = 464; // pixels: as far from its reel's edge as the other two
constexpr int on_the_bar = 7720;    // the middle of the board's bar, for its row of buttons
constexpr int ledger_shift = 45;    // so that the right column stands free of the frame

constexpr element bar_buttons[] = {feature_collect,    feature_featurebutton,  feature_cashbutton,
                                   feature_shotbutton, feature_exchangebutton, feature_stopfeature,
                                   feature_startbutton};

} // namespace

rect seen_place(element e) {
    rect place = row(e).place;
    if (e >= Highscore_one && e <= Highscore_ten) {
        place.height = row_height;
        place.top -= e == Highscore_one ? first_row_up : 0;
    } else if ((e >= statistics_Label6 && e <= statistics_Label10) ||
               (e >= statistics_pcent && e <= statistics_text6)) {
        place.left -= ledger_shift;
    } else if (e == hold3) {
        place.left = hold_over_reel * 15;
    } else if (std::find(std::begin(bar_buttons), std::end(bar_buttons), e) != std::end(bar_buttons)) {
        place.top += on_the_bar - row(e).place.top;
    }
    return place;
}

rect seen_place(const panel& p, element e) {
    rect place = seen_place(e);
    place.top += at(p, e).top - row(e).place.top;
    return place;
}

} // namespace hustle
