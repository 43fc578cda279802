// An eye in virtual time: it watches a machine under a panel script and paints what the window
// would show, picture by picture, as fast as the processor can.
#pragma once

#include "desktop/painting/painting.h"

#include <QImage>
#include <QRegion>

#include <functional>
#include <string>

namespace hustle::desktop {

struct eye {
    int width = 800;        // device pixels of main and of the board
    double picture_ms = 20; // from one picture to the next
    QSize window;           // of the whole picture; empty: as large as main
    // Called for each picture; `changed` is what differs from the one before, empty where nothing does.
    std::function<void(const QImage&, const QRegion& changed, std::int64_t ms)> sees;

    stage show;
    picture_store pictures;
    dot_store dots;
    lamp_store lamps;
    strip_store strips;
    QImage image;
    QRegion changed;
    std::vector<screen> painted; // the screens in the last picture
    std::int64_t reached = -1;   // ms of the machine's clock
    double next_picture = 0;
};

// The clock of the machine has come on; it stands as it did since the last call.
void watch(eye&, game&);

// Runs a script under the eye; the exit status is that of the script. What it prints is not told.
int watch_file(eye&, const std::string& path);

} // namespace hustle::desktop
