// Chi-square of what was seen against what the rules let one expect. The bound is the 99.9 percent
// point for the degrees of freedom, by the approximation of Wilson and Hilferty.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace hustle {

struct chi_square {
    double sum = 0;
    int freedom = 0;

    // Where less than one is expected, none may be seen.
    void cell(double wanted, int seen) {
        if (wanted < 1) {
            EXPECT_EQ(seen, 0);
            return;
        }
        sum += (seen - wanted) * (seen - wanted) / wanted;
        ++freedom;
    }
    // Behind the cells of one set, whose shares add up to 1.
    void end_set() { --freedom; }
    double bound() const {
        const double part = 2.0 / (9.0 * freedom);
        return freedom * std::pow(1 - part + 3.09 * std::sqrt(part), 3);
    }
};

// `shares` name each value's share of the samples, and no other value may be seen.
inline void expect_shares(const std::map<int, double>& shares, std::map<int, int> seen, int samples) {
    chi_square found;
    for (const auto& [value, share] : shares)
        found.cell(share * samples, seen[value]);
    found.end_set();
    EXPECT_EQ(seen.size(), shares.size()) << "a value that the rules do not give";
    EXPECT_LT(found.sum, found.bound()) << found.freedom << " degrees";
}

} // namespace hustle
