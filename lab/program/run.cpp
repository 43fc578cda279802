#include "lab/program/run.h"

#include "lab/program/progress.h"
#include "lab/seat.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <memory>
#include <mutex>
#include <thread>
#include <unistd.h>

namespace hustle::lab {

namespace {

std::atomic<bool> interrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void on_interrupt(int) { interrupted.store(true, std::memory_order_relaxed); }

// The first Ctrl-C ends the run in good order, the second one ends the program.
struct interrupt_guard {
    struct sigaction old_int {
    }, old_term{};
    interrupt_guard() {
        interrupted = false;
        struct sigaction act {};
        act.sa_handler = on_interrupt;
        act.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(SIGINT, &act, &old_int);
        sigaction(SIGTERM, &act, &old_term);
    }
    ~interrupt_guard() {
        sigaction(SIGINT, &old_int, nullptr);
        sigaction(SIGTERM, &old_term, nullptr);
    }
    interrupt_guard(const interrupt_guard&) = delete;
    interrupt_guard& operator=(const interrupt_guard&) = delete;
};

constexpr number slice = 5'000;          // plays between two looks at the clock of the house
constexpr double seconds_of_saving = 60; // between two savings of a long run

struct stuck_machine {
    int machine;
    int stream;
};

// What the threads share.
struct work {
    explicit work(const terms& of_run) : t(of_run) {}

