#include "web/labsurface.h"

#include "lab/figures.h"
#include "lab/policies.h"
#include "lab/seat.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using namespace hustle::lab;

namespace {

constexpr int most_here = 256;       // each takes some 200 kB with its two ways home
constexpr number round_plays = 2000; // the machines of a run are never further apart

// A machine that counts, and its ways home beside it.
struct bench {
    seat counted;
    std::array<seat, home_from.size()> home;

    bool stuck() const {
        return counted.stuck || std::ranges::any_of(home, [](const seat& s) { return s.stuck; });
    }
};

struct {
    terms t;
    std::vector<std::unique_ptr<bench>> benches;
    std::size_t turn = 0; // whose turn it is
    number until = 0;     // the plays to which all are played in this round
    std::string text;
} lab;

int give(std::string text) {
    lab.text = std::move(text);
    return static_cast<int>(lab.text.size());
}

// The way is looked at after 1, 2, 3, 5, ... plays: all machines get there before one goes on.
number next_round(number until) {
    std::size_t look = 0;
    while (look < look_count && look_at(look) <= until)
        ++look;
    return std::min({until + round_plays, look_at(look), lab.t.plays});
}

// At most so many plays on one machine; how many it was. Its ways home keep up with it.
number play(bench& b, number most) {
    const number before = b.counted.sum.plays;
    const number goal = std::min(lab.until, before + most);
    for (seat& s : b.home)
        play_on(s, std::min(goal, s.t.plays));
    play_on(b.counted, goal);
    return b.counted.sum.plays - before;
}

std::vector<record> records() {
    std::vector<record> all;
    for (const auto& b : lab.benches) {
        if (b->counted.sum.plays == 0 || std::ranges::any_of(b->home, [](const seat& s) { return s.stuck; }))
            continue;
        record r{.machine = b->counted.machine, .counts = b->counted.sum};
        for (std::size_t k = 0; k < home_from.size(); ++k)
            std::copy_n(b->home[k].sum.look_own.begin(), home_looks, r.counts.home_own[k].begin());
        all.push_back(r);
    }
    return all;
}

double left() {
    number plays = 0;
    for (const auto& b : lab.benches)
        plays += b->stuck() ? 0 : lab.t.plays - b->counted.sum.plays;
    return static_cast<double>(plays);
}

} // namespace

const char* hl_text(void) { return lab.text.data(); }

int hl_policies(void) {
    jsontext j;
    j.open('[');
    for (const policy_row& p : policies())
        j.open('['), j.text(p.name), j.text(p.text), j.close(']');
    j.close(']');
    return give(j.out);
}

int hl_begin(int policy, int machines, double plays, unsigned seed_low, unsigned seed_high, int reaction,
             int rung) {
    if (policy < 0 || policy >= static_cast<int>(policies().size()) || machines < 1 || machines > most_here ||
        !(plays >= 1 && plays <= 1e10) || reaction < 0 || reaction > 10'000 || rung < 1 || rung > 10)
        return 0;
    lab.t = {.policy = policy,
             .machines = machines,
             .plays = static_cast<number>(plays),
             .seed = (std::uint64_t{seed_high} << 32) | seed_low,
             .reaction = reaction,
             .rung = rung};
    lab.benches.clear();
    for (int n = 0; n < machines; ++n) {
        bench& b = *lab.benches.emplace_back(std::make_unique<bench>());
        sit_down(b.counted, lab.t, n);
        for (std::size_t k = 0; k < home_from.size(); ++k)
            sit_down(b.home[k], home_terms(lab.t, static_cast<int>(k)), n, static_cast<int>(k) + 1);
    }
    lab.turn = 0;
    lab.until = next_round(0);
    return 1;
}

double hl_play(double plays) {
    auto most = static_cast<number>(std::max(plays, 1.0));
    while (most > 0 && left() > 0) {
        bench& b = *lab.benches[lab.turn];
        if (!b.stuck())
            most -= play(b, most);
        if (b.counted.sum.plays < lab.until && !b.stuck())
            continue;
        if (++lab.turn < lab.benches.size())
            continue;
        lab.turn = 0;
        lab.until = next_round(lab.until);
    }
    return left();
}

int hl_stuck(void) {
    return static_cast<int>(std::ranges::count_if(lab.benches, [](const auto& b) { return b->stuck(); }));
}

int hl_result(void) {
    const std::vector<record> all = records();
    return give(all.empty() ? std::string() : result_text(lab.t, all));
}
