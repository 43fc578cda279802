// What a screen reader and the Tab key find on a screen that is drawn: a transparent child for
// each button, lamp and line, with its name. Names follow the panel once they have stood still for
// half a second, so that flashing lamps and running texts do not flood the listener.
#pragma once

#include "panel/sheet.h"

#include <QString>
#include <QTimer>
#include <QWidget>

#include <vector>

namespace hustle::desktop {

class screenview;

struct spoken_view {
    element id;
    QWidget* child;
    QString coming; // what it will be called if that stands still
    qint64 since = 0;
    bool pending = false;
};

struct spoken_views {
    std::vector<spoken_view> all;
    std::vector<std::size_t> changed; // indices into `all`
    QTimer* listener = nullptr;       // runs while a name is pending
    element resting = element::total; // had the focus when it was disabled
};

void make_spoken(spoken_views&, screenview&);
void place_spoken(spoken_views&, screenview&);
// An element has another look or state.
void tell_changed(spoken_views&, screenview&, element);

} // namespace hustle::desktop
