// The one widget that draws any screen of the panel from its tables, scaled to its size with the
// aspect kept, and gives the mouse and the keyboard to the machine.
#pragma once

#include "desktop/painting/backdrop.h"
#include "desktop/painting/painting.h"
#include "desktop/window/spokenviews.h"

#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QWidget>

#include <vector>

namespace hustle::desktop {

struct session;

// A text box that the player writes in; the others only show.
inline bool is_edited(element e) { return e == element::Entername_Text1; }

class screenview : public QWidget {
public:
    screenview(session&, hustle::screen, QWidget* parent = nullptr);

    // A picture that need not be drawn any more, as it ships with the program.
    void take_ready(art, const QImage&);
    // Repaints what has changed since the last time.
    void refresh();
    // Repaints a part of the screen, in twips.
    void repaint_area(const hustle::rect& twips);
    // Makes the children that a screen reader and the Tab key find; once.
    void speak();
    // Draws one picture that is likely to be needed; false when all are there.
    bool draw_one_ahead();
    // Lets go of all that has been drawn; it is drawn again when it is wanted.
    void let_go();
    hustle::screen shown_screen() const { return what; }
    bool painted() const { return has_painted; }
    // The size of the screen in panel pixels.
    QSize panel_size() const;

    // The place of an element in device pixels, and in the widget's own.
    QRect device_rect(element) const;
    QRect widget_rect(element) const;

    session& played;

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void closeEvent(QCloseEvent*) override;

private:
    void measure();
    void draw_again(); // begins the drawing ahead anew
    QRect dirty_rect(element) const;
    QRegion behind_reels(QRegion) const;
    void draw_elements(canvas&, const QRect& part, bool pictures_only);
    element under(QPoint) const;
    void make_text_boxes();
    void place_children();
    void set_held(element);
    bool draw_now(art, element on);

    const hustle::screen what;
    double scale = 1; // device pixels to a panel pixel
    QPoint origin;    // device pixels
    picture_store pictures;
    backdrop_store backdrop;
    dot_store dots;
    lamp_store lamps;
    strip_store strips;
    QTimer settled;
    element held = element::total; // the button under a mouse key that is down
    std::vector<std::pair<element, QLineEdit*>> text_boxes;
    QLabel* too_long = nullptr; // said of a name of which not all will be seen
    spoken_views spoken;
    std::vector<QRect> drawn; // where each element was last drawn, widget pixels
    std::size_t next_row = 0; // of the drawing ahead
    std::size_t next_group = 0;
    int next_in_group = 0;
    bool has_painted = false;
};

} // namespace hustle::desktop
