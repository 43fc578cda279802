// The few calls from lower rooms to upper ones.
#pragma once

#include "core/game.h"

namespace hustle {

// screens/: loads a screen, runs its load routine and shows it; a loaded one only comes to the
// front. Unloading runs the screen's own unload routine first.
void load_screen(game&, screen);
void unload_screen(game&, screen);

// screens/: the name form or the table that a first exit has opened is closed as by its own close;
// false where neither stands open.
bool close_score_screen(game&);

// trail/: wherever numbers may have changed; and all nine trail lamps dark.
void starttrailrun(game&);
void traildark(game&);

} // namespace hustle
