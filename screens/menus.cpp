// The menu bar of main.

#include "core/bank.h"
#include "core/menuticks.h"
#include "core/start.h"
#include "core/upward.h"
#include "screens/sidescreens.h"

namespace hustle {

namespace {

using enum element;

template <screen s> void open(game& g) { load_screen(g, s); }
template <page which> void browse(game& g) { g.w.browse(which); }

struct command_row {
    element entry;
    handler act;
};
// clang-format off
constexpr command_row commands[] = {
    {newgame,        newgamepress},
    {gstat,          open<screen::statistics>},
    {hscoretable,    open<screen::Highscore>},
    {insertcoinmenu, transferpress},
    {exitgame,       exitroutine},
    {helpcontents,   browse<page::help>},
    {rguidemenu,     open<screen::reelguide>},
    {rwinmenu,       open<screen::wintable>},
    {visitweb,       browse<page::home>},
    {helpabout,      open<screen::About>},
};
// clang-format on

} // namespace

void menupress(game& g, element entry) {
    if (chooseoption(g, entry))
        return;
    for (const command_row& c : commands)
        if (c.entry == entry)
            c.act(g);
}

} // namespace hustle
