// What the side screens ask of the world outside: pages, system information, the locale's money.
#include "tests/testgame.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace hustle {

namespace {

struct SideScreens : testing::Test, testgame {};

} // namespace

TEST_F(SideScreens, OpenThePagesOfTheProgram) {
    press(element::helpcontents);
    press(element::visitweb);
    apply(g, {.what = input::kind::key, .where = screen::main, .code = 112});
    EXPECT_EQ(world.pages, (std::vector{page::help, page::home, page::help}));
}

TEST_F(SideScreens, TellWhereThereIsNoSystemInformation) {
    press(element::helpabout);
    press(element::About_cmdSysInfo);
    EXPECT_EQ(world.boxes,
              std::vector<std::string>{"Hoard Hustle|System Information Is Unavailable At This Time"});
    world.has_system_info = true;
    press(element::About_cmdSysInfo);
    EXPECT_EQ(world.boxes.size(), 1U);
}

TEST_F(SideScreens, WriteMoneyAsTheSystemDoes) {
    world.money = "12,50 €";
    g.m.currency = "usd";
    press(element::hscoretable);
    EXPECT_EQ(caption(g.p, element::Highscore_one), "1.                 12,50 €");
    press(element::gstat);
    deliver(g, g.p.now + 100);
    EXPECT_EQ(caption(g.p, element::statistics_text3), " 12,50 €");
}

} // namespace hustle
