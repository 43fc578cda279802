#include "desktop/session/saver.h"

#include "desktop/platform/stablefile.h"

#include <utility>

namespace hustle::desktop {

namespace {

void run(const std::stop_token& stop, saver& s) {
    std::unique_lock held(s.lock);
    while (s.changed.wait(held, stop, [&] { return s.waiting.has_value(); })) {
        const std::string text = *std::exchange(s.waiting, {});
        s.at_work = true;
        held.unlock();
        s.saved(save_stored(s.folder, s.name, text));
        held.lock();
        s.at_work = false;
        s.changed.notify_all();
    }
}

} // namespace

void save_soon(saver& s, std::string text) {
    const std::scoped_lock held(s.lock);
    s.waiting = std::move(text);
    if (!s.worker.joinable())
        s.worker = std::jthread([&s](const std::stop_token& stop) { run(stop, s); });
    s.changed.notify_all();
}

void finish(saver& s) {
    std::unique_lock held(s.lock);
    s.changed.wait(held, [&] { return !s.waiting && !s.at_work; });
}

} // namespace hustle::desktop
