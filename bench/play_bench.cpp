// What a play costs: run build/release/bin/hustle_bench on a quiet machine.
#include "core/start.h"
#include "panel/stillworld.h"
#include "screens/dispatch.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace hustle;

std::unique_ptr<game> booted(world& w) {
    auto g = std::make_unique<game>(w);
    reset_game(*g, 43200000);
    boot(*g);
    deliver(*g, 1000);
    return g;
}

// One paid play on the fast reels in virtual time, from the press to the reset walk's end, with
// every tick of every running timer. What a play may lead to is put away before the next.
void paid_play(benchmark::State& state) {
    stillworld w;
    const auto g = booted(w);
    const game rest = *g;
    long plays = 0;
    for (auto _ : state) {
        apply(*g, {.what = input::kind::press, .on = element::start});
        deliver(*g, g->p.now + 600);
        ++plays;
        if (!is_enabled(g->p, element::start) || g->m.win > 0 || g->m.credits < 1 ||
            is_running(g->p, timer::numbers2)) {
            state.PauseTiming();
            g->m = rest.m;
            g->b = rest.b;
            g->p = rest.p;
            state.ResumeTiming();
        }
    }
    state.counters["plays"] = static_cast<double>(plays);
}
BENCHMARK(paid_play);

// The same play over and over: stops that win nothing and bring no number.
struct quietworld : stillworld {
    int next = 0;
    int draw(int n) override {
        constexpr int stops[] = {2, 6, 8, 6, 6};
        const int k = stops[next++ % 5];
        return k <= n ? k : n;
    }
};

void quiet_play(benchmark::State& state) {
    quietworld w;
    const auto g = booted(w);
    const single in = g->m.moneyin;
    for (auto _ : state) {
        w.next = 0;
        g->m.credits = 20;
        g->m.moneyin = in;
        apply(*g, {.what = input::kind::press, .on = element::start});
        deliver(*g, g->p.now + 600);
    }
    if (!is_enabled(g->p, element::start) || g->m.win > 0)
        state.SkipWithError("the play did not end at rest");
}
BENCHMARK(quiet_play);

// For scale: no machine at all, only three stops drawn and the ledgers moved as a play moves them.
void bare_loop(benchmark::State& state) {
    stillworld w;
    machine m;
    for (auto _ : state) {
        add(m.credits, -1);
        add(m.streakbank, 0.04);
        add(m.winbank, 0.16);
        add(m.housecut, 0.05);
        add(m.cashbox, 0.25);
        int stops = 0;
        for (int reel = 0; reel < 3; ++reel)
            stops += w.draw(16);
        add(m.moneyin, 0.25);
        m.pcent = m.moneyout / m.moneyin * 100;
        benchmark::DoNotOptimize(stops);
        benchmark::DoNotOptimize(m);
    }
}
BENCHMARK(bare_loop);

void one_tick(benchmark::State& state) {
    stillworld w;
    const auto g = booted(w);
    timer which{};
    for (auto _ : state)
        deliver_one(*g, g->p.now + 1000, which);
}
BENCHMARK(one_tick);

} // namespace
