#include "desktop/window/screenview.h"

#include "art/lamplooks.h"
#include "desktop/session/session.h"
#include "desktop/window/keys.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace hustle::desktop {

namespace {

constexpr int settle_ms = 150; // after the last change of size pictures are drawn sharp again
constexpr int twips_to_pixel = 15;
constexpr int seen_letters = 15; // of a name, beside its score

// A text box that the player writes in; the others only show.
bool is_edited(element e) { return e == element::Entername_Text1; }

input pressed(element e) { return {input::kind::press, row(e).where, e}; }

} // namespace

screenview::screenview(session& s, hustle::screen shown, QWidget* parent)
    : QWidget(parent), played(s), what(shown) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
    setMouseTracking(true);
    drawn.resize(elements_of(what).size());
    settled.setSingleShot(true);
    QObject::connect(&settled, &QTimer::timeout, this, [this] {
        pictures.settling = false;
        pictures.latest.clear();
        update();
        draw_again();
    });
    make_text_boxes();
}

QSize screenview::panel_size() const {
    return {row(what).width / twips_to_pixel, row(what).height / twips_to_pixel};
}

// The screen stands in the middle of the widget, as large as it fits.
void screenview::measure() {
    const QSize whole = size() * devicePixelRatioF();
    const double width = row(what).width / static_cast<double>(twips_to_pixel);
    const double height = row(what).height / static_cast<double>(twips_to_pixel);
    const double before = scale;
    scale = std::min(whole.width() / width, whole.height() / height);
    if (!has_painted && scale != before) // drawn ahead for a size that it did not come up in
        let_go();
    origin = {static_cast<int>((whole.width() - width * scale) / 2),
              static_cast<int>((whole.height() - height * scale) / 2)};
}

QRect screenview::device_rect(element e) const { return device_place(played.g.p, e, scale, origin); }

QRect screenview::widget_rect(element e) const {
    const QRect device = device_rect(e);
    const double ratio = devicePixelRatioF();
    return QRectF(device.x() / ratio, device.y() / ratio, device.width() / ratio, device.height() / ratio)
        .toAlignedRect();
}

QRect screenview::dirty_rect(element e) const {
    if (!is_lamp(row(e)))
        return widget_rect(e);
    const int reach = static_cast<int>(std::ceil(glow_reach * scale / devicePixelRatioF())) + 1;
    return widget_rect(e).adjusted(-reach, -reach, reach, reach);
}

void screenview::repaint_area(const hustle::rect& area) {
    const double twip = scale / twips_to_pixel / devicePixelRatioF();
    const QPointF corner = QPointF(origin) / devicePixelRatioF();
    update(QRectF(corner.x() + area.left * twip, corner.y() + area.top * twip, area.width * twip,
                  area.height * twip)
               .toAlignedRect()
               .adjusted(-1, -1, 1, 1));
}

void screenview::refresh() {
    std::size_t index = 0;
    for (const element_row& r : elements_of(what)) {
        QRect& before = drawn[index++];
        element_state& state = at(played.g.p, r.id);
        if (!state.touched || r.what == kind::entry)
            continue;
        state.touched = false;
        const QRect now = dirty_rect(r.id);
        update(before == now ? now : before.united(now));
        before = now;
        tell_changed(spoken, *this, r.id);
    }
    for (const auto& [e, box] : text_boxes) {
        const QString text = QString::fromStdString(at(played.g.p, e).text);
        if (box->text() != text)
            box->setText(text);
    }
}

// A reel on its strip covers all that is painted behind it, so that a rolling one needs no more than
// itself. Where a pixel of the widget is not one of the screen its edges are not whole.
QRegion screenview::behind_reels(QRegion region) const {
    for (std::size_t i = 0; what == hustle::screen::main && devicePixelRatioF() == 1 && i < 3; ++i)
        if (played.show.reels[i].on_strip)
            region -= device_rect(nth(element::reel1, static_cast<int>(i) + 1));
    return region;
}

// No picture covers what can be pressed or read.
void screenview::draw_elements(canvas& c, const QRect& part, bool pictures_only) {
    for (const element_row& r : elements_of(what))
        if ((r.what == kind::picture) == pictures_only && !is_edited(r.id) && !in_backdrop(r.id) &&
            part.intersects(dirty_rect(r.id)))
            draw_element(c, played.g.p, r.id, device_rect(r.id), r.id == held);
}

// Rectangle by rectangle: in a clip of any other shape the toolkit paints row by row, and wakes threads to
// help it with each picture.
void screenview::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    canvas c{painter, pictures, dots, lamps, strips, played.show, scale, origin};
    const auto clip_to = [&](const QRect& part) {
        painter.resetTransform();
        painter.setClipRect(part);
        painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    };
    for (const QRect& part : behind_reels(event->region())) {
        clip_to(part);
        painter.fillRect(QRect({}, size() * devicePixelRatioF()), ground_colour());
        draw_bare_form(c, what);
        draw_backdrop(c, backdrop, played.g.p, what);
        draw_elements(c, part, true);
    }
    for (const QRect& part : event->region()) {
        clip_to(part);
        draw_elements(c, part, false);
        if (what == hustle::screen::main)
            draw_win(c, played.g.p);
    }
    has_painted = true;
    if (!played.seen) {
        played.seen = true;
        first_painted(played);
    }
}

void screenview::resizeEvent(QResizeEvent*) {
    measure();
    if (has_painted) {
        begin_settling(pictures);
        settled.start(settle_ms);
    }
    dots.grounds.clear();
    lamps.drawn.clear();
    place_children();
    std::size_t index = 0;
    for (const element_row& r : elements_of(what))
        drawn[index++] = dirty_rect(r.id);
}

void screenview::take_ready(art a, const QImage& image) {
    measure();
    if (!image.isNull())
        give_picture(pictures, a, QPixmap::fromImage(image));
}

// True where the picture had to be drawn.
bool screenview::draw_now(art a, element on) {
    if (a == art::none || in_backdrop(on))
        return false;
    if (played.g.p.dollars)
        a = dollar_version(a);
    if (on >= element::reel1 && on <= element::reel3)
        return prepare_strip(strips, device_rect(on).size(), played.g.p.dollars);
    pictures.dollars = played.g.p.dollars;
    const auto before = pictures.sharp.size();
    picture(pictures, a, device_rect(on).size());
    return pictures.sharp.size() != before;
}

void screenview::let_go() {
    pictures = {};
    backdrop = {};
    dots = {};
    lamps = {};
    strips = {};
    draw_again();
}

void screenview::draw_again() {
    next_row = next_group = 0;
    next_in_group = 0;
    draw_ahead(played);
}

bool screenview::draw_one_ahead() {
    measure(); // a view that is not on show yet has been told no size
    if (prepare_backdrop(backdrop, played.g.p, what, scale))
        return true;
    const auto rows = elements_of(what); // first what stands there from the beginning
    while (next_row < rows.size()) {
        const element_row& r = rows[next_row++];
        if (draw_now(r.picture, r.id))
            return true;
    }
    const auto groups = coming_arts(what);
    while (next_group < groups.size()) {
        const coming_art& group = groups[next_group];
        const int count = static_cast<int>(group.last) - static_cast<int>(group.first) + 1;
        while (next_in_group < count)
            if (draw_now(nth(group.first, ++next_in_group), group.on))
                return true;
        ++next_group;
        next_in_group = 0;
    }
    return false;
}

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

void screenview::speak() { make_spoken(spoken, *this); }

} // namespace hustle::desktop
