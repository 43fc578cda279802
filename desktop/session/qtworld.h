// The window's side of the machine's contract with the world.
#pragma once

#include "panel/world.h"

#include <QLocale>
#include <QString>

#include <array>
#include <cstdint>
#include <string>

namespace hustle::desktop {

struct session;

struct qtworld : world {
    session* s = nullptr;
    QString data;         // folder of the two stored files
    bool unsaved = false; // a save has failed, and the machine is about to tell
    bool lost = false;    // one has failed at an end from outside, where nobody could be asked
    bool saving = true;   // false: played without saving
    // Why a stored file must not be written over; empty: it may be.
    std::array<std::string, 2> untouchable;
    QString sounds;          // folder of the waves and the tune
    std::uint64_t state = 0; // of the generator
    bool repeats = false;    // the state was given: the clock is kept out of the draws
    bool heard = false;      // the sound has been opened
    bool tune_waits = false; // the tune is to be opened then

    int draw(int n) override;
    void play(sound) override;
    void midi(tune) override;
    bool box(const message&) override;
    void wait(int ms) override;
    std::optional<std::string> read(store) override;
    bool write(store, std::string_view text) override;
    std::string set_aside(store) override;
    void browse(page) override;
    bool system_info() override;
    std::string currency(float amount) override;
    void exit() override;
};

// Finds the folders and the generator's first state: HUSTLE_SEED where it is set, else chance.
void prepare_world(qtworld&);
// A system without a country of its own ("C") plays in pounds, as the machine's home does.
bool plays_in_pounds(const QLocale&);
// An amount in the words of a country.
std::string amount_as_told(const QLocale&, float amount);
// Whether a stored file of ours may be written.
bool may_write(const qtworld&, store);
// Tells the player at the start where nothing can be saved.
void tell_if_unwritable(qtworld&);
// Opens the sound, once; called after the first painted frame.
void open_ears(qtworld&);

} // namespace hustle::desktop
