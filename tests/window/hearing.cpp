// A mixer that plays nothing and notes what it is asked, a line each, in the file `heard` of its folder.
#include "desktop/platform/mixer.h"

#include <fstream>

namespace hustle::desktop {

namespace {

std::ofstream heard;

void note(const char* what, int value) { heard << what << ' ' << value << std::endl; }

} // namespace

extern "C" [[gnu::visibility("default")]] const mixer_calls* hustle_mixer() {
    static constexpr mixer_calls calls{[](const std::string& folder) {
                                           heard.open(folder + "/heard", std::ios::app);
                                           return heard.is_open();
                                       },
                                       [] { return std::string("an ear"); },
                                       [](int percent) { note("volume", percent); },
                                       [](sound wave) { note("wave", static_cast<int>(wave)); },
                                       [](tune what) { note("tune", static_cast<int>(what)); },
                                       [] {
                                           note("close", 0);
                                           heard.close();
                                       }};
    return &calls;
}

} // namespace hustle::desktop
