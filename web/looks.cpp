// What is shown: the looks of elements, and which of them have changed.
#include "art/art.h"
#include "art/dotfont.h"
#include "art/lamplooks.h"
#include "panel/sheet.h"
#include "show/places.h"
#include "show/spokennames.h"
#include "web/here.h"
#include "web/surface.h"

#include <array>

using namespace hustle;
using namespace hustle::web;

namespace {

std::array<unsigned short, element_count> changed;
std::array<unsigned char, screen_count> on_show;
hh_shown_look look_buffer;

// As it is to be painted: a lamp that flashes too fast may be held at another look.
const element_state& state_of(int e) {
    return shown(machine_here().eye, machine_here().g.p, static_cast<element>(e));
}

art shown_art(const panel& p, art a) { return p.dollars ? dollar_version(a) : a; }

} // namespace

int hh_take_changed(void) {
    panel& p = machine_here().g.p;
    int count = 0;
    for (std::size_t i = 0; i < element_count; ++i) {
        element_state& state = p.elements[i];
        if (!state.touched)
            continue;
        state.touched = false;
        changed[static_cast<std::size_t>(count++)] = static_cast<unsigned short>(i);
    }
    return count;
}

const unsigned short* hh_changed(void) { return changed.data(); }

const hh_shown_look* hh_look(int e) {
    if (!is_element(e))
        return nullptr;
    const element_state& s = state_of(e);
    const element_row& r = row(static_cast<element>(e));
    look_buffer = {static_cast<int>(shown_art(machine_here().g.p, s.picture)),
                   seen_place(machine_here().g.p, static_cast<element>(e)).top,
                   s.back,
                   s.fore,
                   s.activecolor,
                   s.enabled,
                   s.visible,
                   s.checked,
                   s.lineflash,
                   is_lamp(r) && is_lit(r, s)};
    return &look_buffer;
}

int hh_caption(int e) {
    if (!is_element(e))
        return 0;
    const element_row& r = row(static_cast<element>(e)); // the words of a menu entry never change
    return give(r.what == kind::entry ? std::string(r.text) : state_of(e).text);
}

int hh_shown(void) {
    const panel& p = machine_here().g.p;
    for (int i = 0; i < p.shown_count; ++i)
        on_show[static_cast<std::size_t>(i)] =
            static_cast<unsigned char>(p.shown[static_cast<std::size_t>(i)]);
    return p.shown_count;
}

const unsigned char* hh_shown_screens(void) { return on_show.data(); }

int hh_is_loaded(int s) {
    return is_screen(s) && is_loaded(machine_here().g.p, static_cast<screen>(s)) ? 1 : 0;
}

int hh_title(int s) {
    return is_screen(s) ? give(machine_here().g.p.titles[static_cast<std::size_t>(s)]) : 0;
}

int hh_svg(int a) {
    return a > 0 && a < static_cast<int>(art_count)
               ? give(svg(static_cast<art>(a), machine_here().g.p.dollars))
               : give({});
}

int hh_dollars(void) { return machine_here().g.p.dollars ? 1 : 0; }

int hh_lamp(int e) {
    if (!is_element(e))
        return give({});
    const element_row& r = row(static_cast<element>(e));
    const element_state& s = state_of(e);
    return is_lamp(r) ? give(lamp_svg(r, s)) : give({});
}

const unsigned char* hh_glyph(int letter) { return glyph_of(static_cast<char32_t>(letter)).rows.data(); }

int hh_spoken(int e) {
    return give(is_element(e) ? spoken_name(machine_here().g, static_cast<element>(e)) : std::string());
}
