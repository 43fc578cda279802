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

inline constexpr jewel ruby{"#ffd0b0", "#ff3434", "#8e1322", "#35040d"};
inline constexpr jewel amber{"#fff9c4", "#ffb41e", "#8a5208", "#361c02"};
inline constexpr jewel emerald{"#e2ffc4", "#2fdc4e", "#0e6a2c", "#032812"};
inline constexpr jewel sapphire{"#d2f0ff", "#3593ff", "#123f92", "#04133a"};
inline constexpr jewel amethyst{"#f8d8ff", "#c04cff", "#561a86", "#1e0636"};
inline constexpr jewel topaz{"#fff0b8", "#ff7a1a", "#8a3606", "#341202"};
inline constexpr jewel rose{"#ffe4ee", "#ff4f9c", "#861648", "#33041a"};
inline constexpr jewel teal{"#d8fff6", "#22d6c8", "#0a5e60", "#022224"};
inline constexpr jewel onyx{"#fff2dc", "#c8a27c", "#3a3038", "#110c12"};

} // namespace hustle::ink
