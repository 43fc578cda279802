#include "show/stage.h"

#include "art/lamplooks.h"
#include "show/motions.h"
#include "show/places.h"

#include <algorithm>

namespace hustle {

namespace {

int sooner(int a, int b) {
    if (a < 0 || b < 0)
        return std::max(a, b);
    return std::min(a, b);
}

} // namespace

void add_patch(stage& s, const panel& p, element e) {
    rect area = seen_place(p, e);
    const int reach = is_lamp(row(e)) ? (glow_reach + 1) * 15 : 0;
    area = {area.left - reach, area.top - reach, area.width + 2 * reach, area.height + 2 * reach};
    s.patches.push_back({row(e).where, area});
}

void take_in(stage& s, const game& g, std::int64_t now) {
    for (int which = 1; which <= 3; ++which)
        take_in_reel(s, g, which, now);
    take_in_belt(s, g, now);
    take_in_win(s, g, now);
    if (s.reduced)
        for (std::size_t e = 0; e < element_count; ++e)
            if (g.p.elements[e].touched)
                take_in_lamp(s, g.p, static_cast<element>(e), now);
    s.still_logo = g.m.flashlogo == flag::no;
    s.logo = at(g.p, element::toplogo);
    s.logo.picture = art::title;
    s.dark_start = at(g.p, element::feature_startbutton);
    s.dark_start.picture = art::fstartpicdark;
    s.dark_start.visible = true;
    s.dark_start.enabled = false;
    s.fresh = false;
}

int advance(stage& s, const game& g, std::int64_t now) {
    int next = -1;
    for (int which = 1; which <= 3; ++which)
        next = advance_reel(s, g, which, now) ? 0 : next;
    next = sooner(next, advance_belt(s, g, now));
    next = sooner(next, advance_win(s, g, now));
    return sooner(next, advance_lamps(s, g, now));
}

} // namespace hustle
