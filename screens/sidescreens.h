// High scores, statistics, guides, menus and the attract mode.
#pragma once

#include "core/game.h"
#include "core/statistics.h"

namespace hustle {

void Entername_load(game&);
void Entername_submit(game&);
void Highscore_load(game&);
void sorttable(game&);
void showtable(game&);
void Highscore_exit(game&);   // Picture1
void Highscore_return(game&); // Picture2
void Highscore_reset(game&);  // Picture3

void reelguide_load(game&);
void wintable_load(game&);
void About_load(game&);
void About_ok(game&);
void About_sysinfo(game&);
// The action of a menu entry of main, or of a click on one of its reels.
void menupress(game&, element entry);

} // namespace hustle
