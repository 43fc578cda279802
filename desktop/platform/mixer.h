// What the sound thread asks of the mixing library. That library and the thirty that it needs stand in
// a module of their own, which is loaded when the window has come up.
#pragma once

#include "panel/ids.h"

#include <string>

namespace hustle::desktop {

struct mixer_calls {
    bool (*open)(const std::string& folder); // of the wave files; false where there is no device
    std::string (*describe)();               // library, driver, device and rate
    void (*volume)(int percent);             // of the loudest
    void (*play)(hustle::sound);             // ends the wave that plays
    void (*tune)(hustle::tune);
    void (*close)(); // ends every sound
};

// The one name that the module gives.
using mixer_entry = const mixer_calls* (*)();
inline constexpr const char* mixer_entry_name = "hustle_mixer";

} // namespace hustle::desktop

extern "C" const hustle::desktop::mixer_calls* hustle_mixer();
