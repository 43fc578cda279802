// Message boxes in the colours of the cabinet.
#pragma once

#include <QString>

class QMessageBox;
class QWidget;

namespace hustle::desktop {

// Gives a box its title and the cabinet's look.
void dress(QMessageBox&, const QString& title);
// What stands in smaller letters under a box's text, as it is: a folder may be called anything.
void add_plain(QMessageBox&, const QString& more);
// The window that a new box belongs to: the one in front, so that no box is lost behind it.
QWidget* box_parent();

} // namespace hustle::desktop
