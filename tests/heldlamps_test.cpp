// Which lamps are held while the flashing is reduced, at which look and until
// when; and that a front end which paints only what it is told to paint misses
// nothing.
#include "art/lamplooks.h"
#include "show/motions.h"
#include "show/places.h"
#include "tests/showgame.h"

#include <algorithm>
#include <vector>

using namespace hustle;

namespace {

struct HeldLamps : showgame {};

struct Patches : showgame {
    bool patched(element e) const {
        const rect r = seen_place(g.p, e);
        return std::any_of(s.patches.begin(), s.patches.end(), [&](const patch& p) {
            return p.where == row(e).where && p.area.left <= r.left && p.area.top <= r.top &&
                   p.area.left + p.area.width >= r.left + r.width &&
                   p.area.top + p.area.height >= r.top + r.height;
        });
    }
};

// A look that is lit and one that is not, of each element that has both.
struct two_looks {
    element id;
    element_state dark, lit;
};

std::vector<two_looks> lamps_of(const panel& p) {
    std::vector<two_looks> all;
    for (std::size_t i = 0; i < element_count; ++i) {
        const auto e = static_cast<element>(i);
        element_state dark = at(p, e), lit = dark;
        std::string light(name(dark.picture));
        if (const std::size_t at = light.find("dark"); at != std::string::npos)
            light.replace(at, 4, "light");
        for (std::size_t a = 0; a < art_count; ++a)
            if (name(static_cast<art>(a)) == light)
                lit.picture = static_cast<art>(a);
        if (e == element::toplogo || e == element::feature_toplogo)
            lit.picture = art::title, dark.picture = art::title2;
        else if (e == element::picture1)
            lit.picture = art::nudge3, dark.picture = art::nudge0;
        else if (row(e).what == kind::line)
            lit.text = "GET READY", dark.text = "   ";
        else if (is_lamp(row(e)))
            lit.fore = row(e).back == 0 ? 0xFFFFFF : 0x00FFFF, dark.fore = row(e).back == 0 ? 0xFFFFC0 : 0;
        else if (lit.picture == dark.picture)
            continue;
        dark.visible = lit.visible = true;
        all.push_back({e, dark, lit});
        dark = lit, dark.visible = false; // hidden is darker still
        if (e != element::feature_startbutton)
            all.push_back({e, dark, lit});
        if (row(e).what == kind::line)
            dark = lit, dark.lineflash = true, all.push_back({e, dark, lit});
        else if (lit.picture != art::none)
            dark = lit, dark.picture = art::none, all.push_back({e, dark, lit});
    }
    return all;
}

TEST_F(HeldLamps, EachLampThatFlashesTooFastIsHeldAtItsLight) {
    const auto same = [](const element_state& a, const element_state& b) {
        return std::tie(a.picture, a.fore, a.text, a.visible, a.lineflash) ==
               std::tie(b.picture, b.fore, b.text, b.visible, b.lineflash);
    };
    const auto all = lamps_of(g.p);
    EXPECT_GT(all.size(), 150U);
    for (const two_looks& lamp : all)
        for (const bool lit_first : {false, true}) {
            at(g.p, lamp.id) = lit_first ? lamp.lit : lamp.dark;
            set_reduced(s, g, true);
            for (int change = 1; change <= 9; ++change) {
                at(g.p, lamp.id) = (change % 2 == 0) == lit_first ? lamp.lit : lamp.dark;
                take_in_lamp(s, g.p, lamp.id, 5000 + 169 * change);
                EXPECT_TRUE(same(shown(s, g.p, lamp.id), change < 4 ? at(g.p, lamp.id) : lamp.lit))
                    << row(lamp.id).name << " at " << change;
            }
            at(g.p, lamp.id) = lamp.dark;
            if (row(lamp.id).what == kind::line && !lit_first) {
                at(g.p, lamp.id).text = "STOP", at(g.p, lamp.id).visible = true;
                at(g.p, lamp.id).lineflash = false;
                take_in_lamp(s, g.p, lamp.id, 5000 + 169 * 10);
                EXPECT_EQ(shown(s, g.p, lamp.id).text, "STOP") << "words are never late";
            }
        }
}

// When changes come at these times, from which one on the light is held, and
// until when.
struct flicker {
    std::vector<int> told;
    int held_at, until; // -1: never
};

TEST_F(HeldLamps, ALampIsHeldFromItsFourthQuickChangeOrASeventhInASecondUntilItIsCalm) {
    const flicker all[] = {
        {{0, 169, 338, 507}, 507, 847},                                // three quick ones in a row
        {{0, 170, 340, 510, 680, 850, 1020}, -1, -1},                  // none quick
        {{0, 100, 200, 370, 470, 570, 740}, 740, 1080},                // the seventh within the second
        {{0, 100, 200, 370, 470, 570, 999}, 999, 1339},                //
        {{0, 100, 200, 370, 470, 570, 1000}, -1, -1},                  // the first is gone by
        {{0, 10, 20, 190, 200, 210, 380}, 380, 1000},                  // until the first is gone by
        {{0, 10, 20, 30, 200, 360}, 30, 700},                          // calm from the last on
        {{0, 10, 20, 30, 371, 381, 391, 561, 571, 581, 751}, 30, 370}, // what was held begins anew
    };
    for (const flicker& f : all) {
        set_picture(g.p, element::start, art::startpicdark);
        set_reduced(s, g, true);
        const auto is_held = [&] { return !s.held.empty(); };
        int held_at = -1, until = -1;
        for (int ms = 0; ms < 2000 && until < 0; ++ms) {
            if (const auto it = std::find(f.told.begin(), f.told.end(), ms); it != f.told.end()) {
                set_picture(g.p, element::start,
                            (it - f.told.begin()) % 2 == 0 ? art::startpiclight : art::startpicdark);
                take_in_lamp(s, g.p, element::start, 5000 + ms);
            }
            if (is_held() && held_at < 0)
                held_at = ms;
            const int wait = advance_lamps(s, g, 5000 + ms);
            EXPECT_EQ(wait > 0, is_held());
            if (held_at >= 0 && !is_held())
                until = ms;
        }
        EXPECT_EQ(held_at, f.held_at) << f.told[1] << ", " << f.told.size();
        EXPECT_EQ(until, f.until) << f.told[1] << ", " << f.told.size();
    }
}

// A front end that paints what was touched and patched, when a picture is
// wanted, shows all there is.
TEST_F(Patches, NothingLooksDifferentThatIsNotPatchedAndNoPictureIsWantedInVain) {
    constexpr element watched[] = {element::reel1,       element::reel2,      element::reel3,
                                   element::numberfour,  element::start,      element::hold1,
                                   element::displayline, element::feature_m1, element::feature_displayline};
    const auto look_of = [&](const stage& seen, element e) {
        const element_state& state = shown(seen, g.p, e);
        const auto reel = static_cast<std::size_t>(e) - static_cast<std::size_t>(element::reel1);
        const reel_motion r = reel < 3 ? seen.reels[reel] : reel_motion{};
        return std::tuple(state.picture, state.fore, state.text, r.on_strip,
                          r.on_strip && r.blur < 16 ? r.at : 0, r.blur,
                          e == element::feature_displayline ? seen.belt.columns : 0);
    };
    const auto halfway_to_a_blank = [&] {
        return g.b.beltstep > 60 && g.b.beltphase == 1 && g.b.beltwindow.starts_with("  ") &&
               s.belt.columns > 2;
    };
    int waited = 0;
    for (int ms = 0; ms < 40'000; ++ms) {
        if (ms % 10'000 == 0)
            set_reduced(s, g, ms / 10'000 % 2 == 0);
        if (ms < 20'000 ? ms % 400 == 0 : halfway_to_a_blank())
            key(ms < 20'000 ? "  123C"[draw(g, 6) - 1] : space);
        if (ms == 20'000)
            open_stop(award::moneybelt, timer::feature_moneybelttimer, 0);
        deliver(g, g.p.now + 1);
        const stage before = s;
        std::vector<bool> touched;
        take_in(s, g, g.p.now);
        for (const element e : watched)
            touched.push_back(std::exchange(at(g.p, e).touched, false));
        const int next = advance(s, g, g.p.now);
        for (std::size_t i = 0; i < std::size(watched); ++i)
            if (!touched[i] && look_of(before, watched[i]) != look_of(s, watched[i])) {
                EXPECT_TRUE(patched(watched[i])) << row(watched[i]).name << " at " << ms;
            }
        s.patches.clear();
        for (element_state& e : g.p.elements)
            e.touched = false;
        if (next == 0 || s.win.shows)
            continue;
        stage later = s;
        advance(later, g, g.p.now + (next < 0 ? 2000 : next - 1));
        for (const element e : watched)
            EXPECT_EQ(look_of(later, e), look_of(s, e)) << row(e).name << " unasked for at " << ms;
        if (next > 0) {
            advance(later, g, g.p.now + next);
            EXPECT_FALSE(later.patches.empty()) << "a picture was wanted for nothing at " << ms;
            ++waited;
        }
    }
    EXPECT_GT(waited, 500);
}

} // namespace
