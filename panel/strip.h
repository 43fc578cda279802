// The strip that all three reels carry, for the machine and for the pictures of it.
#pragma once

#include "panel/ids.h"
#include "panel/word.h"

#include <array>
#include <cstdint>

namespace hustle {

struct stop_row {
    word symbol;         // on the win line
    art picture;         // it and the two beside it
    std::int16_t number; // of the number trail, 0 to 3
    int frame_top;       // twips: where the frame of the reel guide stands for it
};

// Stop n is strip[n - 1].
// clang-format off
inline constexpr std::array<stop_row, 16> strip = {{
    {"bell",   art::cbp, 0,  260}, // 1
    {"pound",  art::bps, 0,  750},
    {"bseven", art::psb, 0, 1240},
    {"bar",    art::sbc, 1, 1720},
    {"cherry", art::bcm, 3, 2220}, // 5
    {"melon",  art::cmp, 0, 2730},
    {"pound",  art::mps, 0, 3200},
    {"rseven", art::psc, 0, 3680},
    {"cherry", art::scp, 3, 4140},
    {"pound",  art::cpb, 0, 4650}, // 10
    {"bar",    art::pbs, 1, 5160},
    {"bseven", art::bsm, 0, 5640},
    {"melon",  art::sms, 0, 6070},
    {"rseven", art::msp, 2, 6540},
    {"pound",  art::spc, 0, 7000}, // 15
    {"cherry", art::pcb, 0, 7535},
}};
// clang-format on

} // namespace hustle
