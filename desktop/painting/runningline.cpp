#include "desktop/painting/runningline.h"

#include "desktop/painting/dotline.h"

namespace hustle::desktop {

namespace {

constexpr element belt = element::feature_displayline;
constexpr timer belt_tick = timer::feature_moneybelttimer;

} // namespace

void follow_line(running_line& line, const panel& p, element e) {
    if (e != belt)
        return;
    const QString text = QString::fromStdString(at(p, e).text);
    const bool runs =
        text.size() >= line_cells && line.last.size() == text.size() + 1 && line.last.endsWith(text);
    line.on = runs ? e : element::total;
    line.before = line.last;
    line.run = runs ? 1 : 0;
    line.step_ms = interval(p, belt_tick) / cell_columns;
    line.last = text;
}

void run_on(running_line& line) {
    if (++line.run >= cell_columns)
        line.on = element::total;
}

} // namespace hustle::desktop
