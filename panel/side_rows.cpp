#include "panel/sheet_rows.h"

namespace hustle::sheet {

namespace {

using enum element;

constexpr element_row label(element id, screen where, std::string_view name, rect place,
                            std::string_view caption, colour fore = 0xFFFFFF) {
    return {id, where, name, kind::label, place, art::none, caption, true, true, 0, fore};
}
constexpr element_row box(element id, screen where, std::string_view name, rect place,
                          std::string_view text = {}) {
    return {id, where, name, kind::textbox, place, art::none, text, true, true, 0xFFFFFF, 0};
}
constexpr element_row stat(element id, std::string_view name, int column, int line,
                           std::string_view caption) {
    return label(id, screen::statistics, name, pixels(12 + 178 * (column - 1), 19 + 40 * (line - 1), 88, 24),
                 caption);
}
constexpr element_row figure(element id, std::string_view name, int column, int line,
                             std::string_view text = {}) {
    return box(id, screen::statistics, name, pixels(102 + 178 * (column - 1), 18 + 40 * (line - 1), 76, 26),
               text);
}
constexpr element_row score(element id, std::string_view name, int top, std::string_view caption) {
    return {id,
            screen::Highscore,
            name,
            kind::line,
            twips(720, top, 6345, 450),
            art::none,
            caption,
            true,
            true,
            0,
            name == "one" ? 0xFFFF80U : 0x0000FFU};
}
constexpr element_row strip(element id, std::string_view name, int left) {
    return {id, screen::reelguide, name, kind::picture, twips(left, 120, 750, 8115), art::strippic};
}
constexpr element_row marker(element id, std::string_view name, int left) {
    return {id, screen::reelguide, name, kind::picture, twips(left, 840, 975, 615), art::stripframe};
}

// clang-format off
constexpr element_row rows[] = {
    {statistics_background, screen::statistics, "background", kind::picture, pixels(0, 0, 368, 283), art::statisticsback},
    stat(statistics_Label1,  "Label1",  1, 1, "Money In "),
    stat(statistics_Label2,  "Label2",  1, 2, "Money Out "),
    stat(statistics_Label3,  "Label3",  1, 3, "Streak Bank "),
    stat(statistics_Label4,  "Label4",  1, 4, "Hopper "),
    stat(statistics_Label5,  "Label5",  1, 5, "Cash Box "),
    stat(statistics_Label6,  "Label6",  2, 1, "Percentage "),
    stat(statistics_Label7,  "Label7",  2, 2, "Target "),
    stat(statistics_Label8,  "Label8",  2, 3, "Difference "),
    stat(statistics_Label9,  "Label9",  2, 4, "Last Win "),
    stat(statistics_Label10, "Label10", 2, 5, "Win Bank "),
    figure(statistics_moneyin,    "moneyin",    1, 1),
    figure(statistics_moneyout,   "moneyout",   1, 2),
    figure(statistics_text5,      "text5",      1, 3),
    figure(statistics_text2,      "text2",      1, 4),
    figure(statistics_text3,      "text3",      1, 5),
    figure(statistics_pcent,      "pcent",      2, 1),
    figure(statistics_hgh,        "hgh",        2, 2, "80%"),
    figure(statistics_difference, "difference", 2, 3),
    figure(statistics_text1,      "text1",      2, 4),
    figure(statistics_text6,      "text6",      2, 5),
    {statistics_Picture1, screen::statistics, "Picture1", kind::clicked, pixels( 60, 232, 97, 35), art::backdark},
    {statistics_Picture2, screen::statistics, "Picture2", kind::clicked, pixels(212, 232, 97, 35), art::resetdark},

    {Highscore_background, screen::Highscore, "background", kind::picture, twips(0, 0, 7785, 6300), art::highscoreback},
    score(Highscore_one,   "one",   1320, "1"),
    score(Highscore_two,   "two",   1680, "2"),
    score(Highscore_three, "three", 2070, "3"),
    score(Highscore_four,  "four",  2460, "4"),
    score(Highscore_five,  "five",  2850, "5"),
    score(Highscore_six,   "six",   3240, "6"),
    score(Highscore_seven, "seven", 3630, "7"),
    score(Highscore_eight, "eight", 4020, "8"),
    score(Highscore_nine,  "nine",  4410, "9"),
    score(Highscore_ten,   "ten",   4800, "10"),
    {Highscore_Picture1, screen::Highscore, "Picture1", kind::clicked, twips(3157, 5535, 1470, 495), art::exitdark, {}, true, false},
    {Highscore_Picture2, screen::Highscore, "Picture2", kind::clicked, twips(1440, 5535, 1455, 525), art::returndark},
    {Highscore_Picture3, screen::Highscore, "Picture3", kind::clicked, twips(4890, 5535, 1455, 525), art::resetdark},

    {Entername_background, screen::Entername, "background", kind::picture, pixels(0, 0, 400, 260)},
    label(Entername_Label1, screen::Entername, "Label1", pixels(40, 28, 320, 30), "Please Enter Your Name"),
    label(Entername_Label3, screen::Entername, "Label3", pixels(40, 68, 320, 28), "You Won "),
    box(Entername_Text2,    screen::Entername, "Text2",  pixels(60, 122, 70, 30), "Name"),
    box(Entername_Text1,    screen::Entername, "Text1",  pixels(138, 122, 202, 30), " "),
    {Entername_image1, screen::Entername, "image1", kind::clicked, pixels(116, 186, 168, 40), art::scoredark},

    strip(reelguide_Image1, "Image1",  472),
    strip(reelguide_Image2, "Image2", 1912),
    strip(reelguide_Image3, "Image3", 3352),
    marker(reelguide_Shape1, "Shape1",  360),
    marker(reelguide_Shape2, "Shape2", 1800),
    marker(reelguide_Shape3, "Shape3", 3240),

    {wintable_Picture1, screen::wintable, "Picture1", kind::picture, pixels(0, 0, 309, 406), art::wins_uk},

    {About_picIcon, screen::About, "picIcon", kind::picture, pixels(18, 18, 64, 64), art::iconpic},
    label(About_lblTitle,       screen::About, "lblTitle",       pixels(100,  18, 280, 28), {}),
    label(About_lblVersion,     screen::About, "lblVersion",     pixels(100,  50, 280, 20), {}),
    label(About_lblDescription, screen::About, "lblDescription", pixels(100,  82, 280, 44), "Hoard Hustle is a simulation of a UK £15 Jackpot Fruit Machine."),
    label(About_lblDisclaimer,  screen::About, "lblDisclaimer",  pixels( 18, 146, 230, 66), "A simulation, for play alone: no real money goes in and none comes out."),
    {About_cmdOK,      screen::About, "cmdOK",      kind::push, pixels(262, 146, 120, 28), art::none, "OK"},
    {About_cmdSysInfo, screen::About, "cmdSysInfo", kind::push, pixels(262, 182, 120, 28), art::none, "&System Info..."},
};
// clang-format on

static_assert(in_order(rows, element::statistics_background, element::total));

} // namespace

std::span<const element_row> side_rows() { return rows; }

} // namespace hustle::sheet
