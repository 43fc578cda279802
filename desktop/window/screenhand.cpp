// What the player does to a screen: mouse, keys, and the letters of a name.
#include "desktop/window/screenview.h"

#include "desktop/session/session.h"
#include "desktop/window/keys.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>

namespace hustle::desktop {

namespace {

constexpr int seen_letters = 15; // of a name, beside its score

input pressed(element e) { return {input::kind::press, row(e).where, e}; }

} // namespace

element screenview::under(QPoint point) const {
    element found = element::total;
    for (const element_row& r : elements_of(what))
        if (takes_press(r.what) && is_visible(played.g.p, r.id) && widget_rect(r.id).contains(point))
            found = r.id;
    return found;
}

void screenview::set_held(element e) {
    if (held != element::total)
        update(widget_rect(held));
    held = e;
    if (held != element::total)
        update(widget_rect(held));
}

void screenview::mousePressEvent(QMouseEvent* event) {
    const element e = under(event->position().toPoint());
    if (e == element::total)
        return;
    const bool acts_at_once = row(e).what == kind::button;
    if (!acts_at_once && event->button() != Qt::LeftButton)
        return;
    if (is_enabled(played.g.p, e))
        set_held(e);
    if (acts_at_once)
        send(played, pressed(e));
}

void screenview::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void screenview::mouseReleaseEvent(QMouseEvent* event) {
    const element e = held;
    set_held(element::total);
    if (e != element::total && row(e).what != kind::button && under(event->position().toPoint()) == e)
        send(played, pressed(e));
}

void screenview::mouseMoveEvent(QMouseEvent* event) {
    const element e = under(event->position().toPoint());
    const bool live = e != element::total && is_enabled(played.g.p, e);
    const Qt::CursorShape shape = live ? Qt::PointingHandCursor : Qt::ArrowCursor;
    if (cursor().shape() != shape)
        setCursor(shape);
}

void screenview::keyPressEvent(QKeyEvent* event) {
    const int code = event->isAutoRepeat() ? 0 : machine_key(*event);
    if (code != 0) {
        send(played, {input::kind::key, what, element::total, code});
        return;
    }
    const bool may_leave =
        isWindow() && what != hustle::screen::software && what != hustle::screen::Entername;
    if (event->key() == Qt::Key_Escape && may_leave)
        close();
    else
        event->ignore();
}

// The machine decides whether a window closes; it is taken away when its screen is unloaded.
void screenview::closeEvent(QCloseEvent* event) {
    event->ignore();
    send(played, {input::kind::close, what});
}

bool screenview::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && isWindow())
        activated(played, what);
    return QWidget::event(event);
}

void screenview::make_text_boxes() {
    for (const element_row& r : elements_of(what)) {
        if (!is_edited(r.id))
            continue;
        auto* box = new QLineEdit(this);
        box->setAccessibleName("Your name");
        box->setText(QString::fromStdString(at(played.g.p, r.id).text));
        box->selectAll();
        box->setStyleSheet("QLineEdit { background: #0e0b12; color: #ffe8be; border: 2px solid #d4b060;"
                           " border-radius: 4px; padding: 0 4px; selection-background-color: #84508c; }");
        too_long = new QLabel("Only fifteen letters will be seen beside the score.", this);
        too_long->setStyleSheet("color: #ffd98a; background: transparent;");
        too_long->setAlignment(Qt::AlignCenter);
        too_long->hide();
        QObject::connect(box, &QLineEdit::textChanged, this, [this](const QString& text) {
            too_long->setVisible(text.toUcs4().size() > seen_letters);
        });
        QObject::connect(box, &QLineEdit::textEdited, this, [this, e = r.id](const QString& text) {
            const std::string typed = text.toStdString();
            send(played, {input::kind::type, what, e, 0, typed});
        });
        setFocusProxy(box);
        text_boxes.emplace_back(r.id, box);
    }
}

void screenview::place_children() {
    for (const auto& [e, box] : text_boxes) {
        box->setGeometry(widget_rect(e));
        QFont font = box->font();
        font.setBold(true);
        font.setPixelSize(std::max(6, static_cast<int>(box->height() * 0.5)));
        box->setFont(font);
        font.setPixelSize(std::max(6, static_cast<int>(box->height() * 0.36)));
        too_long->setFont(font);
        too_long->setGeometry(0, box->geometry().bottom() + 2, width(), box->height());
    }
    place_spoken(spoken, *this);
}

} // namespace hustle::desktop
