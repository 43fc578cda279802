#include "script/monkey.h"

#include "script/operations.h"

#include <algorithm>

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

constexpr int keys[] = {8, 13, 27, 32, 48, 49, 50, 51, 67, 72, 76, 84, 88, 112, 113, 114};

constexpr int wins[] = {0, 2, 10, 16, 20, 24, 30, 36, 40, 50, 60, 80, 150, 300};
constexpr int bounds[] = {0, 65, 70, 74, 75, 76, 80, 84, 85, 86, 90, 91, 94, 95, 96, 100};

bool is_whole(const field_row& f) {
    return std::visit(
        each{[](const reel_place& r) { return std::holds_alternative<count reel_state::*>(r.what); },
             [](count machine::*) { return true; }, [](count board::*) { return true; },
             [](count table_fields::*) { return true; }, [](auto) { return false; }},
        f.where);
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
        if (m.holdsoffered == flag::yes && m.linepromised == truth::is_not &&
            m.badholdmade == truth::is_not && choose(20) == 0)
            make(deed::pairholds, 2);
        if (choose(400) == 0)
            make(deed::moneyout, static_cast<int>(m.moneyin) * (60 + choose(50)) / 100);
        if (m.featuremode != mode::feature || !is_loaded(on.g.p, screen::feature))
            return;
        if (choose(20) == 0)
            make(deed::featurerung, 1 + choose(9));
        if (choose(40) == 0)
            make(deed::shots, 1 + choose(12));
        if (choose(60) == 0)
            for (const element bomb : {element::feature_bomb1, element::feature_bomb2})
                make(deed::bomb, static_cast<int>(bomb));
    }

    // What no player comes to in an evening: every element, key, close and operation.
    void stray() {
        const auto any_of = [this](std::size_t n) { return choose(static_cast<int>(n)); };
        if (choose(20) == 0)
            press(deed::press, static_cast<element>(any_of(element_count)));
        if (choose(30) == 0)
            make(deed::key, keys[any_of(std::size(keys))] * 16 + any_of(screen_count));
        if (choose(300) == 0)
            make(deed::close, any_of(screen_count));
        if (choose(200) == 0)
            make(deed::call, any_of(operation_rows().size()));
        if (choose(200) == 0)
            make(deed::load, any_of(screen_count));
        if (choose(60) == 0)
            make(deed::begin, any_of(timer_count));
        if (choose(100) == 0)
            make(deed::award, any_of(award_words().size()));
        if (choose(100) == 0)
            make(deed::win, wins[any_of(std::size(wins))]);
        if (choose(100) == 0)
            make(deed::credits, choose(6));
        if (choose(30) == 0) {
            const int field = any_of(field_rows().size());
            if (is_whole(field_rows()[static_cast<std::size_t>(field)]))
                make(deed::field, field * 64 + choose(choose(3) == 0 ? 64 : 12));
        }
        if (choose(10) == 0)
            at_the_bound();
    }

    // Odds turn where pcent stands exactly at a bound: what is decided then is decided at once.
    void at_the_bound() {
        make(deed::pcent,
             choose(8) == 0 ? 50 + choose(60) : bounds[choose(static_cast<int>(std::size(bounds)))]);
        if (choose(2) == 0)
            make(deed::call, choose(static_cast<int>(operation_rows().size())));
        else
            make(deed::begin, choose(static_cast<int>(timer_count)));
    }

    void step() {
        const machine& m = on.g.m;
        shuffle();
        if (on.all)
            stray();
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

outing let_loose(std::uint64_t seed, long ticks, bool wholly) {
    watched w(seed, wholly);
    outing o{seed, 0, 0, {}, {}};
    monkey ape{w, seed ^ 0x5eedULL, o.moves};
    while (w.fault.empty() && w.ticks < ticks)
        ape.step();
    o.signature = w.signature;
    o.whole = w.whole;
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

std::uint64_t whole_signature() {
    std::uint64_t all = 0;
    for (std::uint64_t seed = 1; seed <= 16; ++seed)
        all = all * 31 + let_loose(seed, 75'000, true).whole;
    return all;
}

std::uint64_t signature() { return let_loose(2026, 400'000).signature; }

} // namespace hustle::script
