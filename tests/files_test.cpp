#include "core/files.h"
#include "panel/text.h"
#include "tests/testgame.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace hustle {
namespace {

std::string text(short_text t) { return std::string(std::string_view(t)); }

TEST(Text, FixedFormRoundsTheShortestDecimalHalvesAwayFromZero) {
    const std::pair<float, const char*> cases[] = {
        {0, "0.00"},
        {3.6f, "3.60"},
        {15, "15.00"},
        {0.125f, "0.13"},
        {0.145f, "0.15"},
        {-0.145f, "-0.15"},
        {9.995f, "10.00"},
        {99.999f, "100.00"},
        {-0.004f, "0.00"},
        {-0.8f, "-0.80"},
        {1e-7f, "0.00"},
        {0.19999993f, "0.20"},
        {16777216, "16777216.00"},
    };
    for (const auto& [value, wanted] : cases)
        EXPECT_EQ(text(fixed(value)), wanted);
}

TEST(Text, PlainFormReadsBackAndHasNoExponent) {
    EXPECT_EQ(text(plain(80.19802f)), "80.19802");
    EXPECT_EQ(text(plain(0.2f)), "0.2");
    EXPECT_EQ(text(plain(20.0f)), "20");
    EXPECT_EQ(text(plain(-0.0f)), "0");
    EXPECT_EQ(text(plain(1e-7f)), "0.0000001");
    EXPECT_EQ(text(uk_currency(1234.5f)), "£1,234.50");
    EXPECT_EQ(text(uk_currency(-0.8f)), "-£0.80");
    EXPECT_EQ(text(uk_currency(1000000)), "£1,000,000.00");
}

constexpr std::string_view saved =
    "123.25  \r\n 98.4\r\n8\r\n.2\r\n-3\r\n0.04\r\n12.5\r\n1E+1\r\n\r\n16\r\n1\r\n7\r\n"
    "2\r\n\"off\"\r\n\"no\"\r\n6\r\n\"usd\"\r\n";

TEST(Files, GameIsReadLineByLineAndWrittenBack) {
    machine m;
    ASSERT_TRUE(read_game_text(m, saved));
    EXPECT_EQ(m.hopper, 0.2f);
    EXPECT_EQ(m.streakbank, 0.04f) << "the streak bank stands before the win bank";
    EXPECT_EQ(m.winbank, 12.5f);
    EXPECT_EQ(m.housecut, 10.0f);
    EXPECT_EQ(reel(m, 1).pos, 16);
    EXPECT_EQ(reel(m, 3).pos, 7);
    EXPECT_EQ(m.currency, "usd");
    const std::string written = game_text(m);
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 17);
    EXPECT_NE(written.find("10\r\n\r\n16\r\n"), std::string::npos) << "the ninth line is empty";
    machine again;
    ASSERT_TRUE(read_game_text(again, written));
    EXPECT_EQ(game_text(again), written);
}

TEST(Files, DamageIsSeenAndChangesNothing) {
    const auto replaced = [](std::string_view what, std::string_view by) {
        std::string s(saved);
        s.replace(s.find(what), what.size(), by);
        return s;
    };
    for (const std::string& damaged :
         {std::string(), std::string(saved.substr(0, 60)), replaced("98.4", "98,4"), replaced("98.4", "inf"),
          replaced("98.4", ""), replaced("\r\n16\r\n", "\r\n17\r\n"), replaced("\r\n16\r\n", "\r\n0\r\n"),
          replaced("\"off\"", "off"), replaced("\r\n2\r\n", "\r\n70000\r\n"), replaced("123.25", "1e99")}) {
        machine m;
        m.moneyin = 7;
        EXPECT_FALSE(read_game_text(m, damaged)) << damaged;
        EXPECT_EQ(m.moneyin, 7);
    }
}

TEST(Files, ADamagedFileGivesTheFirstContentsAndAWord) {
    testgame t;
    EXPECT_TRUE(t.world.boxes.empty()) << "a missing file is no fault";
    t.world.files[0] = "rubbish";
    t.world.files[1] = table_text(t.g.m);
    t.boot_up();
    ASSERT_EQ(t.world.boxes.size(), 1u);
    EXPECT_NE(t.world.boxes[0].find("game.dat.damaged"), std::string::npos);
    EXPECT_EQ(t.g.m.moneyin, 100);
    EXPECT_EQ(t.g.m.pcent, 80);
}

TEST(Files, ADamagedFileThatCannotBeMovedIsNotToldAsKept) {
    struct : testworld {
        std::string set_aside(store) override { return {}; }
    } stuck;
    stuck.files[1] = "rubbish";
    game g{stuck};
    reset_game(g, 0);
    boot(g);
    ASSERT_EQ(stuck.boxes.size(), 1u);
    EXPECT_NE(stuck.boxes[0].find("could not be set aside"), std::string::npos);
    EXPECT_EQ(stuck.boxes[0].find("kept as"), std::string::npos);
}

TEST(Files, AFailedSaveIsToldAndThePlayEndsAllTheSame) {
    struct : testworld {
        bool write(store s, std::string_view text) override {
            return s == store::hscore_dat && stillworld::write(s, text);
        }
    } full;
    game g{full};
    reset_game(g, 0);
    boot(g);
    deliver(g, 350);
    apply(g, {.what = input::kind::close, .where = screen::main});
    ASSERT_FALSE(full.boxes.empty());
    EXPECT_EQ(full.boxes.back(), "Hoard Hustle|game.dat could not be saved.");
    apply(g, {.what = input::kind::close, .where = screen::Highscore});
    EXPECT_TRUE(full.ended);
    EXPECT_TRUE(full.files[1].has_value()) << "the other file is saved";
    EXPECT_FALSE(apply(g, {.what = input::kind::press, .on = element::start}))
        << "nothing is pressed after the end";
}

TEST(Files, NamesKeepTheirQuotesAndLoseTheirLineBreaks) {
    machine m;
    m.hiscore[0] = 12.4f;
    m.hiname.fill(std::string(15, ' '));
    m.hiname[0] = "  \"BIG\" AL\r\nX";
    machine again;
    ASSERT_TRUE(read_table_text(again, table_text(m)));
    EXPECT_EQ(again.hiname[0], "  \"BIG\" AL  X");
    EXPECT_EQ(again.hiscore[0], 12.4f);
    EXPECT_EQ(again.hiname[9].size(), 15u);
}

} // namespace
} // namespace hustle
