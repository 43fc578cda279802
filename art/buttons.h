// The keys of the panel by number, for the bank's table.
#pragma once

namespace hustle::key {

enum : int {
    hold,
    nudge,
    stop,
    cancel,
    gamble,
    start,
    fstop,
    fstart,
    shots,
    collect,
    cash,
    feature,
    exchange,
    hi,
    lo,
    exit,
    back_to_game,
    back,
    reset,
    score,
};

} // namespace hustle::key
