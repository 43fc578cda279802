// Results as files: whole, damaged, shared out, resumed.
#include "lab/policies.h"
#include "lab/program/merge.h"
#include "lab/program/run.h"
#include "lab/seat.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <memory>

namespace hustle::lab {
namespace {

result small_run(std::string_view policy) {
    result r;
    r.t.policy = find_policy(policy);
    r.t.machines = 3;
    r.t.plays = 400;
    const auto s = std::make_unique<seat>();
    for (int n = 0; n < r.t.machines; ++n) {
        record& m = r.machines.emplace_back();
        m.machine = n;
        tally home;
        play_home(*s, r.t, n, home);
        sit_down(*s, r.t, n);
        play_on(*s, r.t.plays);
        m.counts = s->sum;
        m.counts.home_own = home.home_own;
    }
    return r;
}

struct folder {
    std::filesystem::path at =
        std::filesystem::temp_directory_path() /
        ("hustlelab-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    folder() { std::filesystem::create_directories(at); }
    ~folder() { std::filesystem::remove_all(at); }
    std::string operator/(const std::string& name) const { return (at / name).string(); }
};

std::uint64_t hash_of(const std::string& text) {
    std::uint64_t h = 0xcbf29ce484222325ULL;
    for (const char c : text)
        h = (h ^ static_cast<unsigned char>(c)) * 0x100000001b3ULL;
    return h;
}

TEST(Files, WhatIsWrittenIsReadAgain) {
    const result r = small_run("monkey");
    const std::string text = file_text(r);
    const result again = read_result(text, "file");
    EXPECT_EQ(file_text(again), text);
    EXPECT_EQ(again.t, r.t);
    const auto j = nlohmann::json::parse(text);
    EXPECT_EQ(j["policy"], "monkey");
    EXPECT_EQ(j["machines"], 3);
    EXPECT_EQ(j["plays"], 400);
    number units = 0;
    for (const auto& s : j["figures"]["sources"])
        units += s["units"].get<number>();
    EXPECT_DOUBLE_EQ(static_cast<double>(units) / units_of_pound, j["figures"]["banked"].get<double>());
    EXPECT_LT(j["return"]["low"], j["return"]["mean"]);
    EXPECT_LT(j["return"]["mean"], j["return"]["high"]);
}

TEST(Files, AnyDamageIsSeen) {
    const std::string text = file_text(small_run("starter"));
    for (std::size_t at = 0; at < text.size(); at += 211) {
        std::string damaged = text;
        damaged[at] = damaged[at] == '1' ? '2' : '1';
        EXPECT_THROW(read_result(damaged, "file"), file_error) << at;
        EXPECT_THROW(read_result(text.substr(0, at), "file"), file_error) << at;
    }
    EXPECT_THROW(read_result("{\"format\":\"other\"}", "file"), file_error);
}

// A checksum is no secret: what it seals may still make no sense.
TEST(Files, ASealedFileMustMakeSenseAsWell) {
    const std::string text = file_text(small_run("starter"));
    const auto sealed = [&](std::string_view what, const std::string& by) {
        std::string s = text;
        s.replace(s.find(what), what.size(), by);
        const std::size_t seal = s.rfind("\"checksum\"");
        char hex[17];
        std::snprintf(hex, sizeof hex, "%016llx",
                      static_cast<unsigned long long>(hash_of(s.substr(0, seal))));
        return s.replace(seal + 12, 16, hex);
    };
    EXPECT_EQ(sealed("starter", "starter"), text);
    for (const char* share : {"[1,0]", "[1,-3]", "[0,1]", "[2,1]", "[1,2000000000]"})
        EXPECT_THROW(
            read_result(sealed("\"figures\"", "\"shard\":" + std::string(share) + ",\"figures\""), "file"),
            file_error)
            << share;
    for (const char* machines : {"0", "-1", "2000000000", "2"})
        EXPECT_THROW(read_result(sealed("\"machines\":3", "\"machines\":" + std::string(machines)), "file"),
                     file_error)
            << machines;
    EXPECT_THROW(read_result(sealed("\"machine\":1", "\"machine\":0"), "file"), file_error);
}

// The same seed, the same bytes: whatever the compiler, whatever the house. It moves with the
// players and with the figures that a file holds; a change says so.
TEST(Files, TheBytesAreTheSameEverywhere) {
    std::string all;
    for (const policy_row& p : policies())
        all += file_text(small_run(p.name));
    EXPECT_EQ(hash_of(all), 9618544194371800245ULL);
}

TEST(Files, ABrokenOffRunIsResumedToTheSameBytes) {
    const folder here;
    run_options o;
    o.t.policy = find_policy("holder");
    o.t.machines = 4;
    o.t.plays = 300;
    o.threads = 2;
    o.out = here / "whole.json";
    ASSERT_EQ(run(o), 0);
    result part = read_result(read_file(o.out), o.out);
    part.machines.erase(part.machines.begin() + 1);
    part.machines.back().counts.plays -= 10; // its last plays were not reached
    o.out = here / "part.json";
    save(part, o.out);
    EXPECT_THROW(merged({o.out}), file_error);
    o.resume = true;
    ASSERT_EQ(run(o), 0);
    EXPECT_EQ(read_file(here / "part.json"), read_file(here / "whole.json"));
    EXPECT_EQ(read_file(here / "part.csv"), read_file(here / "whole.csv"));
    o.t.seed = 2;
    EXPECT_THROW(run(o), file_error); // of another run
}

} // namespace
} // namespace hustle::lab
