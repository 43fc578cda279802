// What a player who presses anything at any moment does, move by move: each can be made on a machine
// and written as a line of a panel script.
#pragma once

#include "core/game.h"
#include "panel/stillworld.h"
#include "script/scriptworld.h"

#include <cstdint>
#include <span>
#include <string>

namespace hustle::script {

enum class deed : std::uint8_t {
    press,     // of an element, boxes answered with No and OK
    press_yes, // the same, boxes answered with Yes
    run,       // for so many ms
    // A field put where it may well stand: chance alone seldom leads deep.
    pairholds,
    moneyout,
    featurerung,
    shots,
    bomb, // an element that shows its bomb
    // Only of the monkey that goes everywhere.
    key,   // a code, and a screen in the lowest four bits
    close, // a screen
    call,  // an operation of operation_rows()
    load,  // a screen
    begin, // a timer is started
    award, // a word of award_words()
    pcent,
    win,     // in tenths of a pound
    credits, // in quarters of a play
    field,   // the place of a whole-number field in field_rows(), times 64, and what it becomes
};

struct move {
    deed what;
    int value; // an element, ms, what the field becomes, or as said above
};

struct monkeyworld final : stillworld {
    bool yes = false;      // the answer to a question
    bool answered = false; // a box has shown since this was cleared

    std::uint64_t heard = 0; // of all that sounded, was asked or was waited for

    void play(sound s) override { hear(static_cast<std::uint64_t>(s) + 1); }
    void midi(tune what) override { hear(command_text(what).size() + 200); }
    void wait(int ms) override { hear(static_cast<std::uint64_t>(ms) + 1000); }
    bool box(const message& m) override {
        hear(m.text.size() + 100);
        answered = true;
        return m.yes_or_no ? yes : true;
    }

private:
    void hear(std::uint64_t what) { heard = heard * 31 + what; }
};

std::span<const word> award_words();

// Makes any move but `run`, which is the business of who counts the ticks.
void make(game&, monkeyworld&, const move&);
// A script that makes the same moves on a machine with this seed.
std::string written(std::uint64_t seed, std::span<const move>);

} // namespace hustle::script
