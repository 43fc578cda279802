// The machine's sounds on the player's speakers: the waves, one at a time, and the tune. All of it
// runs on a thread of its own, so that neither the window nor a tick of the machine ever waits for
// a device or a file. Where there is no device, no file or no soundfont there is silence, and no
// message.
#pragma once

#include "panel/ids.h"

#include <string>

namespace hustle::desktop {

// Begins to open the sound device; `folder` holds the wave files, `module` is the file of the mixing
// module. Returns at once, true where the sound thread stands. Whether there is a device is known a
// little later: see sound_state.
bool open_sound(const std::string& folder, const std::string& module);
// Plays a wave and returns at once; it ends the one that plays.
void play_wave(hustle::sound wave);
// The tune, hustle.mid of that folder: after `open` it may play, `play` loads it and plays it once from
// its beginning, `stop` ends it and lets go of it, as `close` does for good.
void tune_command(hustle::tune);
// How loud waves and tune are: percent of the loudest, 0 to 100; 0 is silence. It may be told before
// the device is open, and holds until it is told anew.
void set_volume(int percent);
// Ends every sound and gives the device back. Nothing happens if it was never opened.
void close_sound();
// One line for the player: the library, the driver, the device if it has a name, and the rate in Hz; or
// "no sound device". Waits up to two seconds for a device that is still being opened.
std::string sound_state();

} // namespace hustle::desktop
