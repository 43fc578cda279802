// The about box.

#include "core/upward.h"
#include "screens/sidescreens.h"

namespace hustle {

namespace {
constexpr std::string_view program_title = "Hoard Hustle";
} // namespace

void About_load(game& g) {
    set_title(g.p, screen::About, "About Hoard Hustle");
    set_caption(g.p, element::About_lblTitle, program_title);
    set_caption(g.p, element::About_lblVersion, "Version 2.0.2"); // major, minor, revision of 2.02
}

void About_ok(game& g) { unload_screen(g, screen::About); }

void About_sysinfo(game& g) {
    if (!g.w.system_info())
        g.w.box({program_title, "System Information Is Unavailable At This Time"});
}

} // namespace hustle
