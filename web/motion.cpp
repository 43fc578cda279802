// What the eye sees beyond the panel, the hint line, and the switch of Reduced Flashing.
#include "show/hints.h"
#include "show/stage.h"
#include "web/here.h"
#include "web/surface.h"

#include <algorithm>
#include <vector>

using namespace hustle;
using namespace hustle::web;

namespace {

std::vector<double> numbers;

bool meets(const rect& a, const rect& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

} // namespace

namespace hustle::web {

// What lies under a patch is drawn anew, as if it had been touched.
void touch_patches() {
    here& h = machine_here();
    for (const patch& p : h.eye.patches)
        for (const element_row& r : elements_of(p.where))
            if (r.what != kind::entry && meets(r.place, p.area))
                at(h.g.p, r.id).touched = true;
    h.eye.patches.clear();
}

} // namespace hustle::web

void hh_take_in(double now) {
    here& h = machine_here();
    take_in(h.eye, h.g, static_cast<std::int64_t>(now));
    touch_patches();
}

int hh_advance(double now) {
    here& h = machine_here();
    const int wanted = advance(h.eye, h.g, static_cast<std::int64_t>(now));
    touch_patches();
    return wanted;
}

int hh_motion(void) {
    const here& h = machine_here();
    numbers.clear();
    for (const reel_motion& r : h.eye.reels)
        numbers.insert(numbers.end(), {r.on_strip ? 1.0 : 0.0, r.at, r.blur});
    numbers.push_back(h.eye.belt.runs ? h.eye.belt.columns : 0);
    numbers.insert(numbers.end(), {h.eye.win.glow, h.eye.win.swell});
    for (const coin& c : h.eye.win.coins)
        numbers.insert(numbers.end(), {c.x, c.y, c.opacity});
    return static_cast<int>(numbers.size());
}

const double* hh_numbers(void) { return numbers.data(); }

void hh_reduce(int on) {
    here& h = machine_here();
    set_reduced(h.eye, h.g, on != 0);
    touch_patches();
}

int hh_hint(int touched) {
    return give(std::string(hint(machine_here().g, touched != 0 ? hands::touch : hands::keys)));
}
int hh_bank_label(void) { return give(bank_label(machine_here().g)); }
int hh_credits_label(void) { return give(credits_label(machine_here().g)); }
