#include "desktop/platform/sound.h"

#include "desktop/platform/mixer.h"

#include <dlfcn.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace hustle::desktop {
namespace {

enum class what : std::uint8_t { wave, tune, volume };
struct order {
    what kind;
    hustle::sound wave = {};
    hustle::tune tune = {};
    int percent = 100; // for volume
};

// What the game's thread and the sound thread share, behind one lock.
struct {
    std::mutex lock;
    std::condition_variable_any changed;
    std::vector<order> orders;
    std::string state; // empty while the device is being opened
    bool deaf = true;  // nobody takes orders
    int volume = 100;  // percent, as last told
} shared;

std::jthread worker;

// Null where the module is not there or does not fit.
const mixer_calls* load_mixer(const std::string& module) {
    void* const loaded = ::dlopen(module.c_str(), RTLD_LAZY | RTLD_LOCAL);
    if (loaded == nullptr)
        return nullptr;
    const auto entry = reinterpret_cast<mixer_entry>(::dlsym(loaded, mixer_entry_name));
    return entry == nullptr ? nullptr : entry();
}

void carry_out(const mixer_calls& mixer, const order& o) {
    switch (o.kind) {
    case what::wave: mixer.play(o.wave); break;
    case what::tune: mixer.tune(o.tune); break;
    case what::volume: mixer.volume(o.percent); break;
    }
}

void tell(std::string state, bool deaf) {
    const std::scoped_lock held(shared.lock);
    shared.state = std::move(state);
    shared.deaf = deaf;
    if (deaf)
        shared.orders.clear();
    shared.changed.notify_all();
}

void run(const std::stop_token& stop, const std::string& folder, const std::string& module) {
    const mixer_calls* const mixer = load_mixer(module);
    if (mixer == nullptr || !mixer->open(folder)) {
        tell("no sound device", true);
        return;
    }
    {
        const std::scoped_lock held(shared.lock);
        mixer->volume(shared.volume);
    }
    tell(mixer->describe(), false); // who waits for this finds it at the volume that was told before
    std::vector<order> taken;
    while (!stop.stop_requested()) {
        {
            std::unique_lock held(shared.lock);
            shared.changed.wait(held, stop, [] { return !shared.orders.empty(); });
            taken.swap(shared.orders);
        }
        for (const order& o : taken)
            carry_out(*mixer, o);
        taken.clear();
    }
    mixer->close();
}

void give(order o) {
    const std::scoped_lock held(shared.lock);
    if (shared.deaf)
        return;
    shared.orders.push_back(o);
    shared.changed.notify_all();
}

} // namespace

bool open_sound(const std::string& folder, const std::string& module) {
    if (worker.joinable())
        return true;
    tell({}, false);
    try {
        worker = std::jthread(run, folder, module);
    } catch (const std::system_error&) {
        tell("no sound device", true);
        return false;
    }
    return true;
}

void play_wave(hustle::sound wave) { give({.kind = what::wave, .wave = wave}); }

void tune_command(hustle::tune command) { give({.kind = what::tune, .tune = command}); }

void set_volume(int percent) {
    const std::scoped_lock held(shared.lock);
    if (shared.volume == percent)
        return;
    shared.volume = percent;
    if (shared.deaf)
        return;
    shared.orders.push_back({.kind = what::volume, .percent = percent});
    shared.changed.notify_all();
}

void close_sound() {
    if (!worker.joinable())
        return;
    worker.request_stop();
    worker.join();
    tell("no sound device", true);
}

std::string sound_state() {
    std::unique_lock held(shared.lock);
    if (!worker.joinable())
        return "no sound device";
    shared.changed.wait_for(held, std::chrono::seconds(2), [] { return !shared.state.empty(); });
    return shared.state.empty() ? "no sound device" : shared.state;
}

} // namespace hustle::desktop
