// Measures flashes as the rule for web content does (WCAG 2.3.1): a flash is a pair of opposing
// changes of relative luminance by a tenth of the greatest or more where the darker is below 0.80,
// or a pair of opposing changes to or from a saturated red; more than three within any second, over
// more than a quarter of any 341 by 256 pixels of a 1024 by 768 window, can hurt.
#pragma once

#include <QImage>
#include <QRegion>

#include <array>
#include <cstdint>
#include <vector>

namespace hustle::desktop {

// What one point has done so far, of luminance or of red.
struct swings {
    float highest = 0, lowest = 0;       // since the last swing
    std::int8_t way = 0;                 // 1 the last swing was upwards, -1 downwards
    std::uint8_t next = 0;               // place in `times`
    std::array<std::int32_t, 7> times{}; // of the last swings, ms
    std::int32_t flashes_until = -1;     // it has flashed too often in the second before
};

struct flash_share {
    double window = 0; // share of the window that flashes too often at once, 0 to 1
    double block = 0;  // share of the fullest block
};

struct flash_meter {
    QSize size; // of the pictures, a window of 1024 by 768 scaled down
    std::vector<swings> light, red;
    flash_share worst_light, worst_red;
    bool fresh = true;
};

void measure(flash_meter&, const QImage&, const QRegion& changed, std::int64_t ms);

} // namespace hustle::desktop
