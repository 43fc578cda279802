#include "panel/sheet_rows.h"

namespace hustle::sheet {

namespace {

using enum element;

constexpr std::string_view square_names[] = {
    "square1",  "square2",  "square3",  "square4",  "square5",  "square6",  "square7",  "square8",
    "square9",  "square10", "square11", "square12", "square13", "square14", "square15", "square16",
    "square17", "square18", "square19", "square20", "square21", "square22", "square23", "square24"};

// The squares run along the four sides of a rectangle, seven to a side, corners shared: from the
// bottom right corner to the left, up, to the right and down again.
constexpr rect square_place(int n) {
    const int height = n == 12 ? 885 : 890;
    if (n <= 7)
        return twips(8520 - 960 * (n - 1), 6480, 960, height);
    if (n <= 13)
        return twips(2760, 6480 - 840 * (n - 7), 960, height);
    if (n <= 19)
        return twips(2760 + 960 * (n - 13), 1440, 960, height);
    return twips(8520, 1440 + 840 * (n - 19), 960, height);
}

constexpr element_row square(int n) {
    return {nth(feature_square1, n), screen::feature, square_names[n - 1],
            kind::picture,           square_place(n), nth(art::boxdark1, n)};
}
constexpr element_row cash(element id, std::string_view name, int top, std::string_view caption) {
    return {
        id,        screen::feature, name, kind::label, twips(9960, top, 1815, id == feature_m10 ? 645 : 405),
        art::none, caption,         true, true,        0x0000C0,
        0};
}
constexpr element_row prize(element id, std::string_view name, int top, std::string_view caption) {
    return {
        id,        screen::feature, name, kind::label, twips(480, top, 1815, id == feature_f10 ? 645 : 405),
        art::none, caption,         true, true,        0xFF0000,
        0};
}
constexpr element_row shock(element id, std::string_view name, rect place, std::string_view caption) {
    return {id, screen::feature, name, kind::label, place, art::none, caption, true, true, 0, 0xFFFFC0};
}
constexpr element_row pic(element id, std::string_view name, rect place, art a = art::none,
                          bool visible = true) {
    return {id, screen::feature, name, kind::picture, place, a, {}, true, visible};
}
constexpr element_row button(element id, std::string_view name, rect place, art a, bool enabled = true,
                             bool visible = true) {
    return {id, screen::feature, name, kind::button, place, a, {}, enabled, visible};
}

// clang-format off
constexpr element_row rows[] = {
    pic(feature_background, "background", twips(0, 0, 12000, 8895)),
    pic(feature_buttonbar,  "buttonbar",  twips(0, 7440, 12000, 1455)),
    square(1),  square(2),  square(3),  square(4),  square(5),  square(6),  square(7),  square(8),
    square(9),  square(10), square(11), square(12), square(13), square(14), square(15), square(16),
    square(17), square(18), square(19), square(20), square(21), square(22), square(23), square(24),

    cash(feature_m1,   "m1",   4440, "£1.00"),
    cash(feature_m160, "m160", 4080, "£1.60"),
    cash(feature_m2,   "m2",   3720, "£2.00"),
    cash(feature_m240, "m240", 3360, "£2.40"),
    cash(feature_m360, "m360", 3000, "£3.60"),
    cash(feature_m4,   "m4",   2640, "£4.00"),
    cash(feature_m5,   "m5",   2280, "£5.00"),
    cash(feature_m6,   "m6",   1920, "£6.00"),
    cash(feature_m8,   "m8",   1560, "£8.00"),
    cash(feature_m10,  "m10",   960, "Jackpot"),

    prize(feature_f1,  "f1",  6960, "Seven Spinner"),
    prize(feature_f2,  "f2",  6600, "Creepy Cash"),
    prize(feature_f3,  "f3",  6240, "Fast Cash"),
    prize(feature_f4,  "f4",  5880, "Reel Skill"),
    prize(feature_f5,  "f5",  5520, "On the Run"),
    prize(feature_f6,  "f6",  5160, "Win Spins"),
    prize(feature_f7,  "f7",  4800, "Super Creepy"),
    prize(feature_f8,  "f8",  4440, "Run for It"),
    prize(feature_f9,  "f9",  4080, "In a Spin"),
    prize(feature_f10, "f10", 3480, "Jackpot"),

    pic(feature_trt, "trt", twips(3720, 2280, 4800, 4185), art::trtpic),
    shock(feature_gameoverlabel,    "gameoverlabel",    twips(3960, 3000, 1095, 375), "Game Over"),
    shock(feature_boostlabel,       "boostlabel",       twips(3960, 3720, 1095, 375), "Boost"),
    shock(feature_skilldecidelabel, "skilldecidelabel", twips(3960, 4440,  735, 615), "Skill Decide"),
    shock(feature_bankruptlabel,    "bankruptlabel",    twips(3960, 5160, 1095, 375), "Bankrupt"),
    shock(feature_continuelabel,    "continuelabel",    twips(7200, 3000, 1095, 375), "Xtra Bomb"),
    shock(feature_loselabel,        "loselabel",        twips(7440, 3720,  855, 375), "Caught"),
    shock(feature_xtralifelabel,    "xtralifelabel",    twips(7320, 4440,  975, 375), "Xtra Life"),
    shock(feature_takeprizelabel,   "takeprizelabel",   twips(7320, 5160,  975, 375), "Scarper"),

    pic(feature_Image1, "Image1", twips(9960, 5040, 1845, 1500), art::shotspanel),
    pic(feature_Shape1, "Shape1", twips(480, 960, 1815, 2415), art::dicepanel),
    {feature_displayline, screen::feature, "displayline", kind::line, twips(2760, 960, 6735, 420), art::none, "  ", true, true, 0, 0x0000FF},
    {feature_shotbox,     screen::feature, "shotbox",     kind::line, twips(10320, 5760, 1215, 465), art::none, " ", true, true, 0, 0x0000FF},
    pic(feature_dicepic, "dicepic", twips(660, 1080, 1455, 1455), art::dice1pic),
    button(feature_hibutton,       "hibutton",       twips(  660, 2520,  735, 735), art::hipicdark),
    button(feature_lobutton,       "lobutton",       twips( 1380, 2520,  735, 735), art::lopicdark),
    button(feature_collect,        "collect",        twips(  480, 7500, 1100, 950), art::collectpicdark),
    button(feature_featurebutton,  "featurebutton",  twips( 2400, 7500, 1100, 950), art::featurepicdark,  false),
    button(feature_cashbutton,     "cashbutton",     twips( 4320, 7500, 1100, 950), art::cashpicdark,     false),
    button(feature_shotbutton,     "shotbutton",     twips( 6240, 7500, 1100, 950), art::shotspicdark,    false),
    button(feature_exchangebutton, "exchangebutton", twips( 8160, 7500, 1100, 950), art::exchangepicdark, false),
    button(feature_stopfeature,    "stopfeature",    twips( 8160, 7500, 1100, 950), art::fstoppicdark,    false, false),
    button(feature_startbutton,    "startbutton",    twips(10320, 7500, 1100, 950), art::fstartpicdark,   false),
    pic(feature_bomb1, "bomb1", twips(4920, 5520, 615, 735), art::bombicondark),
    pic(feature_bomb2, "bomb2", twips(5760, 5520, 615, 735), art::bombicondark),
    pic(feature_bomb3, "bomb3", twips(6600, 5520, 615, 735), art::bombicondark),
    pic(feature_el,         "el",         twips(9960, 6720, 1815, 495), art::elpic,   false),
    pic(feature_losegamble, "losegamble", twips(9960, 6720, 1815, 495), art::losepic, false),
    pic(feature_toplogo,    "toplogo",    twips(0, 0, 12000, 900), art::title),
};
// clang-format on

static_assert(in_order(rows, element::feature_background, element::statistics_background));

} // namespace

std::span<const element_row> feature_rows() { return rows; }

} // namespace hustle::sheet
