#include "desktop/shot/flashes.h"

#include <QColor>

#include <algorithm>
#include <cmath>

namespace hustle::desktop {

namespace {

constexpr float least_swing = 0.1F, bright = 0.8F; // of relative luminance
constexpr float least_red_swing = 20, saturated = 0.8F;
constexpr int second_ms = 1000;
constexpr int together_ms = 250; // points that flash within so long of each other flash together
constexpr double block_width = 341.0 / 1024, block_height = 256.0 / 768; // shares of the window

const std::array<float, 256>& linear() {
    static const std::array<float, 256> table = [] {
        std::array<float, 256> t{};
        for (int i = 0; i < 256; ++i) {
            const double v = i / 255.0;
            t[static_cast<std::size_t>(i)] =
                static_cast<float>(v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4));
        }
        return t;
    }();
    return table;
}

// Where a point stands in rows of w, one behind the other.
std::size_t place(int x, int y, int w) {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(w) + static_cast<std::size_t>(x);
}

// A swing has been made; true where seven fall within a second: more than three pairs.
bool note(swings& s, int way, std::int64_t ms) {
    s.way = static_cast<std::int8_t>(way);
    s.times[s.next] = static_cast<std::int32_t>(ms);
    s.next = static_cast<std::uint8_t>((s.next + 1) % s.times.size());
    return ms - s.times[s.next] < second_ms && s.times[s.next] >= 0;
}

// `counts` is false where the pair of looks does not count, however large the change.
bool swing(swings& s, float value, float least, std::int64_t ms, float ceiling) {
    bool too_often = false;
    if (s.way <= 0 && value - s.lowest >= least && s.lowest < ceiling) {
        too_often = note(s, 1, ms);
        s.highest = value;
    } else if (s.way >= 0 && s.highest - value >= least && value < ceiling) {
        too_often = note(s, -1, ms);
        s.lowest = value;
    }
    s.highest = s.way >= 0 ? std::max(s.highest, value) : std::max(value, s.lowest);
    s.lowest = s.way <= 0 ? std::min(s.lowest, value) : std::min(value, s.highest);
    return too_often;
}

struct light_of_point {
    float luminance, red; // 0 to 1; the excess of red, 0 to 320, of a saturated red only
};

light_of_point look(QRgb p) {
    const auto& l = linear();
    const float r = l[static_cast<std::size_t>(qRed(p))], g = l[static_cast<std::size_t>(qGreen(p))],
                b = l[static_cast<std::size_t>(qBlue(p))];
    const bool red = r > 0 && r / (r + g + b) >= saturated;
    return {0.2126F * r + 0.7152F * g + 0.0722F * b, red ? std::max(0.0F, (r - g - b) * 320) : 0};
}

void begin(std::vector<swings>& all, std::size_t i, float value) {
    all[i].highest = all[i].lowest = value;
    all[i].times.fill(-1);
}

// The sum over the block that holds most, by a table of sums from the upper left corner.
void take_worst(const std::vector<swings>& all, QSize size, std::int64_t ms, flash_share& worst) {
    const int w = size.width(), h = size.height();
    std::vector<int> sums(place(w, h, w + 1) + 1, 0);
    const auto at = [&](int x, int y) -> int& { return sums[place(x, y, w + 1)]; };
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            at(x + 1, y + 1) =
                at(x, y + 1) + at(x + 1, y) - at(x, y) + (all[place(x, y, w)].flashes_until >= ms);
    const int bw = static_cast<int>(std::lround(w * block_width)),
              bh = static_cast<int>(std::lround(h * block_height));
    int most = 0;
    for (int y = 0; y + bh <= h; y += 2)
        for (int x = 0; x + bw <= w; x += 2)
            most = std::max(most, at(x + bw, y + bh) - at(x, y + bh) - at(x + bw, y) + at(x, y));
    worst.window = std::max(worst.window, at(w, h) / static_cast<double>(w * h));
    worst.block = std::max(worst.block, most / static_cast<double>(bw * bh));
}

} // namespace

void measure(flash_meter& m, const QImage& picture, const QRegion& changed, std::int64_t ms) {
    const int w = picture.width(), h = picture.height();
    if (m.fresh) {
        m.size = picture.size();
        m.light.resize(place(0, h, w));
        m.red.resize(m.light.size());
    }
    bool light_flashes = false, red_flashes = false;
    const QRegion where = m.fresh ? QRegion(0, 0, w, h) : changed;
    for (const QRect& part : where)
        for (int y = part.top(); y <= part.bottom(); ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            for (int x = part.left(); x <= part.right(); ++x) {
                const std::size_t i = place(x, y, w);
                const light_of_point now = look(line[x]);
                if (m.fresh) {
                    begin(m.light, i, now.luminance);
                    begin(m.red, i, now.red);
                    continue;
                }
                if (swing(m.light[i], now.luminance, least_swing, ms, bright)) {
                    m.light[i].flashes_until = static_cast<std::int32_t>(ms + together_ms);
                    light_flashes = true;
                }
                if (swing(m.red[i], now.red, least_red_swing, ms, 1e9F)) {
                    m.red[i].flashes_until = static_cast<std::int32_t>(ms + together_ms);
                    red_flashes = true;
                }
            }
        }
    m.fresh = false;
    if (light_flashes)
        take_worst(m.light, m.size, ms, m.worst_light);
    if (red_flashes)
        take_worst(m.red, m.size, ms, m.worst_red);
}

} // namespace hustle::desktop
