// Where windows stand and how large they are: always within the work area of their screen, whatever
// its size and scale factor.
#pragma once

#include "desktop/window/viewsettings.h"

#include <QRect>
#include <QSize>

class QWidget;

namespace hustle::desktop {

class mainwindow;
class screenview;

// The largest size of a panel, in steps that look good and at most three times its own, that leaves
// room in the work area for the bars around it. `around`: width and height that they take.
QSize fitting_size(QSize panel, QSize around, QSize work_area);

// Gives the window the size and place that it last had, or the first ones; no part lies off the screen.
void place_main_window(mainwindow&, const view_settings&);
// Shows it as the settings say: on the whole screen or in its frame.
void show_main_window(mainwindow&, const view_settings&);
// Makes the panel `zoom` times its own size, as far as the work area allows.
void zoom_main_window(mainwindow&, double zoom);
double main_window_zoom(const mainwindow&);
// Puts a side window over the middle of the main one, at the main one's zoom.
void place_side_window(screenview&, const mainwindow* over);

} // namespace hustle::desktop
