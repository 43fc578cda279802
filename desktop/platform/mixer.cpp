// The mixing library behind `mixer_calls`: a module of its own, loaded by the sound thread.
#include "desktop/platform/mixer.h"

#include "panel/sheet.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#ifdef __GLIBC__
#include <malloc.h>
#endif

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

// All of it is touched by the sound thread alone.
struct {
    std::string folder;
    std::array<Mix_Chunk*, sound_count> waves{};
    std::array<bool, sound_count> asked{}; // its file has been looked for
    bool may_tune = false;                 // the tune has been opened by the machine
    Mix_Music* tune = nullptr;             // loaded while it plays: with its instruments it is large
} m;

std::string describe() {
    SDL_version version{};
    SDL_GetVersion(&version);
    std::string text = "SDL ";
    for (const int part : {version.major, version.minor, version.patch})
        text.append(std::to_string(part)).append(part == version.patch ? "" : ".");
    text.append(", ").append(SDL_GetCurrentAudioDriver());
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
bool open_device(const std::string& folder) {
    m.folder = folder;
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

void let_go_of_tune() {
    if (m.tune == nullptr)
        return;
    Mix_FreeMusic(m.tune);
    m.tune = nullptr;
#ifdef __GLIBC__
    ::malloc_trim(0); // instruments are many small pieces
#endif
}

void load_tune() {
    const std::string path = m.folder + "/hustle.mid";
    std::error_code ignored;
    if (Mix_GetSoundFonts() == nullptr || !std::filesystem::exists(path, ignored))
        return;
    if ((Mix_Init(MIX_INIT_MID) & MIX_INIT_MID) != 0)
        m.tune = Mix_LoadMUS(path.c_str());
}

void play_tune() {
    if (!m.may_tune)
        return;
    if (m.tune == nullptr)
        load_tune();
    if (m.tune != nullptr)
        Mix_PlayMusic(m.tune, 1);
}

void obey(hustle::tune command) {
    switch (command) {
    case tune::open: m.may_tune = true; break;
    case tune::play: play_tune(); break;
    case tune::stop: let_go_of_tune(); break;
    case tune::close:
        let_go_of_tune();
        m.may_tune = false;
        break;
    }
}

void play(hustle::sound wave) {
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

void close_device() {
    Mix_HaltChannel(-1);
    let_go_of_tune();
    for (Mix_Chunk* wave : m.waves)
        if (wave != nullptr)
            Mix_FreeChunk(wave);
    m = {};
    Mix_CloseAudio();
    Mix_Quit();
    SDL_Quit();
}

} // namespace

extern "C" [[gnu::visibility("default")]] const mixer_calls* hustle_mixer() {
    static constexpr mixer_calls calls{open_device, describe, turn_volume, play, obey, close_device};
    return &calls;
}

} // namespace hustle::desktop
