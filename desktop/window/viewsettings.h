// What the window keeps for its player from run to run. None of it is the machine's: it stands in the
// toolkit's own settings and never in game.dat.
#pragma once

#include <QByteArray>
#include <QString>

namespace hustle::desktop {

struct view_settings {
    bool flashing_asked = false;   // the question of the first start has been answered
    bool reduced_flashing = false; // no lamp is painted flashing faster than is safe
    bool hints = true;             // the line under the cabinet
    bool recording = true;         // the session is written down beside the two files
    bool muted = false;
    int volume = 100; // percent of the loudest
    bool full_screen = false;
    QString player;   // the name last given for a good score; empty: none yet
    QByteArray place; // size and place of the window; empty until it has been closed once
};

// Reads them, each in its range; what is missing or damaged is as at the first start.
view_settings load_view_settings();
void save_view_settings(const view_settings&);

} // namespace hustle::desktop
