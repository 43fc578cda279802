#include "desktop/window/spokenviews.h"

#include "desktop/session/session.h"
#include "desktop/window/screenview.h"
#include "show/spokennames.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace hustle::desktop {

namespace {

constexpr int stands_still_ms = 500;
constexpr int listen_ms = 125;

// A button of the panel as the toolkit knows buttons. It is drawn by the screen and clicked by the
// screen; its own part is the focus: Tab reaches it and Enter presses it. Space stays the machine's
// own key on main and on the board.
class spoken_button : public QPushButton {
public:
    spoken_button(screenview& owner, element e) : QPushButton(&owner), view(owner), id(e) {
        if (row(e).what == kind::push)
            setText(QString::fromUtf8(row(e).text.data(),
                                      static_cast<qsizetype>(row(e).text.size()))); // its access key
        QObject::connect(this, &QPushButton::clicked, this, [this] {
            send(view.played, {input::kind::press, row(id).where, id});
        });
    }

protected:
    void paintEvent(QPaintEvent*) override {
        if (!hasFocus() || !by_keyboard)
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(20, 10, 30), 4));
        painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 6, 6);
        painter.setPen(QPen(QColor(255, 255, 255), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 6, 6);
    }
    void focusInEvent(QFocusEvent* event) override {
        by_keyboard = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
        QPushButton::focusInEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        const bool on_side = view.isWindow();
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if ((enter || (on_side && event->key() == Qt::Key_Space)) && !event->isAutoRepeat())
            click();
        else if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)
            QPushButton::keyPressEvent(event);
        else
            event->ignore();
    }

private:
    screenview& view;
    const element id;
    bool by_keyboard = false; // the focus came by Tab and is shown
};

bool is_drawn_text(element e) { return e != element::Entername_Text1; }

// A disabled button would pass its focus on to its neighbour; the screen keeps it safe instead and
// gives it back as soon as the button is live again.
void keep_focus(spoken_views& views, screenview& view, spoken_view& v) {
    const bool live = is_enabled(view.played.g.p, v.id) && is_visible(view.played.g.p, v.id);
    if (!live && v.child->hasFocus()) {
        views.resting = v.id;
        view.setFocus(Qt::OtherFocusReason);
    }
    v.child->setVisible(is_visible(view.played.g.p, v.id));
    v.child->setEnabled(is_enabled(view.played.g.p, v.id));
    if (live && views.resting == v.id) {
        if (view.hasFocus())
            v.child->setFocus(Qt::TabFocusReason);
        views.resting = element::total;
    }
}

void listen(spoken_views& views, screenview& view) {
    const qint64 now = view.played.real.elapsed();
    std::erase_if(views.changed, [&](std::size_t index) {
        spoken_view& v = views.all[index];
        const QString name = QString::fromStdString(spoken_name(view.played.g, v.id));
        if (!name.isEmpty() && name != v.coming) { // the dark frame of a flashing text is nothing new
            v.coming = name;
            v.since = now;
            return false;
        }
        if (now - v.since < stands_still_ms)
            return false;
        if (v.child->accessibleName() != v.coming) // it may have come back to what it was
            v.child->setAccessibleName(v.coming);
        v.pending = false;
        return true;
    });
    if (views.changed.empty())
        views.listener->stop();
}

} // namespace

void make_spoken(spoken_views& views, screenview& view) {
    if (views.listener != nullptr)
        return;
    views.listener = new QTimer(&view);
    QObject::connect(views.listener, &QTimer::timeout, &view, [&] { listen(views, view); });
    for (const element_row& r : elements_of(view.shown_screen())) {
        const QString name = QString::fromStdString(spoken_name(view.played.g, r.id));
        if (r.what == kind::entry || !is_drawn_text(r.id) || (name.isEmpty() && r.what != kind::line))
            continue;
        QWidget* child = nullptr;
        if (takes_press(r.what))
            child = new spoken_button(view, r.id);
        else
            child = new QLabel(&view);
        child->setAttribute(Qt::WA_TransparentForMouseEvents);
        child->setAccessibleName(name);
        child->setVisible(is_visible(view.played.g.p, r.id));
        child->setEnabled(is_enabled(view.played.g.p, r.id));
        views.all.push_back({r.id, child, name});
    }
    place_spoken(views, view);
}

void place_spoken(spoken_views& views, screenview& view) {
    for (const spoken_view& v : views.all)
        v.child->setGeometry(view.widget_rect(v.id));
}

void tell_changed(spoken_views& views, screenview& view, element e) {
    const auto found =
        std::find_if(views.all.begin(), views.all.end(), [e](const spoken_view& v) { return v.id == e; });
    if (found == views.all.end())
        return;
    keep_focus(views, view, *found);
    if (found->pending)
        return;
    const QString name = QString::fromStdString(spoken_name(view.played.g, e));
    if (name.isEmpty() || name == found->coming)
        return;
    found->pending = true;
    found->coming = name;
    found->since = view.played.real.elapsed();
    views.changed.push_back(static_cast<std::size_t>(found - views.all.begin()));
    if (!views.listener->isActive())
        views.listener->start(listen_ms);
}

} // namespace hustle::desktop
