// The ring of 24 squares and the eight labels in its middle.
#include "board/board.h"

namespace hustle {

namespace {

using enum element;

constexpr colour label_rest = 0xFFFFC0;
constexpr element labels[] = {feature_gameoverlabel, feature_boostlabel,    feature_skilldecidelabel,
                              feature_bankruptlabel, feature_continuelabel, feature_loselabel,
                              feature_xtralifelabel, feature_takeprizelabel};

} // namespace

void light_square(game& g, int n) { set_picture(g.p, nth(feature_square1, n), nth(art::boxlight1, n)); }
void dark_square(game& g, int n) { set_picture(g.p, nth(feature_square1, n), nth(art::boxdark1, n)); }

void lightallsquares(game& g) {
    for (int n = 1; n <= 24; ++n)
        light_square(g, n);
}

void darkallsquares(game& g) {
    for (int n = 1; n <= 24; ++n)
        dark_square(g, n);
}

void resetboardlabels(game& g) {
    for (const element label : labels)
        set_fore(g.p, label, label_rest);
}

} // namespace hustle
