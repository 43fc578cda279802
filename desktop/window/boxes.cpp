#include "desktop/window/boxes.h"

#include "desktop/window/cabinetcolours.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>

namespace hustle::desktop {

namespace {

constexpr const char* box_style =
    "QMessageBox { background: @ground; }"
    "QMessageBox QLabel { color: @cream; }"
    "QMessageBox QPushButton { color: @ivory; border: 1px solid #d4b060; border-radius: 6px;"
    " padding: 5px 18px; min-width: 56px;"
    " background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #8460a8, stop:1 #4a3068); }"
    "QMessageBox QPushButton:hover { border-color: #fff0c0; }"
    "QMessageBox QPushButton:focus { border: 2px solid #ffffff; padding: 4px 17px; }"
    "QMessageBox QPushButton:pressed { background: #4a3068; }";

} // namespace

void dress(QMessageBox& box, const QString& title) {
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText); // a folder may be called anything
    box.setStyleSheet(in_cabinet_colours(box_style));
}

void add_plain(QMessageBox& box, const QString& more) {
    box.setInformativeText(more);
    if (auto* const label = box.findChild<QLabel*>("qt_msgbox_informativelabel"))
        label->setTextFormat(Qt::PlainText);
}

QWidget* box_parent() { return QApplication::activeWindow(); }

} // namespace hustle::desktop