    const terms& t;
    std::vector<int> wanted; // machines that are still to be played
    std::atomic<std::size_t> next{0};
    std::atomic<number> done{0}; // plays
    std::atomic<int> at_work{0};
    std::mutex lock; // of what follows
    std::condition_variable news;
    std::vector<record> records;
    std::vector<stuck_machine> stuck;
};

bool going_on() { return !interrupted.load(std::memory_order_relaxed); }

// The counted plays of one machine; false where it got stuck.
bool play_machine(work& w, seat& s, record& r) {
    if (!play_home(s, w.t, r.machine, r.counts))
        return false;
    const auto home = r.counts.home_own;
    sit_down(s, w.t, r.machine);
    while (s.sum.plays < w.t.plays && !s.stuck && going_on()) {
        const number before = s.sum.plays;
        play_on(s, std::min(w.t.plays, before + slice));
        w.done.fetch_add(s.sum.plays - before, std::memory_order_relaxed);
    }
    r.counts = s.sum;
    r.counts.home_own = home;
    return !s.stuck;
}

void worker(work& w) {
    const auto s = std::make_unique<seat>();
    for (;;) {
        const std::size_t n = w.next.fetch_add(1, std::memory_order_relaxed);
        if (n >= w.wanted.size() || !going_on())
            break;
        record r{.machine = w.wanted[n], .counts = {}};
        const bool well = play_machine(w, *s, r);
        const std::lock_guard guard(w.lock);
        if (!well)
            w.stuck.push_back({r.machine, s->stream});
        if (r.counts.plays > 0)
            w.records.push_back(r);
        w.news.notify_one();
    }
    const std::lock_guard guard(w.lock);
    --w.at_work;
    w.news.notify_one();
}

result so_far(const result& begun, const work& w) {
    result r = begun;
    r.machines.insert(r.machines.end(), w.records.begin(), w.records.end());
    std::ranges::sort(r.machines, {}, &record::machine);
    return r;
}

// A full disk costs no play: the next saving may go well, and the last one counts.
void save_meanwhile(const result& r, const std::string& name) {
    try {
        save(r, name);
    } catch (const file_error& e) {
        std::cerr << "hustlelab: " << e.what() << "; the run goes on\n";
    }
}

// Waits for the threads; saves now and then, and tells a person how it goes.
void wait_for(work& w, const result& begun, const run_options& o, const progress& bar) {
    std::unique_lock guard(w.lock);
    auto saved = std::chrono::steady_clock::now();
    std::size_t saved_records = 0;
    while (w.at_work > 0) {
        w.news.wait_for(guard, std::chrono::milliseconds(250));
        bar.draw(w.done);
        if (o.out.empty() || w.records.size() == saved_records || seconds_since(saved) < seconds_of_saving)
            continue;
        saved_records = w.records.size();
        const result now = so_far(begun, w);
        guard.unlock();
        save_meanwhile(now, o.out);
        saved = std::chrono::steady_clock::now();
        guard.lock();
    }
}

result earlier(const run_options& o) {
    result r;
    r.t = o.t;
    r.part = o.part;
    if (o.out.empty())
        return r;
    for (const std::string& name : {o.out, csv_name(o.out)}) {
        if (!o.resume && !o.replace && is_there(name))
            throw file_error(name + ": is there already: --resume goes on with it, --replace plays anew; "
                                    "nothing was played");
        try_file(name); // better now than after a night
    }
    if (!o.resume || !is_there(o.out))
        return r;
    result found = read_result(read_file(o.out), o.out);
    if (found.t != o.t || found.part != o.part)
        throw file_error(o.out + ": it is of a run with other terms; nothing was played");
    std::erase_if(found.machines, [&](const record& m) { return !found.has(m.machine); });
    return found;
}

// The way into a dead end, as a script that the script runner can take.
void tell_stuck(const terms& t, const stuck_machine& where) {
    const auto s = std::make_unique<seat>();
    std::string script;
    terms same = t;
    if (where.stream > 0)
        same = home_terms(t, where.stream - 1);
    sit_down(*s, same, where.machine, where.stream, &script);
    play_on(*s, same.plays);
    script += "run 1000\nget main.displayline.caption feature.loaded feature.displayline.caption credits "
              "bank win\n";
    const std::string name = "hustlelab-stuck-" + std::to_string(where.machine) + ".txt";
    write_file(name, script);
    std::cerr << "hustlelab: machine " << where.machine << " has begun no play for " << t.patience
              << " minutes on its clock; hustlescript --long " << name << " leads there\n";
}

} // namespace

int run(const run_options& o) {
    const interrupt_guard guard;
    result r = earlier(o);
    work w(o.t);
    for (const int n : machines_of(o.t, o.part))
        if (!r.has(n))
            w.wanted.push_back(n);
    const number wanted = o.t.plays * static_cast<number>(machines_in(o.t, o.part));
    progress bar{.wanted = wanted,
                 .before = wanted - o.t.plays * static_cast<number>(w.wanted.size()),
                 .on_terminal = isatty(STDERR_FILENO) != 0};
    const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
    const auto threads = std::min(
        w.wanted.size(), static_cast<std::size_t>(o.threads > 0 ? static_cast<unsigned>(o.threads) : cores));
    std::vector<std::thread> team;
    w.at_work = static_cast<int>(threads);
    for (std::size_t i = 0; i < threads; ++i)
        team.emplace_back(worker, std::ref(w));
    try {
        wait_for(w, r, o, bar);
    } catch (...) {
        interrupted = true;
        for (std::thread& t : team)
            t.join();
        throw;
    }
    for (std::thread& t : team)
        t.join();
    bar.clear();
    const double seconds = seconds_since(bar.began);
    r = so_far(r, w);
    if (!r.machines.empty())
        std::cout << told(r) << std::flush; // before the saving, which may fail
    if (wanted == 0)
        std::cerr << "hustlelab: no machine falls to this share\n";
    else if (w.wanted.empty())
        std::cerr << "hustlelab: all of it was played before\n";
    else
        std::fprintf(stderr, "%.0f plays in %.1f s: %.0f a second on %zu thread%s\n",
                     static_cast<double>(w.done), seconds,
                     static_cast<double>(w.done) / std::max(seconds, 1e-9), threads, threads == 1 ? "" : "s");
    if (!o.out.empty() && (!r.machines.empty() || r.complete()))
        save(r, o.out);
    for (const stuck_machine& where : w.stuck)
        tell_stuck(o.t, where);
    if (!w.stuck.empty())
        return status_stuck;
    if (r.complete())
        return 0;
    std::cerr << "hustlelab: broken off: these are the plays until then"
              << (o.out.empty() ? "" : "; --resume goes on from the last whole machine") << '\n';
    return status_broken_off;
}

} // namespace hustle::lab
