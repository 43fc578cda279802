// The parts of the window that need no screen: its clock, its names and its letters.
#include "art/art.h"
#include "art/dotfont.h"
#include "core/bank.h"
#include "desktop/platform/readypicture.h"
#include "panel/sheet.h"
#include "show/clock.h"
#include "show/spokennames.h"
#include "tests/testgame.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>

namespace hustle::desktop {

namespace {

int ticks_at(machine_clock& clock, panel& p, std::int64_t real) {
    const std::int64_t until = catch_up(clock, p, real);
    int count = 0;
    timer which{};
    while (take_tick(p, until, which))
        ++count;
    p.now = std::max(p.now, until);
    return count;
}

TEST(Clock, FollowsTheRealOneAndNeverMakesUpForAStall) {
    testgame b;
    b.run(650);
    panel& p = b.g.p;
    machine_clock clock;
    int steady = 0;
    for (int real = 1005; real <= 2000; real += 5)
        steady += ticks_at(clock, p, real);
    EXPECT_EQ(steady, 10); // the lamps, every 100 ms
    EXPECT_EQ(clock.behind, 0);

    EXPECT_LE(ticks_at(clock, p, 62'000), 1); // asleep for a minute
    EXPECT_NEAR(static_cast<double>(clock.behind), 59'950, 100);
    int after = 0;
    for (int real = 62'005; real <= 63'000; real += 5)
        after += ticks_at(clock, p, real);
    EXPECT_NEAR(after, 10, 1);
}

TEST(Clock, GivesAQuickTimerAFewTicksAtATime) {
    testgame b;
    b.run(650);
    panel& p = b.g.p;
    open_screen(p, screen::feature);
    start_timer(p, timer::feature_fastcash); // every millisecond
    machine_clock clock;
    for (int real = 1016; real <= 2000; real += 16) // a slow painter
        EXPECT_LE(ticks_at(clock, p, real), 5 + 4);
}

TEST(Names, TellEveryButtonLampAndLine) {
    testgame b;
    b.run(650);
    for (const screen_row& s : screen_rows())
        for (const element_row& r : elements_of(s.id))
            if (takes_press(r.what)) {
                EXPECT_FALSE(spoken_name(b.g, r.id).empty()) << s.name << "." << r.name;
            }
    EXPECT_EQ(spoken_name(b.g, element::displayline), "Bank 0 pounds, 20 credits");
    EXPECT_EQ(spoken_name(b.g, element::reel1), "Reel 1: bell");
    set_caption(b.g.p, element::displayline, "    xxx I LIKE IT xxx");
    EXPECT_EQ(spoken_name(b.g, element::displayline), "I LIKE IT");
    set_caption(b.g.p, element::displayline, "       * REEL SKILL *");
    EXPECT_EQ(spoken_name(b.g, element::displayline), "REEL SKILL");
    set_caption(b.g.p, element::feature_shotbox, "  9 ");
    EXPECT_EQ(spoken_name(b.g, element::feature_shotbox), "Shots: 9");
    set_fore(b.g.p, element::numberfour, 65535);
    EXPECT_EQ(spoken_name(b.g, element::numberfour), "Trail 4: BONUS, lit");
    set_caption(b.g.p, element::statistics_text1, "   £1.50 ");
    EXPECT_EQ(spoken_name(b.g, element::statistics_text1), "£1.50");
    set_caption(b.g.p, element::statistics_text1, "  ");
    EXPECT_EQ(spoken_name(b.g, element::statistics_text1), "");
}

TEST(Names, TellWhatALookTells) {
    testgame b;
    b.run(650);
    game& g = b.g;
    const auto with = [&](element e, art look) {
        set_picture(g.p, e, look);
        return spoken_name(g, e);
    };
    EXPECT_EQ(with(element::hold2, art::nudgepiclight), "Nudge reel 2");
    EXPECT_EQ(with(element::hold2, art::stoppicdark), "Stop reel 2");
    EXPECT_EQ(with(element::hold2, art::holdpicdark), "Hold reel 2");
    g.m.holdsoffered = flag::yes;
    EXPECT_EQ(spoken_name(g, element::hold2), "Hold reel 2, offered");
    g.m.holdsbarred = truth::is;
    EXPECT_EQ(spoken_name(g, element::hold2), "Hold reel 2");
    g.m.reels[1].held = flag::yes;
    EXPECT_EQ(spoken_name(g, element::hold2), "Hold reel 2, held");
    EXPECT_EQ(with(element::nudgenow, art::nudgenowpiclight), "Nudge now");
    EXPECT_EQ(with(element::nudgenow, art::nudgenowpicdark), "Nudge lamp, dark");
    EXPECT_EQ(with(element::feature_bomb2, art::bombiconlight), "Bomb 2, lit");
    EXPECT_EQ(with(element::feature_dicepic, art::dice6pic), "Die: 6");
    g.m.nudges = 3;
    EXPECT_EQ(spoken_name(g, element::picture1), "Nudges: 3");
    g.m.reels[2].sym = "bseven";
    EXPECT_EQ(spoken_name(g, element::reel3), "Reel 3: blue seven");
    g.m.currency = setting::usd;
    g.m.bank = 1;
    g.m.win = 3.6F;
    g.m.credits = 1;
    figuresline(g);
    EXPECT_EQ(spoken_name(g, element::displayline), "Bank 1 dollar, 1 credit");
    g.m.currency = setting::gbp;
    g.m.bank = 0.2F;
    start_timer(g.p, timer::wintobank);
    figuresline(g);
    EXPECT_EQ(spoken_name(g, element::displayline), "Bank 0 pounds 20, win 3 pounds 60, 1 credit");
}

TEST(Letters, HaveALookForEverySignOfTheMachine) {
    const auto& unknown = glyph_of(0x4E2D).rows;
    for (const char32_t letter : std::u32string(U"ABCXYZ0189*+-/\\'><.?£$xp!&é€"))
        EXPECT_NE(glyph_of(letter).rows, unknown) << static_cast<unsigned>(letter);
    EXPECT_EQ(glyph_of(U'É').rows, glyph_of(U'E').rows);
    EXPECT_NE(glyph_of(U'O').rows, glyph_of(U'0').rows);
}

TEST(ReadyPicture, ComesBackAsItWasOrNotAtAll) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("picture");
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(QColor(10, 200, 30));
    ASSERT_TRUE(store_ready(picture, file));
    EXPECT_EQ(read_ready(file, {3, 2}).convertToFormat(QImage::Format_RGB32), picture);
    EXPECT_TRUE(read_ready(file, {2, 2}).isNull());
    EXPECT_TRUE(read_ready(folder.filePath("nowhere"), {3, 2}).isNull());
}

// One sees from afar where the light stands on the ring.
TEST(Art, LitAndDarkSquaresAreToldApart) {
    const auto luminance = [](art a) {
        QImage image(64, 59, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        QSvgRenderer(QByteArray::fromStdString(svg(a))).render(&painter);
        double sum = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const auto linear = [](int v) { return std::pow(v / 255.0, 2.2); };
                const QRgb p = image.pixel(x, y);
                sum += 0.2126 * linear(qRed(p)) + 0.7152 * linear(qGreen(p)) + 0.0722 * linear(qBlue(p));
            }
        return sum / (image.width() * image.height());
    };
    for (int n = 1; n <= 24; ++n)
        EXPECT_GE((luminance(nth(art::boxlight1, n)) + 0.05) / (luminance(nth(art::boxdark1, n)) + 0.05), 2.5)
            << n;
}

} // namespace

} // namespace hustle::desktop
