// Colours between the machine's 0xBBGGRR numbers and the toolkit's.
#pragma once

#include "panel/panel.h"

#include <QColor>

namespace hustle::desktop {

inline QColor from_bgr(colour c) {
    return QColor(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF),
                  static_cast<int>((c >> 16) & 0xFF));
}

// `share` of `b` in `a`: 0 is a, 1 is b.
inline QColor mix(QColor a, QColor b, double share) {
    return QColor::fromRgbF(static_cast<float>(a.redF() + (b.redF() - a.redF()) * share),
                            static_cast<float>(a.greenF() + (b.greenF() - a.greenF()) * share),
                            static_cast<float>(a.blueF() + (b.blueF() - a.blueF()) * share));
}

} // namespace hustle::desktop
