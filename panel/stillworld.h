// A world in which nothing is heard or shown: draws from the plain generator, stored files in
// memory, boxes answered with OK or No. Tests, measurements and the lab play in it.
#pragma once

#include "panel/sheet.h"
#include "panel/splitmix.h"
#include "panel/text.h"
#include "panel/world.h"

namespace hustle {

struct stillworld : world {
    std::uint64_t state = 1; // of the generator
    std::optional<std::string> files[2];
    bool ended = false;

    int draw(int n) override { return splitmix_draw(state, n); }
    void play(sound) override {}
    void midi(tune) override {}
    bool box(const message& m) override { return !m.yes_or_no; }
    void wait(int) override {}
    std::optional<std::string> read(store s) override { return files[static_cast<int>(s)]; }
    bool write(store s, std::string_view text) override {
        files[static_cast<int>(s)] = text;
        return true;
    }
    std::string set_aside(store s) override {
        files[static_cast<int>(s)].reset();
        return std::string(name(s)) + ".damaged";
    }
    void browse(page) override {}
    bool system_info() override { return false; }
    std::string currency(float amount) override { return std::string(std::string_view(uk_currency(amount))); }
    void exit() override { ended = true; }
};

} // namespace hustle
