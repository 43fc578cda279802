// artsheet FOLDER: writes every picture of the bank there, as name.svg.
#include "art/art.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

struct named {
    hustle::art id;
    const char* name;
};
#define HUSTLE_NAMED(name) {hustle::art::name, #name},
constexpr named names[] = {HUSTLE_ARTS(HUSTLE_NAMED)};
#undef HUSTLE_NAMED

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: artsheet FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = arguments[1];
    std::error_code trouble;
    std::filesystem::create_directories(folder, trouble);
    for (const auto& [id, name] : names) {
        std::ofstream file(folder / (std::string(name) + ".svg"), std::ios::binary);
        if (!(file << hustle::svg(id)) || !file.flush()) {
            std::cerr << "artsheet: cannot write " << name << ".svg into " << folder.string() << "\n";
            return 1;
        }
    }
    return 0;
}
