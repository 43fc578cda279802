#include "panel/sheet_rows.h"

#include <array>

namespace hustle {

namespace {

constexpr std::array<screen_row, screen_count> screens = {{
    {screen::software, "software", "Hoard Hustle", 480 * 15, 320 * 15},
    {screen::main, "main", "", 800 * 15, 562 * 15},
    {screen::feature, "feature", "", 12000, 8895},
    {screen::statistics, "statistics", "Statistics Screen", 368 * 15, 283 * 15},
    {screen::Highscore, "Highscore", "Hoard Hustle HighScores", 7785, 6300},
    {screen::Entername, "Entername", "Enter Your Name", 400 * 15, 260 * 15},
    {screen::reelguide, "reelguide", "Hoard Hustle Reel Guide", 4575, 8355},
    {screen::wintable, "wintable", "Win Guide", 309 * 15, 406 * 15},
    {screen::About, "About", "About Hoard Hustle", 400 * 15, 226 * 15},
}};

constexpr menu_row menus[] = {
    {"Game", element::newgame},       {"Game", element::total},          {"Game", element::gstat},
    {"Game", element::hscoretable},   {"Game", element::insertcoinmenu}, {"Game", element::total},
    {"Game", element::exitgame},      {"Options", element::freelspin},   {"Options", element::sreelspin},
    {"Options", element::rreelspin},  {"Options", element::total},       {"Options", element::ds},
    {"Options", element::ps},         {"Options", element::total},       {"Options", element::soundon},
    {"Options", element::soundoff},   {"Options", element::total},       {"Options", element::reddisp},
    {"Options", element::purpledisp}, {"Options", element::pinkdisp},    {"Options", element::bluedisp},
    {"Options", element::yellowdisp}, {"Options", element::greendisp},   {"Options", element::total},
    {"Options", element::flon},       {"Options", element::floff},       {"Help", element::helpcontents},
    {"Help", element::total},         {"Help", element::rguidemenu},     {"Help", element::rwinmenu},
    {"Help", element::total},         {"Help", element::visitweb},       {"Help", element::total},
    {"Help", element::helpabout},
};

#define HUSTLE_NAME(name) std::string_view(#name),
constexpr std::array<std::string_view, art_count> art_names = {"none", HUSTLE_ARTS(HUSTLE_NAME)};
#undef HUSTLE_NAME
#define HUSTLE_NAME(name) std::string_view(sound::name == sound::like_it ? "like-it.wav" : #name ".wav"),
constexpr std::array<std::string_view, sound_count> sound_names = {HUSTLE_SOUNDS(HUSTLE_NAME)};
#undef HUSTLE_NAME

} // namespace

std::span<const screen_row, screen_count> screen_rows() { return screens; }
const screen_row& row(screen s) { return screens[static_cast<std::size_t>(s)]; }
std::span<const menu_row> menu_rows() { return menus; }

const element_row& row(element e) {
    const auto index = static_cast<std::size_t>(e);
    const auto on_main = sheet::main_rows();
    const auto on_feature = sheet::feature_rows();
    if (index < on_main.size())
        return on_main[index];
    if (index < on_main.size() + on_feature.size())
        return on_feature[index - on_main.size()];
    return sheet::side_rows()[index - on_main.size() - on_feature.size()];
}

const timer_row& row(timer t) { return sheet::timer_rows()[static_cast<std::size_t>(t)]; }

bool chain_runs(const panel& p, chain what) {
    for (int i = 0; i < p.queued; ++i)
        if (row(p.queue[static_cast<std::size_t>(i)].what).keeps == what)
            return true;
    return false;
}

std::span<const element_row> elements_of(screen s) {
    const std::span<const element_row> table = s <= screen::main      ? sheet::main_rows()
                                               : s == screen::feature ? sheet::feature_rows()
                                                                      : sheet::side_rows();
    std::size_t first = 0;
    while (first < table.size() && table[first].where != s)
        ++first;
    std::size_t last = first;
    while (last < table.size() && table[last].where == s)
        ++last;
    return table.subspan(first, last - first);
}

std::string_view name(art a) { return art_names[static_cast<std::size_t>(a)]; }
std::string_view name(sound s) { return sound_names[static_cast<std::size_t>(s)]; }
std::string_view name(store s) { return s == store::game_dat ? "game.dat" : "hscore.dat"; }

art dollar_version(art a) {
    using enum art;
    switch (a) {
    case bps: return bps1;
    case cbp: return cbp1;
    case cmp: return cmp1;
    case cpb: return cpb1;
    case mps: return mps1;
    case msp: return msp1;
    case pbs: return pbs1;
    case pcb: return pcb1;
    case psb: return psb1;
    case psc: return psc1;
    case scp: return scp1;
    case spc: return spc1;
    default: return a;
    }
}

} // namespace hustle
