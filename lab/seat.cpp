// The loop of one machine: ticks in the machine's time, a look of the player after each, and his
// presses when his hand arrives. Nothing is allocated in it.
#include "lab/seat.h"

#include "core/files.h"
#include "core/start.h"
#include "panel/sheet.h"
#include "screens/events.h"

#include <algorithm>
#include <limits>
#include <memory>

namespace hustle::lab {

namespace {

constexpr std::int64_t for_ever = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t noon = 43'200'000; // ms: where the script runner's clock starts too

std::uint64_t mixed(std::uint64_t z) {
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

void boot_to_main(game& g) {
    reset_game(g, noon);
    boot(g);
    timer tick{};
    while (!is_loaded(g.p, screen::main) && deliver_one(g, for_ever, tick)) {
    }
}

void tell_start(const seat& s, std::string& script) {
    script.append("file ").append(name(store::game_dat)).append("\n");
    const std::string& text = *s.world.files[0];
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find("\r\n", at);
        script.append(text, at, end - at).append("\n");
        at = end + 2;
    }
    script += "end\nseed " + std::to_string(s.world.state) + "\nboot\n";
}

void tell_press(seat& s, std::int64_t before, element e) {
    std::string& script = *s.script;
    if (before > s.script_now)
        script += "run " + std::to_string(before - s.script_now) + "\n";
    if (s.world.asked)
        script += "answer yes\n";
    s.world.asked = false;
    script.append("press ").append(row(row(e).where).name).append(".").append(row(e).name).append("\n");
    s.script_now = s.g.p.now;
}

// As deliver_one does it; taken apart, for the seat looks at the bank before it, and the call of another
// room's function at each tick would cost four plays in a hundred.
void tick(seat& s, timer which) {
    if (which == timer::wintobank)
        s.was.bank = s.g.m.bank;
    run_tick(s.g, which);
    settle(s.g);
    notice_tick(s, which);
}

void press(seat& s) {
    const element e = s.next_press;
    s.next_press = no_press;
    s.player.last = e;
    s.player.pressed_at = s.g.p.now;
    before_press(s);
    apply(s.g, {.what = input::kind::press, .on = e});
    if (s.script != nullptr)
        tell_press(s, s.press_at, e);
    after_press(s, e);
}

void look(seat& s) {
    const std::int64_t now = s.g.p.now;
    if (now - s.last_play > s.patience) {
        s.stuck = true;
        return;
    }
    const move m = s.policy(sight(s.g), s.player);
    if (m.press == no_press)
        return;
    s.next_press = m.press;
    s.press_at = now + m.after + s.t.reaction;
}

} // namespace

std::uint64_t seed_of(const terms& t, int machine, int stream) {
    return mixed(mixed(t.seed + 0x9E3779B97F4A7C15ULL) + static_cast<std::uint64_t>(machine) * 16 +
                 static_cast<std::uint64_t>(stream));
}

std::string first_file(const terms& t) {
    labworld w;
    const auto g = std::make_unique<game>(w);
    boot_to_main(*g);
    g->m.moneyin = static_cast<single>(t.moneyin);
    g->m.moneyout = static_cast<single>(t.moneyout);
    g->m.soundstate = setting::off; // nobody listens
    return game_text(g->m);
}

void sit_down(seat& s, const terms& t, int machine, int stream, std::string* script) {
    s.t = t;
    s.policy = policies()[static_cast<std::size_t>(t.policy)].play;
    s.patience = std::int64_t{t.patience} * 60'000;
    s.machine = machine;
    s.stream = stream;
    s.player = {};
    s.player.rung = t.rung;
    s.player.dice = seed_of(t, machine, stream + 8);
    s.seen = {};
    s.play = {};
    s.sum = {};
    s.dry = 0;
    s.warm_left = t.warmup;
    s.window_staked = s.window_banked = {};
    s.next_look = 0;
    s.next_press = no_press;
    s.stuck = false;
    s.world.files[0] = first_file(t);
    s.world.state = seed_of(t, machine, stream);
    s.world.asked = false;
    s.world.queued = {};
    s.script = script;
    if (script != nullptr)
        tell_start(s, *script);
    boot_to_main(s.g);
    s.began_at = s.last_play = s.script_now = s.g.p.now;
}

void play_on(seat& s, number until) {
    panel& p = s.g.p;
    timer which{};
    while (s.sum.plays < until && !s.stuck) {
        if (s.next_press == no_press) {
            if (!take_tick(p, for_ever, which))
                s.stuck = true; // no timer runs: nothing will ever happen
            else
                tick(s, which);
            std::int64_t due = 0;
            if (next_due(p, due) && due > p.now)
                look(s);
        } else if (p.now <= s.press_at && take_tick(p, s.press_at, which)) {
            tick(s, which);
        } else {
            p.now = std::max(p.now, s.press_at);
            press(s);
        }
    }
}

terms home_terms(const terms& t, int way) {
    terms home = t;
    home.plays = std::min(t.plays, home_plays);
    home.warmup = 0;
    home.moneyin = 100;
    home.moneyout = home_from[static_cast<std::size_t>(way)];
    return home;
}

bool play_home(seat& scratch, const terms& t, int machine, tally& into) {
    for (std::size_t k = 0; k < home_from.size(); ++k) {
        const terms home = home_terms(t, static_cast<int>(k));
        sit_down(scratch, home, machine, static_cast<int>(k) + 1);
        play_on(scratch, home.plays);
        if (scratch.stuck)
            return false;
        std::copy_n(scratch.sum.look_own.begin(), home_looks, into.home_own[k].begin());
    }
    return true;
}

} // namespace hustle::lab
