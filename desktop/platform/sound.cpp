#include "desktop/platform/sound.h"

#include "panel/sheet.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace hustle::desktop {
namespace {

constexpr int rate = 44100;      // Hz
constexpr int buffer = 1024;     // sample frames: 23 ms
constexpr int wave_volume = 112; // of 128
constexpr int tune_volume = 52;  // of 128: the tune stays beneath the waves
constexpr const char* fonts[] = {
    // the first that is there plays the tune
    "/usr/share/sounds/sf2/TimGM6mb.sf2",   "/usr/share/sounds/sf2/default-GM.sf2",
    "/usr/share/sounds/sf3/default-GM.sf3", "/usr/share/sounds/sf2/FluidR3_GM.sf2",
    "/usr/share/soundfonts/default.sf2",    "/usr/share/soundfonts/FluidR3_GM.sf2",
};

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

// What only the sound thread touches.
struct mixer {
    std::string folder;
    std::array<Mix_Chunk*, sound_count> waves{};
    std::array<bool, sound_count> asked{}; // its file has been looked for
    Mix_Music* tune = nullptr;
};

std::jthread worker;

std::string describe() {
    std::string text = SDL_GetCurrentAudioDriver();
#if SDL_VERSION_ATLEAST(2, 24, 0)
    char* device = nullptr;
    SDL_AudioSpec unused{};
    if (SDL_GetDefaultAudioInfo(&device, &unused, 0) == 0 && device != nullptr) {
        text.append(", ").append(device);
        SDL_free(device);
    }
#endif
    int hz = 0, channels = 0;
    std::uint16_t format = 0;
    if (Mix_QuerySpec(&hz, &format, &channels) != 0)
        text.append(", ").append(std::to_string(hz)).append(" Hz");
    return text;
}

void choose_soundfont() {
    if (std::getenv("SDL_SOUNDFONTS") != nullptr)
        return;
    std::error_code ignored;
    for (const char* font : fonts)
        if (std::filesystem::exists(font, ignored)) {
            Mix_SetSoundFonts(font);
            return;
        }
}

// Asked before it is opened: opening where there is no device would write to stderr.
bool open_device() {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Hoard Hustle");
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
        return false;
    if (SDL_GetNumAudioDevices(0) != 0 && Mix_OpenAudio(rate, AUDIO_S16SYS, 2, buffer) == 0) {
        Mix_AllocateChannels(1);
        choose_soundfont();
        return true;
    }
    SDL_Quit();
    return false;
}

void turn_volume(int percent) {
    Mix_Volume(0, wave_volume * percent / 100);
    Mix_VolumeMusic(tune_volume * percent / 100);
}

void close_tune(mixer& m) {
    if (m.tune != nullptr)
        Mix_FreeMusic(m.tune);
    m.tune = nullptr;
}

void open_tune(mixer& m) {
    close_tune(m);
    const std::string path = m.folder + "/hustle.mid";
    std::error_code ignored;
    const char* found = Mix_GetSoundFonts();
    if (found == nullptr || !std::filesystem::exists(path, ignored))
        return;
    if ((Mix_Init(MIX_INIT_MID) & MIX_INIT_MID) != 0)
        m.tune = Mix_LoadMUS(path.c_str());
}

void play(mixer& m, hustle::sound wave) {
    const auto at = static_cast<std::size_t>(wave);
    if (!m.asked[at]) {
        m.asked[at] = true;
        m.waves[at] = Mix_LoadWAV((m.folder + "/" + std::string(name(wave))).c_str());
    }
    // A wave whose file is missing still ends the one that plays.
    if (m.waves[at] == nullptr)
        Mix_HaltChannel(0);
    else
        Mix_PlayChannel(0, m.waves[at], 0);
}

void obey(mixer& m, hustle::tune command) {
    switch (command) {
    case tune::open: open_tune(m); break;
    case tune::play:
        if (m.tune != nullptr)
            Mix_PlayMusic(m.tune, 1);
        break;
    case tune::stop: Mix_HaltMusic(); break;
    case tune::close: close_tune(m); break;
    }
}

void carry_out(mixer& m, const order& o) {
    switch (o.kind) {
    case what::wave: play(m, o.wave); break;
    case what::tune: obey(m, o.tune); break;
    case what::volume: turn_volume(o.percent); break;
    }
}

void close_device(mixer& m) {
    Mix_HaltChannel(-1);
    Mix_HaltMusic();
    close_tune(m);
    for (Mix_Chunk* wave : m.waves)
        if (wave != nullptr)
            Mix_FreeChunk(wave);
    Mix_CloseAudio();
    Mix_Quit();
    SDL_Quit();
}

void tell(std::string state, bool deaf) {
    const std::scoped_lock held(shared.lock);
    shared.state = std::move(state);
    shared.deaf = deaf;
    if (deaf)
        shared.orders.clear();
    shared.changed.notify_all();
}

void run(const std::stop_token& stop, const std::string& folder) {
    if (!open_device()) {
        tell("no sound device", true);
        return;
    }
    mixer m{.folder = folder};
    tell(describe(), false);
    {
        const std::scoped_lock held(shared.lock);
        turn_volume(shared.volume);
    }
    std::vector<order> taken;
    while (!stop.stop_requested()) {
        {
            std::unique_lock held(shared.lock);
            shared.changed.wait(held, stop, [] { return !shared.orders.empty(); });
            taken.swap(shared.orders);
        }
        for (const order& o : taken)
            carry_out(m, o);
        taken.clear();
    }
    close_device(m);
}

void give(order o) {
    const std::scoped_lock held(shared.lock);
    if (shared.deaf)
        return;
    shared.orders.push_back(o);
    shared.changed.notify_all();
}

} // namespace

bool open_sound(const std::string& folder) {
    if (worker.joinable())
        return true;
    tell({}, false);
    try {
        worker = std::jthread(run, folder);
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
