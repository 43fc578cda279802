// Plays a wave and the tune into a file instead of a device, and listens to what was written.
// Usage: sounddisk FOLDER-OF-SOUNDS RAW-FILE-TO-WRITE
#include "desktop/platform/places.h"
#include "desktop/platform/sound.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace hustle::desktop;
namespace fs = std::filesystem;

void wait(int ms) { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }

std::size_t written(const fs::path& raw) {
    std::error_code not_there;
    const auto size = fs::file_size(raw, not_there);
    return not_there ? 0 : size / 2;
}

// How many samples from one place on can be heard.
int heard(const fs::path& raw, std::size_t from) {
    const std::size_t to = std::max(from, written(raw));
    std::vector<std::int16_t> samples(to - from);
    std::ifstream in(raw, std::ios::binary);
    in.seekg(static_cast<std::streamoff>(from * 2));
    in.read(reinterpret_cast<char*>(samples.data()), static_cast<std::streamsize>(samples.size() * 2));
    return static_cast<int>(
        std::count_if(samples.begin(), samples.end(), [](int x) { return std::abs(x) > 300; }));
}

// Waits until enough of it has been heard; the device, the file and the tune take their time.
bool comes(const fs::path& raw, std::size_t from) {
    for (int i = 0; i < 200; ++i, wait(100))
        if (heard(raw, from) > 10000)
            return true;
    return false;
}

// Waits until half a second has gone by without a sound.
bool falls_silent(const fs::path& raw) {
    for (int i = 0; i < 100; ++i) {
        const std::size_t from = written(raw);
        for (int j = 0; j < 100 && written(raw) < from + 44100; ++j)
            wait(50);
        if (written(raw) >= from + 44100 && heard(raw, from) == 0)
            return true;
    }
    return false;
}

int failures = 0;
void check(bool good, const char* what) {
    std::cout << (good ? "ok      " : "FAILED  ") << what << '\n';
    failures += good ? 0 : 1;
}

} // namespace

int main(int count, char** words) {
    const QCoreApplication application(count, words);
    if (count != 3)
        return 2;
    const std::string folder = words[1];
    const fs::path raw = words[2];
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", raw.c_str(), 1);

    std::error_code not_there;
    fs::remove(raw, not_there);
    open_sound(folder, shipped_module("hustlemixer").toStdString());
    std::cout << sound_state() << '\n';
    tune_command(hustle::tune::open);
    play_wave(hustle::sound::win);
    check(comes(raw, 0), "a wave is heard");
    check(falls_silent(raw), "the wave ends");

    const std::size_t before = written(raw);
    tune_command(hustle::tune::play);
    check(comes(raw, before), "the tune is heard");
    tune_command(hustle::tune::stop);
    check(falls_silent(raw), "the tune stops");

    tune_command(hustle::tune::close);
    close_sound();
    play_wave(hustle::sound::win); // nobody hears it, nothing happens
    return failures;
}
