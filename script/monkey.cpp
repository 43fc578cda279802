#include "script/monkey.h"

#include "core/start.h"
#include "panel/sheet.h"
#include "screens/dispatch.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace hustle::script {

namespace {

// What the monkey knows to press; the often pressed stand more than once.
constexpr element buttons[] = {element::start,
                               element::start,
                               element::start,
                               element::stopper,
                               element::stopper,
                               element::hold1,
                               element::hold2,
                               element::hold3,
                               element::cancelbutton,
                               element::transfer,
                               element::transfer,
                               element::feature_hibutton,
                               element::feature_lobutton,
                               element::feature_collect,
                               element::feature_featurebutton,
                               element::feature_cashbutton,
                               element::feature_shotbutton,
                               element::feature_exchangebutton,
                               element::feature_stopfeature,
                               element::feature_stopfeature,
                               element::feature_startbutton,
                               element::feature_startbutton};
constexpr element rare[] = {element::newgame,
                            element::gstat,
                            element::hscoretable,
                            element::freelspin,
                            element::sreelspin,
                            element::rreelspin,
                            element::reel1,
                            element::rwinmenu,
                            element::helpabout,
                            element::soundoff,
                            element::soundon,
                            element::bluedisp,
                            element::statistics_Picture1,
                            element::Highscore_Picture2,
                            element::About_cmdOK};

constexpr std::int64_t patience = 60 * 60 * 1000; // ms without a new play that mean a dead machine
constexpr int start_up = 350;                     // ms until main stands

// The money alone: a whole copy a tick would be slow.
machine money(const game& g) {
    machine m;
    m.bank = g.m.bank;
    m.win = g.m.win;
    m.credits = g.m.credits;
    m.moneyout = g.m.moneyout;
    return m;
}

// The monkey's own choices; the machine has a generator of its own.
struct monkey {
    watched& on;
    std::uint64_t choices;
    std::vector<move>& made;

    int choose(int n) { return splitmix_draw(choices, n) - 1; }

    void make(deed what, int value) {
        made.push_back({what, value});
        on.make(made.back());
    }
    void press(deed how, element e) {
        on.world.answered = false;
        make(how, static_cast<int>(e));
        if (!on.world.answered)
            made.back().what = deed::press;
    }

    // Now and then the machine is put where it may well stand.
    void shuffle() {
        const machine& m = on.g.m;
        if (m.holdsoffered == "yes" && m.linepromised == "false" && m.badholdmade == "false" &&
            choose(20) == 0)
            make(deed::pairholds, 2);
        if (choose(400) == 0)
            make(deed::moneyout, static_cast<int>(m.moneyin) * (60 + choose(50)) / 100);
        if (m.featuremode != "feature" || !is_loaded(on.g.p, screen::feature))
            return;
        if (choose(20) == 0)
            make(deed::featurerung, 1 + choose(9));
        if (choose(40) == 0)
            make(deed::shots, 1 + choose(12));
        if (choose(60) == 0)
            for (const element bomb : {element::feature_bomb1, element::feature_bomb2})
                make(deed::bomb, static_cast<int>(bomb));
    }

    void step() {
        const machine& m = on.g.m;
        shuffle();
        const bool broke = m.credits <= 0.1f && m.bank <= 0.1f && m.win == 0;
        if (broke && choose(40) == 0)
            press(deed::press_yes, element::newgame);
        else if (choose(200) == 0)
            press(deed::press, rare[choose(static_cast<int>(std::size(rare)))]);
        else
            press(deed::press, buttons[choose(static_cast<int>(std::size(buttons)))]);
        make(deed::run, choose(8) == 0 ? choose(1500) : choose(120));
    }
};

} // namespace

watched::watched(std::uint64_t seed) {
    world.state = seed;
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
}

void watched::fail(const std::string& what) {
    if (!fault.empty())
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
    while (fault.empty() && take_tick(g.p, until, which)) {
        ++ticks;
        const machine before = money(g);
        run_tick(g, which);
        settle(g);
        check_tick(which, before);
        sign(static_cast<std::uint64_t>(which));
        sign(static_cast<std::uint64_t>(g.p.now));
        for (const single value : {g.m.bank, g.m.win, g.m.pcent, g.m.winbank, g.m.streakbank})
            sign(std::bit_cast<std::uint32_t>(value));
    }
    g.p.now = std::max(g.p.now, until);
    if (g.p.now - last_play > patience)
        fail("no play has begun for an hour");
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

outing let_loose(std::uint64_t seed, long ticks) {
    watched w(seed);
    outing o{seed, 0, {}, {}};
    monkey ape{w, seed ^ 0x5eedULL, o.moves};
    while (w.fault.empty() && w.ticks < ticks)
        ape.step();
    o.signature = w.signature;
    o.fault = w.fault;
    return o;
}

std::vector<move> shortest(const outing& o, long ticks) {
    std::vector<move> kept = o.moves;
    const auto still_fails = [&](const std::vector<move>& moves) {
        watched w(o.seed);
        for (const move& m : moves) {
            w.make(m);
            if (!w.fault.empty() || w.ticks > ticks)
                break;
        }
        ticks -= w.ticks;
        return w.fault == o.fault;
    };
    for (std::size_t piece = (kept.size() + 1) / 2; piece > 0 && ticks > 0; piece /= 2)
        for (std::size_t from = 0; from < kept.size() && ticks > 0;) {
            std::vector<move> fewer = kept;
            const auto first = fewer.begin() + static_cast<std::ptrdiff_t>(from);
            fewer.erase(first, first + static_cast<std::ptrdiff_t>(std::min(piece, kept.size() - from)));
            if (still_fails(fewer))
                kept = std::move(fewer);
            else
                from += piece;
        }
    return kept;
}

std::uint64_t signature() { return let_loose(2026, 400'000).signature; }

} // namespace hustle::script
