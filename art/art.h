// Every picture of the machine as SVG text, drawn by name. A text stands by itself: it needs no
// font and no other file, and keeps to plain shapes, paths, groups, gradients and hex colours.
#pragma once

#include "panel/ids.h"

#include <string>

namespace hustle {

struct art_size {
    int width, height; // pixels of the panel, which is 800 wide
};

art_size svg_size(art); // {0, 0} for art::none
// With `dollars` a picture that bears a pound sign bears a dollar sign; the reels have pictures of
// their own for that (`dollar_version`). Empty for art::none.
std::string svg(art, bool dollars = false);

} // namespace hustle
