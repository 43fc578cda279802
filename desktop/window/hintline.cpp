#include "desktop/window/hintline.h"

#include "show/hints.h"

#include <QHBoxLayout>

namespace hustle::desktop {

namespace {

constexpr int line_height = 26; // pixels
constexpr const char* look = "QWidget { background: #1e0a24; }"
                             "QLabel { color: #f3e3bd; padding: 0 12px; font-size: 14px; }";

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
    setStyleSheet(look);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(what, 1);
    row->addWidget(money);
    what->setMinimumWidth(0);
    what->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding); // a long hint never widens the window
    setFixedHeight(line_height);
}

QSize hintline::sizeHint() const { return {QWidget::sizeHint().width(), line_height}; }

void hintline::tell(const game& g) {
    const std::string_view said = hint(g);
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
