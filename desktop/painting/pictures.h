// The art, drawn once from its SVG text at exactly the size it has on the screen, in device
// pixels, and kept until the size of the view changes.
#pragma once

#include "panel/sheet.h"

#include <QHash>
#include <QIcon>
#include <QPixmap>
#include <QSize>

#include <span>

namespace hustle::desktop {

struct picture_store {
    QHash<quint64, QPixmap> sharp; // by art and size
    QHash<int, QPixmap> latest;    // by art, whatever its size
    // While a window is being dragged to another size, pictures of the old one are good enough.
    bool settling = false;
    bool dollars = false; // set once, before the first picture: the machine changes it at a start only
};

// The splash as it ships, drawn; on a screen of another scale it is drawn anew.
inline constexpr QSize splash_size(480, 320);

// Draws a picture that is kept elsewhere; the size in device pixels.
QPixmap draw_art(art, QSizeF, bool dollars = false);

// A picture at a size in device pixels. While the store is settling it may have another size.
const QPixmap& picture(picture_store&, art, QSize device_pixels);
// Takes in a picture that is drawn already.
void give_picture(picture_store&, art, const QPixmap&);
// Forgets what was drawn for another size.
void begin_settling(picture_store&);

// The program's own icon, as the about box shows it; drawn only in the sizes that are asked for.
QIcon program_icon();

// Pictures that an element of a screen may show later on: drawn ahead in idle moments, so that
// the first spin does not stutter.
struct coming_art {
    art first, last;
    element on;
};
std::span<const coming_art> coming_arts(screen);

} // namespace hustle::desktop
