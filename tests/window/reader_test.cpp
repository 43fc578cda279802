// What a keyboard and a screen reader find, and what the window says in words.
#include "core/upward.h"
#include "desktop/window/hintline.h"
#include "panel/sheet.h"
#include "show/hints.h"
#include "show/spokennames.h"
#include "tests/window/program.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace hustle::desktop {

namespace {

// A white line between two dark ones, seen on any ground; round at its corners.
void has_a_ring(const QImage& image) {
    if (image.devicePixelRatio() != 1)
        return;
    const int right = image.width() - 1, low = image.height() - 1;
    const QColor dark(20, 10, 30), white(Qt::white);
    for (const auto& [depth, colour] : {std::pair{0, dark}, {1, white}, {2, white}, {3, dark}})
        for (const QPoint at : {QPoint(right / 2, depth), QPoint(right / 2, low - depth),
                                QPoint(depth, low / 2), QPoint(right - depth, low / 2)})
            EXPECT_TRUE(image.pixelColor(at) == colour) << at.x() << "," << at.y();
    for (const QPoint corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, low), QPoint(right, low)}) {
        const auto inward = [&](int by) {
            return image.pixel(std::abs(corner.x() - by), std::abs(corner.y() - by));
        };
        EXPECT_GT(qGray(inward(3)), 180);
        EXPECT_LT(qGray(inward(2)), 60);
    }
}

TEST(View, AKeyboardAndAScreenReaderFindWhatAMouseDoes) {
    program p;
    p.start();
    screenview& view = p.s.window->main_view();
    const auto button = [&](element e) -> QPushButton* {
        const QString name = QString::fromStdString(spoken_name(p.s.g, e));
        for (QPushButton* b : view.findChildren<QPushButton*>())
            if (b->accessibleName() == name && b->geometry() == view.widget_rect(e))
                return b;
        return nullptr;
    };
    p.until([&] { return button(element::start) != nullptr; }); // once the pictures are drawn ahead
    for (const element_row& r : elements_of(screen::main))
        if (takes_press(r.what) && r.what != kind::entry) {
            EXPECT_NE(button(r.id), nullptr) << r.name;
        }
    const auto lines = view.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const QLabel* l) {
        return l->geometry() == view.widget_rect(element::displayline) &&
               l->accessibleName().toStdString() == spoken_name(p.s.g, element::displayline);
    }));
    for (const QLabel* l : lines) {
        EXPECT_TRUE(!l->accessibleName().isEmpty() || l->geometry() == view.widget_rect(element::displayline))
            << "a reader would stop at nothing";
    }
    QPushButton* const start = button(element::start);
    const QRect ring = start->geometry();
    const QImage without = view.grab(ring).toImage();
    start->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(view.grab(ring).toImage(), without) << "a mouse needs no ring";
    start->clearFocus();
    p.until([&] { return p.s.window->isActiveWindow(); });
    paint_counter painted;
    start->installEventFilter(&painted);
    start->setFocus(Qt::TabFocusReason);
    p.until([&] { return painted.count > 0; });
    has_a_ring(view.grab(ring).toImage().convertToFormat(QImage::Format_RGB32));
    const auto credits = p.s.g.m.credits;
    QTest::keyClick(start, Qt::Key_Return);
    EXPECT_EQ(p.s.g.m.credits, credits - 1);
    EXPECT_FALSE(start->isEnabled()) << "the reels turn";
    p.until([&] { return is_enabled(p.s.g.p, element::start); });
    EXPECT_TRUE(start->isEnabled());
    EXPECT_TRUE(start->hasFocus()) << "it comes back";
}

// A reader would say each of them.
TEST(View, ALineIsReadOutOnceItStandsStill) {
    program p;
    p.start();
    screenview& view = p.s.window->main_view();
    p.until([&] { return !view.findChildren<QPushButton*>().isEmpty(); });
    QLabel* line = nullptr;
    for (QLabel* l : view.findChildren<QLabel*>())
        if (l->geometry() == view.widget_rect(element::displayline))
            line = l;
    ASSERT_NE(line, nullptr);
    ++p.s.held; // the line changes by our hand alone
    QElapsedTimer between;
    qint64 longest = 0;
    QStringList read;
    const auto put = [&](const std::string& text) {
        at(p.s.g.p, element::displayline).text = text;
        at(p.s.g.p, element::displayline).touched = true;
        refresh(p.s);
        longest = between.isValid() ? std::max(longest, between.elapsed()) : 0;
        between.start();
    };
    for (int i = 0; i < 8; ++i) {
        put("NUMBER " + std::to_string(i));
        QTest::qWait(250); // longer than between two looks at it
        read << line->accessibleName();
    }
    put("STILL");
    p.until([&] { return line->accessibleName().contains("STILL"); });
    if (longest < 450) {
        EXPECT_TRUE(read.filter("NUMBER").isEmpty()) << read.join(" ").toStdString();
    }
    --p.s.held;
}

