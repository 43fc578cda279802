#include "desktop/painting/lamplooks.h"

#include "art/lamplooks.h"
#include "desktop/painting/keeping.h"

#include <cmath>

namespace hustle::desktop {

void draw_lamp(QPainter& painter, lamp_store& store, const element_row& r, const element_state& state,
               QRect box, double pixel) {
    const bool lit = is_lit(r, state);
    const int reach = static_cast<int>(std::lround(glow_reach * pixel));
    const QRect whole = box.adjusted(-reach, -reach, reach, reach);
    const QString key = QString("%1 %2 %3 %4 %5")
                            .arg(QString::fromStdString(state.text))
                            .arg(lit ? state.fore : 0)
                            .arg(state.back)
                            .arg(whole.width())
                            .arg(whole.height());
    auto found = store.drawn.constFind(key);
    if (found == store.drawn.cend())
        found = store.drawn.insert(key, draw_svg(lamp_svg(r, state), whole.size()));
    painter.drawPixmap(whole.topLeft(), *found);
}

} // namespace hustle::desktop
