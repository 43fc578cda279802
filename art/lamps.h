// What all lamps and keys share: a cap of coloured glass in a metal rim, in shade or lit from
// within, and words on it.
#pragma once

#include "art/letters.h"
#include "art/pen.h"

namespace hustle {

struct area {
    double x, y, w, h;
};

// Glass in a rim. Its light spills over the rim by up to `spill` pixels when it is lit.
void cap(pen&, area, double round, const ink::jewel&, bool on, double spill = 5);
// Words for such glass, centred on (x, y), `height` high or as high as `most` pixels of width allow.
void cap_words(pen&, std::string_view words, double x, double y, double height, double most,
               const ink::jewel&, bool on);
// A quiet plate of dark glass with a thin gold rim, on which other things stand.
void plate(pen&, area, double round);
// A hollow moulding of gold round `hole`, `thick` pixels wide, with a dark inner edge.
void moulding(pen&, area hole, double thick, double round);
// A bomb on (0, 0), 34 by 40; lit: its fuse burns.
void bomb(pen&, bool on);
// An open chest full of gold, its foot centred on (0, 0), 150 wide and 120 high.
void chest(pen&);
// Cut stones on (0, 0), 40 wide.
void gem(pen&, const ink::jewel&);

} // namespace hustle
