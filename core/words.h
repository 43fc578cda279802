// The words that the machine's flags, modes and answers carry, each group beside the fields that it
// serves. They stay words: a script may set any other text, and a comparison is exact.
#pragma once

#include "panel/word.h"

namespace hustle {

// `reelNheld`, `holdsoffered`, `pickstopped`, `invincible`, `trailbusy`, `repeatpressed`; the answers
// `repeatanswer` and `yesnoanswer`; the setting `flashlogo`.
namespace flag {
inline constexpr word yes = "yes";
inline constexpr word no = "no";
} // namespace flag

// `linepromised`, `holdsbarred`, `badholdmade`; and, by one award alone, `holdsoffered`.
namespace truth {
inline constexpr word is = "true";
inline constexpr word is_not = "false";
inline constexpr word spoilt = "False"; // `holdsbarred` after a BAD HOLD: equal to neither
} // namespace truth

// `award`: the award being played, or the way the last win came. Empty: none.
namespace award {
inline constexpr word none = "";
inline constexpr word jackpot = "jackpot";
inline constexpr word winstreak = "winstreak"; // on the reels
inline constexpr word pickawin = "pickawin";
inline constexpr word winspins = "winspins";
inline constexpr word luckysevens = "luckysevens";
inline constexpr word moneybelt = "moneybelt"; // what the stop button of the board stops
inline constexpr word supermoneybelt = "supermoneybelt";
inline constexpr word fastcash = "fastcash";
inline constexpr word shots = "shots";
inline constexpr word skillstop = "skillstop";
inline constexpr word randomstop = "randomstop";
inline constexpr word electricshock = "electricshock";
inline constexpr word pickaladder = "pickaladder";
inline constexpr word skilldecide = "continue"; // YES or NO
inline constexpr word nothing = "nothing";      // what stood before is over
} // namespace award

// `featuremode`: the gamble, or the game on the ring.
namespace mode {
inline constexpr word hilo = "hilo";
inline constexpr word feature = "feature";
} // namespace mode

// `hilochoice`: the call of the gamble.
namespace choice {
inline constexpr word hi = "hi";
inline constexpr word lo = "lo";
} // namespace choice

// `fastcashway`: where the light of Fast Cash goes.
namespace way {
inline constexpr word up = "up";
inline constexpr word down = "down";
} // namespace way

// `shotstate`: before the first shot and after the last it is empty.
namespace shooting {
inline constexpr word idle = "";
inline constexpr word on_offer = "stop"; // a prize may be taken
inline constexpr word given_up = "start";
} // namespace shooting

// `soundstate`, `currency`.
namespace setting {
inline constexpr word on = "on";
inline constexpr word off = "off";
inline constexpr word gbp = "gbp";
inline constexpr word usd = "usd";
} // namespace setting

} // namespace hustle
