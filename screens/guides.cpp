// The guides to the reels and to the wins. Both only show, and play goes on behind them.

#include "panel/strip.h"
#include "screens/sidescreens.h"

namespace hustle {

namespace {

using enum element;

void place_frame(panel& p, element frame, int position) {
    if (position >= 1 && position <= static_cast<int>(strip.size()))
        set_top(p, frame, strip[static_cast<std::size_t>(position - 1)].frame_top);
}

} // namespace

// A picture of the moment: the frames stay where they are while the reels go on.
void reelguide_load(game& g) {
    panel& p = g.p;
    const art shown = at(p, reelguide_Image2).picture;
    set_picture(p, reelguide_Image1, shown);
    set_picture(p, reelguide_Image3, shown);
    place_frame(p, reelguide_Shape1, reel(g.m, 1).pos);
    place_frame(p, reelguide_Shape2, reel(g.m, 2).pos);
    place_frame(p, reelguide_Shape3, reel(g.m, 3).pos);
}

void wintable_load(game& g) {
    if (g.m.currency == setting::usd)
        set_picture(g.p, wintable_Picture1, art::wins_us);
}

} // namespace hustle