TEST(View, TheBoardIsReadOutAsMainIs) {
    program p;
    p.start();
    load_screen(p.s.g, screen::feature);
    screenview& board = p.s.window->board_view();
    const auto buttons =
        std::count_if(elements_of(screen::feature).begin(), elements_of(screen::feature).end(),
                      [](const element_row& r) { return takes_press(r.what); });
    p.until([&] { return !board.findChildren<QPushButton*>().isEmpty(); }); // once it is drawn ahead
    EXPECT_EQ(board.findChildren<QPushButton*>().size(), buttons);
}

TEST(View, TheNameFormTakesLettersAndWarnsOfThoseThatAreNotSeen) {
    program p;
    p.start();
    load_screen(p.s.g, screen::Entername);
    refresh(p.s);
    QWidget* const form = p.s.side[static_cast<std::size_t>(screen::Entername)];
    ASSERT_NE(form, nullptr);
    auto* const box = form->findChild<QLineEdit*>();
    ASSERT_NE(box, nullptr);
    const QLabel* warning = nullptr;
    for (const QLabel* label : form->findChildren<QLabel*>())
        if (label->text().contains("fifteen"))
            warning = label;
    ASSERT_NE(warning, nullptr);
    box->clear();
    QTest::keyClicks(box, "Ada Lovelace Ki"); // fifteen
    EXPECT_EQ(caption(p.s.g.p, element::Entername_Text1), "Ada Lovelace Ki");
    EXPECT_FALSE(warning->isVisible());
    QTest::keyClicks(box, "n");
    EXPECT_TRUE(warning->isVisible());
    EXPECT_GT(warning->geometry().top(), box->geometry().bottom());
    EXPECT_LT(warning->font().pixelSize(), box->font().pixelSize());
    EXPECT_GT(warning->font().pixelSize(), box->height() / 4);
    EXPECT_LT(box->font().pixelSize(), box->height());
    EXPECT_GT(box->font().pixelSize(), box->height() * 2 / 5);
    EXPECT_EQ(box->accessibleName(), "Your name");
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_TRUE(is_loaded(p.s.g.p, screen::Entername)) << "a score is not thrown away by a key";
    EXPECT_EQ(p.s.view.player, "Ada Lovelace Kin") << "it stands there the next time";
    send(p.s, {input::kind::type, screen::Entername, element::Entername_Text1, 0, "A\x1b\nda\x7f"});
    EXPECT_EQ(caption(p.s.g.p, element::Entername_Text1), "Ada") << "what no script can tell again";
}

TEST(View, TheHintLineSaysWhatTheMachineTakes) {
    program p;
    p.start();
    hintline* line = nullptr;
    for (QWidget* w : p.s.window->findChildren<QWidget*>())
        if (auto* const found = dynamic_cast<hintline*>(w))
            line = found;
    ASSERT_NE(line, nullptr);
    const QList<QLabel*> labels = line->findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 2);
    refresh(p.s); // else it is as the last tick left it
    EXPECT_EQ(labels[0]->text().toStdString(), hint(p.s.g));
    EXPECT_EQ(labels[1]->text().toStdString(), bank_label(p.s.g) + "   " + credits_label(p.s.g));
    send(p.s, {input::kind::press, screen::main, element::start});
    p.until([&] { return p.s.g.p.now > 2000; });
    refresh(p.s);
    EXPECT_EQ(labels[0]->text().toStdString(), hint(p.s.g));
    EXPECT_EQ(labels[1]->text().toStdString(), bank_label(p.s.g) + "   " + credits_label(p.s.g));
    for (const int width : {320, 800, 2400}) {
        const int high = hintline::height_at(width);
        line->resize(width, high);
        EXPECT_EQ(line->height(), high);
        EXPECT_GT(high, labels[0]->font().pixelSize());
        EXPECT_GE(labels[0]->font().pixelSize(), 10);
        EXPECT_EQ(labels[1]->font(), labels[0]->font());
    }
    EXPECT_GT(hintline::height_at(2400), hintline::height_at(800));
    EXPECT_EQ(labels[0]->geometry(), QRect(0, 0, labels[1]->x(), line->height()));
    EXPECT_EQ(labels[1]->geometry().right(), line->width() - 1);
    EXPECT_EQ(labels[0]->toolTip(), labels[0]->text());
    labels[0]->setText(QString(500, 'W'));
    EXPECT_LT(p.s.window->minimumSizeHint().width(), 400) << "a long hint never widens the window";
}

} // namespace

} // namespace hustle::desktop
