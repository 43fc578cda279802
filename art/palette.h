// The colours of the machine: gold and jewels on deep glass.
#pragma once

#include <string_view>

namespace hustle::ink {

inline constexpr std::string_view black = "#000000", white = "#ffffff", night = "#12040c", ivory = "#fff8e4",
                                  cream = "#f3e3bd", goldlight = "#fff3b8", gold = "#f2c14a",
                                  goldmid = "#c98a1e", golddeep = "#6e3d06", outline = "#24060c",
                                  steel = "#c9d2de", steeldeep = "#4a5566";

// One jewel in four strengths of light.
struct jewel {
    std::string_view hot;  // the heart of a lit lamp
    std::string_view lit;  // its body
    std::string_view mid;  // glass in daylight
    std::string_view deep; // glass in shade
};

inline constexpr jewel ruby{"#ffb090", "#ff2626", "#8e1322", "#35040d"};
inline constexpr jewel amber{"#fff6a0", "#ffb010", "#8a5208", "#361c02"};
inline constexpr jewel emerald{"#d2ff9c", "#1fd840", "#0e6a2c", "#032812"};
inline constexpr jewel sapphire{"#aee4ff", "#2280ff", "#123f92", "#04133a"};
inline constexpr jewel amethyst{"#f0b8ff", "#b436ff", "#561a86", "#1e0636"};
inline constexpr jewel topaz{"#ffe28c", "#ff6a0c", "#8a3606", "#341202"};
inline constexpr jewel rose{"#ffc0dc", "#ff3490", "#861648", "#33041a"};
inline constexpr jewel teal{"#b8fff0", "#10c8c0", "#0a5e60", "#022224"};
inline constexpr jewel onyx{"#ffffff", "#9db2d6", "#3a3444", "#100c18"};

} // namespace hustle::ink
