// hustlesounds FOLDER: writes the machine's wave files and its tune into a folder.
#include "panel/sheet.h"
#include "sounds/synth.h"
#include "sounds/tune.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

bool write(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out << bytes;
    out.close();
    if (!out)
        std::cerr << "hustlesounds: cannot write " << file.string() << '\n';
    return static_cast<bool>(out);
}

} // namespace

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "usage: hustlesounds FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = words[1];
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    if (failed) {
        std::cerr << "hustlesounds: cannot make " << folder.string() << ": " << failed.message() << '\n';
        return 1;
    }
    bool good = write(folder / "hustle.mid", hustle::sounds::tune_file());
    for (std::size_t i = 0; i < hustle::sound_count; ++i) {
        const auto wave = static_cast<hustle::sound>(i);
        good = write(folder / hustle::name(wave), hustle::sounds::wave_file(hustle::sounds::render(wave))) &&
               good;
    }
    return good ? 0 : 1;
}
