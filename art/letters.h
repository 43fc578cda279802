// The machine's own lettering: bold display capitals, digits and a few signs, kept as centre lines
// that a stroke makes into letters. No font is needed anywhere.
#pragma once

#include "art/pen.h"

#include <string>
#include <string_view>

namespace hustle {

struct face {
    double weight = 0.2; // thickness of the strokes, as a share of the height
    double stretch = 1;  // width of the letters; below 1 is condensed
    double most = 0;     // widest the words may be, in pixels; the letters narrow to fit. 0: any
    bool slabs = false;  // feet on the stems, for the logo
};

// Width in pixels of the words, `height` pixels high over all.
double words_width(std::string_view words, double height, const face& = {});
// The centre lines as path data, from the left edge x and the top edge y.
std::string text_path(std::string_view words, double x, double y, double height, const face& = {});

struct lettering {
    std::string_view fill = ink::white; // hex colour or gradient in units of the picture
    std::string_view edge = "none";     // drawn beneath, wider
    double edge_width = 0;              // pixels on each side
    double edge_opacity = 1;
    face shape = {};
};
// The words centred on x, from the top edge y.
void write(pen&, std::string_view words, double x, double y, double height, const lettering& = {});

} // namespace hustle
