// The guides to the reels and to the wins. Both only show, and play goes on behind them.

#include "screens/sidescreens.h"

#include <array>

namespace hustle {

namespace {

using enum element;

// Where the frame stands for each stop of the strip, 1 to 16, in twips.
constexpr std::array<int, 16> frame_tops = {260,  750,  1240, 1720, 2220, 2730, 3200, 3680,
                                            4140, 4650, 5160, 5640, 6070, 6540, 7000, 7535};

void place_frame(panel& p, element frame, int position) {
    if (position >= 1 && position <= static_cast<int>(frame_tops.size()))
        set_top(p, frame, frame_tops[static_cast<std::size_t>(position - 1)]);
}

} // namespace

// A picture of the moment: the frames stay where they are while the reels go on.
void reelguide_load(game& g) {
    panel& p = g.p;
    const art strip = at(p, reelguide_Image2).picture;
    set_picture(p, reelguide_Image1, strip);
    set_picture(p, reelguide_Image3, strip);
    place_frame(p, reelguide_Shape1, g.m.reel1pos);
    place_frame(p, reelguide_Shape2, g.m.reel2pos);
    place_frame(p, reelguide_Shape3, g.m.reel3pos);
}

void wintable_load(game& g) {
    if (g.m.currency == setting::usd)
        set_picture(g.p, wintable_Picture1, art::wins_us);
}

} // namespace hustle
