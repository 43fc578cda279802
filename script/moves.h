// What a player who presses anything at any moment does, move by move: each can be made on a machine
// and written as a line of a panel script.
#pragma once

#include "core/game.h"
#include "panel/stillworld.h"

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
};

struct move {
    deed what;
    int value; // an element, ms, or what the field becomes
};

struct monkeyworld final : stillworld {
    bool yes = false;      // the answer to a question
    bool answered = false; // a box has shown since this was cleared

    bool box(const message& m) override {
        answered = true;
        return m.yes_or_no ? yes : true;
    }
};

// Makes a press or sets a field; `run` is the business of who counts the ticks.
void make(game&, monkeyworld&, const move&);
// A script that makes the same moves on a machine with this seed.
std::string written(std::uint64_t seed, std::span<const move>);

} // namespace hustle::script
