#include "panel/sheet.h"
#include "panel/text.h"
#include "screens/handlers.h"
#include "tests/testgame.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <set>

namespace hustle {
namespace {

TEST(Sheet, EveryButtonHasAnActionAndEveryElementLiesOnItsScreen) {
    for (const screen_row& s : screen_rows())
        for (const element_row& r : elements_of(s.id)) {
            EXPECT_EQ(press_handler(r.id) != nullptr, takes_press(r.what)) << r.name;
            EXPECT_LE(r.place.left + r.place.width, s.width + 15) << r.name;
            EXPECT_LE(r.place.top + r.place.height, s.height) << r.name;
        }
}

TEST(Sheet, MenusReadAsPlayersKnowThem) {
    std::string all;
    for (const menu_row& r : menu_rows())
        all.append(r.menu.substr(0, 1))
            .append(r.entry == element::total ? "-" : row(r.entry).name)
            .append(" ");
    EXPECT_EQ(
        all,
        "Gnewgame G- Ggstat Ghscoretable Ginsertcoinmenu G- Gexitgame Ofreelspin Osreelspin Orreelspin O- "
        "Ods Ops O- Osoundon Osoundoff O- Oreddisp Opurpledisp Opinkdisp Obluedisp Oyellowdisp "
        "Ogreendisp O- Oflon Ofloff Hhelpcontents H- Hrguidemenu Hrwinmenu H- Hvisitweb H- Hhelpabout ");
}

// The fixed form by way of the shortest decimal, halves away from nought.
std::string by_decimal(float amount) {
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, std::abs(amount), std::chars_format::fixed).ptr;
    std::string number(text, end);
    if (number.find('.') == std::string::npos)
        number += '.';
    const std::size_t point = number.find('.');
    number += "000";
    const long pence = std::stol(number.substr(0, point)) * 100 + std::stol(number.substr(point + 1, 2)) +
                       (number[point + 3] >= '5' ? 1 : 0);
    std::snprintf(text, sizeof text, "%s%ld.%02ld", amount < 0 && pence > 0 ? "-" : "", pence / 100,
                  pence % 100);
    return text;
}

TEST(Text, TellsAmountsOfWholePenceAndBesideThemAsTheShortestDecimalDoes) {
    for (int tenths = 0; tenths < 1200000; tenths += 5) { // of a penny: the halves between are the hard ones
        const float amount = static_cast<float>(tenths / 1000.0);
        for (const float near :
             {amount, std::nextafter(amount, 2000.0F), std::nextafter(amount, -1.0F), -amount})
            ASSERT_EQ(std::string_view(fixed(near)), by_decimal(near)) << near;
    }
    for (const float whole : {0.0F, -0.0F, 20.0F, 999999.0F, 1e6F, -3.0F, 16777216.0F})
        EXPECT_EQ(std::string_view(plain(whole)), std::to_string(static_cast<int>(whole)));
}

struct ticks {
    panel p;
    std::vector<std::pair<timer, std::int64_t>> seen;

    ticks() {
        reset_panel(p);
        p.loaded[static_cast<std::size_t>(screen::main)] = true;
    }
    void run(std::int64_t until) {
        timer t{};
        while (take_tick(p, until, t))
            seen.emplace_back(t, p.now);
    }
};

TEST(Timers, TicksThatFallTogetherComeInTheOrderOfArming) {
    ticks run;
    start_timer(run.p, timer::rollem);    // 150
    start_timer(run.p, timer::reelskill); // 25
    start_timer(run.p, timer::rollem);    // runs already: nothing changes
    run.run(150);
    ASSERT_EQ(run.seen.size(), 7u);
    EXPECT_EQ(run.seen[5].first, timer::rollem) << "armed at 0, before the sixth of reelskill at 125";
    EXPECT_EQ(run.seen[6].first, timer::reelskill);
    EXPECT_EQ(run.seen[6].second, 150);
}

TEST(Timers, SettingAnIntervalArmsARunningTimerAnew) {
    ticks run;
    start_timer(run.p, timer::bonus_timer); // 200
    run.p.now = 190;
    set_interval(run.p, timer::bonus_timer, 150);
    run.run(400);
    ASSERT_EQ(run.seen.size(), 1u);
    EXPECT_EQ(run.seen[0].second, 340);
    set_interval(run.p, timer::rollem, 10); // a stopped one stays stopped
    run.run(480);
    EXPECT_EQ(run.seen.size(), 1u);
}

TEST(Timers, TicksDueDuringAWaitAreDeliveredOnceEachAfterIt) {
    ticks run;
    start_timer(run.p, timer::trailskill); // 60
    start_timer(run.p, timer::yes_no);     // 105
    run.p.now = 1000;                      // a wait has moved the clock on
    run.run(1000);
    ASSERT_EQ(run.seen.size(), 2u);
    EXPECT_EQ(run.seen[0].first, timer::trailskill);
    std::int64_t due = 0;
    ASSERT_TRUE(next_due(run.p, due));
    EXPECT_EQ(due, 1060);
    stop_timer(run.p, timer::trailskill);
    ASSERT_TRUE(next_due(run.p, due));
    EXPECT_EQ(due, 1105);
}

TEST(Screens, TheFrontPassesToWhatLiesBeneath) {
    testgame t;
    EXPECT_EQ(front(t.g.p), screen::main);
    t.g.m.awardwait = 5;
    t.press(element::gstat);
    EXPECT_EQ(front(t.g.p), screen::statistics);
    EXPECT_EQ(t.g.m.awardwait, 5);
    t.press(element::rguidemenu); // covers the statistics, which close by that
    EXPECT_EQ(front(t.g.p), screen::reelguide);
    EXPECT_FALSE(is_loaded(t.g.p, screen::statistics));
    apply(t.g, {.what = input::kind::close, .where = screen::reelguide});
    EXPECT_EQ(front(t.g.p), screen::main);
    EXPECT_EQ(t.g.m.awardwait, 0) << "main has come to the front again";
}

} // namespace
} // namespace hustle
