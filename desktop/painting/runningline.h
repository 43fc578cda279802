// A line whose text runs to the left by a letter at a tick: between two ticks it moves dot by dot.
#pragma once

#include "panel/panel.h"

#include <QString>

namespace hustle::desktop {

struct running_line {
    element on = element::total; // total: none runs
    QString before;              // the text before the last tick
    int run = 0;                 // columns of dots that it has moved since
    int step_ms = 0;             // from one column to the next
    QString last;                // the text of the line that may run, as last seen
};

// A line has another text. A text that is the last one without its first letter has run on by one:
// the belt. Any other text stands at once.
void follow_line(running_line&, const panel&, element);
// One column on; nothing runs any more once a whole letter has passed.
void run_on(running_line&);

} // namespace hustle::desktop
