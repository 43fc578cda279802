// All that the machine asks of what lies outside it: the whole contract with a front end. The
// headless stand-in is panel/stillworld.h; the window and the script runner have their own.
#pragma once

#include "panel/ids.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace hustle {

enum class page : std::uint8_t { help, home }; // the two pages for the browser

struct message {
    std::string_view title;
    std::string_view text;
    enum class mark : std::uint8_t { plain, warning, question } look = mark::plain;
    bool yes_or_no = false; // buttons Yes and No instead of OK
};

struct world {
    virtual ~world() = default;

    // One whole number from 1 to n, uniform; n is at least 1.
    virtual int draw(int n) = 0;
    // Plays a wave at once and returns; it ends the one that plays. Silence if it cannot.
    virtual void play(sound) = 0;
    // What the tune is to do. It is opened once, before anything else is asked of it.
    virtual void midi(tune) = 0;
    // A modal box; true for Yes and for OK. No tick and no other input arrives meanwhile.
    virtual bool box(const message&) = 0;
    // Holds the machine for so many milliseconds; the window goes on painting.
    virtual void wait(int ms) = 0;
    // The text of a stored file, or nothing where there is none.
    virtual std::optional<std::string> read(store) = 0;
    // Replaces a stored file as a whole, or leaves the old one whole and returns false.
    virtual bool write(store, std::string_view text) = 0;
    // Keeps a damaged file under its name with ".damaged" added, or more where one is kept already.
    // The name that it has now; empty where it could not be moved, and is left as it is.
    virtual std::string set_aside(store) = 0;
    // Opens one of the program's own pages in the system's browser.
    virtual void browse(page) = 0;
    // The system-information button of the about box; false where the platform has nothing to show.
    virtual bool system_info() = 0;
    // An amount of pounds in the currency form of the system's settings.
    virtual std::string currency(float amount) = 0;
    // The program ends: no event is delivered after the running handler.
    virtual void exit() = 0;
};

} // namespace hustle
