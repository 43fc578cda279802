#include "script/watched.h"

#include "core/start.h"
#include "panel/sheet.h"
#include "screens/dispatch.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace hustle::script {

namespace {

constexpr std::int64_t patience =
    std::int64_t{60} * 60 * 1000; // ms without a new play that mean a dead machine
constexpr int start_up = 350;     // ms until main stands

void sign(std::uint64_t& number, std::uint64_t value) { number = (number ^ value) * 0x100000001b3ULL; }
void sign(std::uint64_t& number, std::string_view text) {
    for (const char c : text)
        sign(number, static_cast<unsigned char>(c));
    sign(number, text.size());
}
void sign(std::uint64_t& number, const slot& s) {
    std::visit(each{[&](const single* v) { sign(number, std::bit_cast<std::uint32_t>(*v + 0.0F)); },
                    [&](const word* v) { sign(number, *v); }, [&](const std::string* v) { sign(number, *v); },
                    [&](const panel* v) { sign(number, static_cast<std::uint64_t>(front(*v))); },
                    [&](const auto* v) { sign(number, static_cast<std::uint64_t>(*v)); }},
               s);
}

// The money alone: a whole copy a tick would be slow.
machine money(const game& g) {
    machine m;
    m.bank = g.m.bank;
    m.win = g.m.win;
    m.credits = g.m.credits;
    m.moneyout = g.m.moneyout;
    return m;
}

} // namespace

watched::watched(std::uint64_t seed, bool wholly) : all(wholly) {
    world.state = seed;
    start();
}

void watched::start() {
    reset_game(g, 43200000);
    boot(g);
    deliver(g, start_up);
}

void watched::make(const move& m) {
    if (m.what == deed::run)
        run(m.value);
    else if (m.what == deed::press || m.what == deed::press_yes)
        press(m);
    else
        script::make(g, world, m);
    if (!all)
        return;
    sign_all();
    if (g.p.over) // the next evening begins with what was stored
        start();
}

void watched::fail(const std::string& what) {
    if (!fault.empty() || all)
        return;
    fault = what;
    fault_at = g.p.now;
}

void watched::press(const move& p) {
    const machine before = money(g);
    script::make(g, world, p);
    const machine& m = g.m;
    const bool new_game = m.credits == 20 && m.bank == 0; // by the menu or by the hidden presses
    if (m.bank != before.bank && !new_game)
        fail("a press moved the bank");
    if (m.credits == before.credits - 1 || new_game)
        last_play = g.p.now;
}

void watched::run(int ms) {
    const std::int64_t until = g.p.now + ms;
    timer which{};
    machine before = money(g);
    while (fault.empty() && deliver_one(g, until, which)) {
        ++ticks;
        check_tick(which, before);
        sign(signature, static_cast<std::uint64_t>(which));
        sign(signature, static_cast<std::uint64_t>(g.p.now));
        for (const single value : {g.m.bank, g.m.win, g.m.pcent, g.m.winbank, g.m.streakbank})
            sign(signature, std::bit_cast<std::uint32_t>(value));
        if (all)
            sign_all();
        before = money(g);
    }
    g.p.now = std::max(g.p.now, until);
    if (g.p.now - last_play > patience)
        fail("no play has begun for an hour");
}

// Every field, every element that has asked to be drawn again, every timer, and what was heard.
void watched::sign_all() {
    for (const slot& field : known.fields())
        sign(whole, field);
    for (element_state& e : g.p.elements) {
        if (!e.touched)
            continue;
        e.touched = false;
        sign(whole, e.text);
        const unsigned looks =
            (e.enabled ? 1U : 0) | (e.visible ? 2U : 0) | (e.checked ? 4U : 0) | (e.lineflash ? 8U : 0);
        for (const std::uint64_t part :
             {static_cast<std::uint64_t>(&e - g.p.elements.data()), static_cast<std::uint64_t>(e.top),
              std::uint64_t{e.back}, std::uint64_t{e.fore}, std::uint64_t{e.activecolor},
              static_cast<std::uint64_t>(e.picture), std::uint64_t{looks}})
            sign(whole, part);
    }
    for (int i = 0; i < g.p.queued; ++i) {
        sign(whole, static_cast<std::uint64_t>(g.p.queue[static_cast<std::size_t>(i)].what));
        sign(whole, static_cast<std::uint64_t>(g.p.queue[static_cast<std::size_t>(i)].due));
    }
    sign(whole, world.heard);
}

void watched::check_tick(timer which, const machine& before) {
    machine paid = before;
    const machine& m = g.m;
    if (which == timer::wintobank && m.bank != before.bank) {
        add(paid.bank, 0.2);
        add(paid.win, -0.2);
        add(paid.moneyout, 0.2);
        if (m.win != paid.win || m.moneyout != paid.moneyout)
            fail("a payout step lost money");
    } else if (which == timer::banktocredits && m.bank != before.bank) {
        add(paid.bank, -0.25);
        if (m.credits != before.credits + 1)
            fail("a transfer step lost a credit");
    }
    if (m.bank != paid.bank)
        fail("the bank moved by " + std::string(row(which).name));
    if (m.win != m.win || std::abs(m.win) > 200)
        fail("a win out of nothing");
}

} // namespace hustle::script
