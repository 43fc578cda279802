// The about box.

#include "core/upward.h"
#include "panel/text.h"
#include "screens/sidescreens.h"

namespace hustle {

namespace {
constexpr std::string_view program_title = "Hoard Hustle";
constexpr std::string_view program_revision = ".0"; // after the version that every title bears
} // namespace

void About_load(game& g) {
    set_title(g.p, screen::About, "About Hoard Hustle");
    set_caption(g.p, element::About_lblTitle, program_title);
    set_caption(g.p, element::About_lblVersion,
                short_text("Version ").add(version_text).add(program_revision));
}

void About_ok(game& g) { unload_screen(g, screen::About); }

void About_sysinfo(game& g) {
    if (!g.w.system_info())
        g.w.box({program_title, "System Information Is Unavailable At This Time"});
}

} // namespace hustle
