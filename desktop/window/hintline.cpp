#include "desktop/window/hintline.h"

#include "desktop/window/cabinetcolours.h"
#include "show/hints.h"

#include <QHBoxLayout>

#include <algorithm>

namespace hustle::desktop {

namespace {

constexpr int least_height = 26, most_height = 52; // pixels
constexpr int widths_to_height = 40;               // it grows with the machine above it
constexpr std::string_view watching = "A script is watched: Right goes one step on";
constexpr const char* look = "QWidget { background: @ground; }"
                             "QLabel { color: @cream; padding: 0 12px; }";

QLabel* make_label(QWidget* owner, Qt::Alignment align) {
    auto* label = new QLabel(owner);
    label->setAlignment(align | Qt::AlignVCenter);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

hintline::hintline(QWidget* parent)
    : QWidget(parent), what(make_label(this, Qt::AlignLeft)), money(make_label(this, Qt::AlignRight)) {
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(in_cabinet_colours(look));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(what, 1);
    row->addWidget(money);
    what->setMinimumWidth(0);
    what->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding); // a long hint never widens the window
    fit();
}

int hintline::height_at(int width) { return std::clamp(width / widths_to_height, least_height, most_height); }

QSize hintline::sizeHint() const { return {QWidget::sizeHint().width(), height_at(width())}; }

void hintline::resizeEvent(QResizeEvent*) { fit(); }

void hintline::fit() {
    const int high = height_at(width());
    QFont letters = font();
    letters.setPixelSize(high * 14 / 26);
    what->setFont(letters);
    money->setFont(letters);
    setFixedHeight(high);
}

void hintline::tell(const game& g, bool watched) {
    const std::string_view said = watched ? watching : hint(g);
    const QString now = QString::fromUtf8(said.data(), static_cast<qsizetype>(said.size()));
    if (now != last) {
        last = now;
        what->setText(now);
        what->setToolTip(now);
    }
    const QString purse = QString::fromStdString(bank_label(g) + "   " + credits_label(g));
    if (money->text() != purse)
        money->setText(purse);
}

} // namespace hustle::desktop
