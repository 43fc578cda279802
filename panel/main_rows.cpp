#include "panel/sheet_rows.h"

namespace hustle::sheet {

namespace {

using enum element;

constexpr element_row pic(element id, std::string_view name, rect place, art a = art::none) {
    return {id, screen::main, name, kind::picture, place, a};
}
constexpr element_row button(element id, std::string_view name, rect place, art a) {
    return {id, screen::main, name, kind::button, place, a};
}
constexpr element_row lamp(element id, std::string_view name, int top, int height, std::string_view caption) {
    return {id,   screen::main, name, kind::label, pixels(672, top, 121, height), art::none, caption, true,
            true, 192,          0};
}
constexpr element_row entry(element id, std::string_view name, std::string_view caption) {
    return {id, screen::main, name, kind::entry, {}, art::none, caption};
}

// clang-format off
constexpr element_row rows[] = {
    {software_Image1, screen::software, "Image1", kind::picture, pixels(0, 0, 480, 320), art::startscreen},

    pic(background, "background", pixels(0, 0, 800, 521)),
    pic(buttonbar,  "buttonbar",  pixels(-1, 456, 801, 106), art::buttonbarpic),
    pic(reelframe,  "reelframe",  pixels(120, 120, 465, 328), art::reelframepic),
    pic(lineframe,  "lineframe",  pixels(120, 64, 474, 50),   art::lineframepic),
    pic(still1,     "still1",     pixels(592, 136, 70, 55),   art::still1pic),
    pic(still2,     "still2",     pixels(592, 216, 70, 55),   art::still2pic),
    pic(still3,     "still3",     pixels(592, 296, 70, 55),   art::still3pic),
    {reel1, screen::main, "reel1", kind::clicked, pixels(128, 128, 144, 312)},
    {reel2, screen::main, "reel2", kind::clicked, pixels(280, 128, 144, 312)},
    {reel3, screen::main, "reel3", kind::clicked, pixels(432, 128, 144, 312)},
    button(hold1,        "hold1",        pixels(160, 472, 82, 70), art::holdpicdark),
    button(hold2,        "hold2",        pixels(312, 472, 82, 70), art::holdpicdark),
    button(hold3,        "hold3",        pixels(472, 472, 82, 70), art::holdpicdark),
    button(cancelbutton, "cancelbutton", pixels( 32, 472, 82, 70), art::cancelpicdark),
    {stopper, screen::main, "stopper", kind::button, pixels(600, 472, 82, 70), art::stoppicdark, {}, false},
    button(start,        "start",        pixels(696, 464, 93, 80), art::startpicdark),
    pic(picture1, "picture1", pixels(8, 128, 103, 182), art::nudge0),
    pic(nudgenow, "nudgenow", pixels(8, 320, 103,  80), art::nudgenowpicdark),
    lamp(numberone,   "numberone",   416, 40, "1"),
    lamp(numbertwo,   "numbertwo",   372, 40, "2"),
    lamp(numberthree, "numberthree", 328, 40, "3"),
    lamp(numberfour,  "numberfour",  284, 40, "BONUS"),
    lamp(numberfive,  "numberfive",  240, 40, "5"),
    lamp(numbersix,   "numbersix",   196, 40, "6"),
    lamp(numberseven, "numberseven", 152, 40, "7"),
    lamp(numbereight, "numbereight", 108, 40, "8"),
    lamp(numbernine,  "numbernine",   58, 46, "FEATURE START"),
    {trailheld, screen::main, "trailheld", kind::picture, pixels(592, 368, 72, 56), art::trailheldpic, {}, true, false},
    pic(toplogo, "toplogo", pixels(0, 0, 800, 60), art::title),
    button(transfer,     "transfer",     pixels(768,   8, 19, 40), art::transferpic),
    {displayline, screen::main, "displayline", kind::line, twips(1875, 1155, 6975, 495), art::none, "  ", true, true, 0, 0x0000FF},

    entry(newgame,        "newgame",        "New"),
    entry(gstat,          "gstat",          "Refill Key"),
    entry(hscoretable,    "hscoretable",    "View Highscores"),
    entry(insertcoinmenu, "insertcoinmenu", "Insert Coin"),
    entry(exitgame,       "exitgame",       "Exit"),
    entry(freelspin,      "freelspin",      "Fast Reelspin"),
    entry(sreelspin,      "sreelspin",      "Slow Reelspin"),
    entry(rreelspin,      "rreelspin",      "Random Reelspin"),
    entry(ds,             "ds",             "Dollars"),
    entry(ps,             "ps",             "Pounds"),
    entry(soundon,        "soundon",        "Sound On"),
    entry(soundoff,       "soundoff",       "Sound Off"),
    entry(reddisp,        "reddisp",        "Red LED"),
    entry(purpledisp,     "purpledisp",     "Purple LED"),
    entry(pinkdisp,       "pinkdisp",       "Pink LED"),
    entry(bluedisp,       "bluedisp",       "Blue LED"),
    entry(yellowdisp,     "yellowdisp",     "Yellow LED"),
    entry(greendisp,      "greendisp",      "Green LED"),
    entry(flon,           "flon",           "Flashing Logo On"),
    entry(floff,          "floff",          "Flashing Logo Off"),
    entry(helpcontents,   "helpcontents",   "Online Help"),
    entry(rguidemenu,     "rguidemenu",     "Reel Guide"),
    entry(rwinmenu,       "rwinmenu",       "Wins"),
    entry(visitweb,       "visitweb",       "Visit Website"),
    entry(helpabout,      "helpabout",      "About"),
};
// clang-format on

static_assert(in_order(rows, element::software_Image1, element::feature_background));

} // namespace

std::span<const element_row> main_rows() { return rows; }

} // namespace hustle::sheet
