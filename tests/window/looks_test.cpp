// What the player sees, held against small pictures that were kept: every half second of twenty states of the
// machine, with reels that roll, lamps, coins and belts, in 32 by 25 fields of mean colour. A change of the
// art or of a movement moves them: look at it (looks-now.png stands where the test ran), then keep the new
// ones by
//   HUSTLE_KEEP_LOOKS=1 session_tests --gtest_filter='Looks*'
#include "core/upward.h"
#include "desktop/shot/eye.h"
#include "desktop/shot/still.h"
#include "panel/sheet.h"
#include "tests/testgame.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFontDatabase>
#include <QPainter>

#include <algorithm>
#include <array>

namespace hustle::desktop {

namespace {

constexpr int across = 32, down = 25; // fields
constexpr int frames = 8;             // of a state
constexpr int pictures = 10;          // of a frame
constexpr int picture_ms = 50;
constexpr int rounding = 2;   // of 255: another compiler's
constexpr int lettering = 25; // of the table's forms, which bear the system's letters

struct look {
    std::string name;
    QImage strip; // one frame or more side by side
    int unlike;   // of 255: by how much a field of it may differ
};

QImage fields_of(const QImage& picture) {
    return picture.scaled(across, down, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

// The frames of a state side by side, each the mean of its pictures, so that no movement falls between two;
// black where the script is over.
QImage film_of(const QString& script, bool reduced) {
    QImage strip(across * frames, down, QImage::Format_RGB32);
    strip.fill(Qt::black);
    eye e;
    e.picture_ms = picture_ms;
    e.show.reduced = reduced;
    std::array<int, 4 * across * down> sums{}; // of the bytes of the fields
    int taken = 0;
    e.sees = [&](const QImage& picture, const QRegion&, std::int64_t) {
        if (taken >= frames * pictures)
            return;
        const QImage fields = fields_of(picture);
        for (std::size_t i = 0; i < sums.size(); ++i)
            sums[i] += fields.constBits()[i];
        if (++taken % pictures != 0)
            return;
        QImage mean(across, down, QImage::Format_RGB32);
        for (std::size_t i = 0; i < sums.size(); ++i)
            mean.bits()[i] = static_cast<uchar>(sums[i] / pictures);
        sums.fill(0);
        QPainter(&strip).drawImage((taken / pictures - 1) * across, 0, mean);
    };
    EXPECT_EQ(watch_file(e, script.toStdString()), 0);
    return strip;
}

// Each screen as it opens, in pounds and in dollars.
QImage stills(screen s) {
    QImage strip(across * frames, down, QImage::Format_RGB32);
    strip.fill(Qt::black);
    QPainter painter(&strip);
    testgame b;
    b.run(650);
    load_screen(b.g, s);
    for (const bool dollars : {false, true}) {
        b.g.p.dollars = dollars;
        painter.drawImage(dollars ? across : 0, 0, fields_of(painted(b.g, s, 800)));
    }
    return strip;
}

// Another system's letters run to other lengths: there the forms that bear them are not compared.
bool has_the_letters() { return QFontDatabase::families().contains("DejaVu Sans Condensed"); }

std::vector<look> all_looks() {
    std::vector<look> all;
    for (const QString& name : QDir(STATES).entryList({"*.txt"}, QDir::Files, QDir::Name))
        for (const bool reduced : {false, true})
            all.push_back({name.toStdString() + (reduced ? " with less flashing" : ""),
                           film_of(QDir(STATES).filePath(name), reduced),
                           name == "table.txt" ? lettering : rounding});
    for (const screen_row& s : screen_rows())
        all.push_back({std::string(s.name), stills(s.id),
                       s.id == screen::main || s.id == screen::feature ? rounding : lettering});
    return all;
}

int difference(QRgb a, QRgb b) {
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

// In coarser fields, since letters and edges fall a little otherwise.
TEST(Looks, AreTheSameAtTwiceTheSize) {
    constexpr int few = across / 2;
    testgame b;
    b.run(650);
    const auto fields = [&](screen s, int width) {
        return painted(b.g, s, width).scaled(few, few, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    for (const screen_row& r : screen_rows()) {
        load_screen(b.g, r.id);
        const QImage once = fields(r.id, r.width / 15), twice = fields(r.id, r.width / 15 * 2);
        int most = 0;
        for (int i = 0; i < few * few; ++i)
            most = std::max(most, difference(once.pixel(i % few, i / few), twice.pixel(i % few, i / few)));
        EXPECT_LE(most, r.id == screen::Highscore ? 40 : 16) << r.name; // whose dots take whole pixels
    }
}

TEST(Looks, AreThoseThatWereKept) {
    const std::vector<look> all = all_looks();
    QImage now(across * frames, down * static_cast<int>(all.size()), QImage::Format_RGB32);
    {
        QPainter painter(&now);
        for (std::size_t i = 0; i < all.size(); ++i)
            painter.drawImage(0, down * static_cast<int>(i), all[i].strip);
    }
    if (qEnvironmentVariableIsSet("HUSTLE_KEEP_LOOKS")) {
        ASSERT_TRUE(now.save(LOOKS));
        return;
    }
    now.save("looks-now.png");
    const QImage kept = QImage(LOOKS).convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(kept.size(), now.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].unlike == lettering && !has_the_letters())
            continue;
        const int top = down * static_cast<int>(i);
        int most = 0;
        QPoint where;
        for (int y = 0; y < down; ++y)
            for (int x = 0; x < kept.width(); ++x)
                if (const int d = difference(kept.pixel(x, top + y), now.pixel(x, top + y)); d > most)
                    most = d, where = {x, y};
        EXPECT_LE(most, all[i].unlike) << all[i].name << ", frame " << where.x() / across + 1 << ", field "
                                       << where.x() % across << ", " << where.y();
    }
}

} // namespace

} // namespace hustle::desktop
