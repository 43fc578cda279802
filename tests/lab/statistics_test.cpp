// The estimates against closed forms and against simulation.
#include "lab/statistics.h"
#include "panel/splitmix.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace hustle::lab {
namespace {

// The share of Student's distribution up to t, by Simpson's rule over its density.
double student_share(double t, int freedom) {
    const double n = freedom;
    const double scale =
        std::exp(std::lgamma((n + 1) / 2) - std::lgamma(n / 2)) / std::sqrt(n * std::numbers::pi);
    constexpr int steps = 20'000;
    double sum = 0;
    for (int i = 0; i <= steps; ++i) {
        const double x = t * i / steps;
        const double weight = i == 0 || i == steps ? 1 : i % 2 == 1 ? 4 : 2;
        sum += weight * scale * std::pow(1 + x * x / n, -(n + 1) / 2);
    }
    return 0.5 + sum * t / steps / 3;
}

TEST(Statistics, StudentsPointCutsOffTwoAndAHalfPercent) {
    EXPECT_NEAR(student(1), std::tan(std::numbers::pi * 0.475), 1e-4);
    EXPECT_NEAR(student(2), 0.95 * std::sqrt(2 / (1 - 0.95 * 0.95)), 1e-5);
    for (const int freedom : {3, 7, 15, 30, 31, 63, 255, 4000})
        EXPECT_NEAR(student_share(student(freedom), freedom), 0.975, 1e-6) << freedom;
}

TEST(Statistics, MeanAndRatioFollowTheirClosedForms) {
    const std::vector<double> values = {1, 2, 3, 4};
    const estimate mean = mean_of(values);
    EXPECT_DOUBLE_EQ(mean.mean, 2.5);
    EXPECT_NEAR(mean.high - mean.mean, 3.182446 * std::sqrt(5.0 / 3 / 4), 1e-9);
    EXPECT_NEAR(mean.mean - mean.low, mean.high - mean.mean, 1e-12);

    const estimate even = ratio_of(values, std::vector<double>{1, 1, 1, 1}); // the same as the mean
    EXPECT_NEAR(even.low, mean.low, 1e-12);

    // 30 of 60: residuals -5 and 5.
    const estimate uneven = ratio_of(std::vector<double>{5, 25}, std::vector<double>{20, 40});
    EXPECT_DOUBLE_EQ(uneven.mean, 0.5);
    EXPECT_NEAR(uneven.high - 0.5, 12.706205 * std::sqrt(2 * 50.0) / 60, 1e-9);

    EXPECT_TRUE(std::isnan(mean_of(std::vector<double>{7}).low));
    EXPECT_DOUBLE_EQ(quantile(values, 0.5), 2.5);
}

// Machines whose plays pay 4 with one chance in ten: how often does the interval hold the truth?
TEST(Statistics, TheIntervalHoldsTheTruthAsOftenAsItSays) {
    constexpr int trials = 4000, machines = 12, plays = 400;
    std::uint64_t state = 7;
    int held = 0;
    for (int trial = 0; trial < trials; ++trial) {
        std::vector<double> banked(machines, 0), staked(machines, plays);
        for (double& b : banked)
            for (int play = 0; play < plays; ++play)
                b += splitmix_draw(state, 10) == 1 ? 4 : 0;
        const estimate e = ratio_of(banked, staked);
        held += e.low <= 0.4 && 0.4 <= e.high;
    }
    const double error = std::sqrt(0.95 * 0.05 / trials);
    EXPECT_NEAR(static_cast<double>(held) / trials, 0.95, 3 * error);
}

} // namespace
} // namespace hustle::lab
