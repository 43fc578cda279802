#include "lab/statistics.h"

#include <cmath>
#include <limits>
#include <numeric>

namespace hustle::lab {

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

// 1 to 30 degrees of freedom.
constexpr double table[] = {12.706205, 4.302653, 3.182446, 2.776445, 2.570582, 2.446912, 2.364624, 2.306004,
                            2.262157,  2.228139, 2.200985, 2.178813, 2.160369, 2.144787, 2.131450, 2.119905,
                            2.109816,  2.100922, 2.093024, 2.085963, 2.079614, 2.073873, 2.068658, 2.063899,
                            2.059539,  2.055529, 2.051831, 2.048407, 2.045230, 2.042272};

estimate with_interval(double mean, double error, std::size_t machines) {
    if (machines < 2)
        return {mean, none, none};
    const double half = student(static_cast<int>(machines) - 1) * error;
    return {mean, mean - half, mean + half};
}

} // namespace

double student(int freedom) {
    if (freedom <= 30)
        return table[freedom - 1];
    // The normal point and its first three corrections for few degrees of freedom.
    const double z = 1.959963984540054, n = freedom;
    const double z3 = z * z * z, z5 = z3 * z * z, z7 = z5 * z * z;
    return z + (z3 + z) / (4 * n) + (5 * z5 + 16 * z3 + 3 * z) / (96 * n * n) +
           (3 * z7 + 19 * z5 + 17 * z3 - 15 * z) / (384 * n * n * n);
}

estimate mean_of(std::span<const double> values) {
    const auto n = static_cast<double>(values.size());
    const double mean = std::accumulate(values.begin(), values.end(), 0.0) / n;
    double squares = 0;
    for (const double v : values)
        squares += (v - mean) * (v - mean);
    return with_interval(mean, std::sqrt(squares / (n - 1) / n), values.size());
}

estimate ratio_of(std::span<const double> parts, std::span<const double> wholes) {
    const auto n = static_cast<double>(parts.size());
    const double whole = std::accumulate(wholes.begin(), wholes.end(), 0.0);
    const double ratio = std::accumulate(parts.begin(), parts.end(), 0.0) / whole;
    double squares = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const double residual = parts[i] - ratio * wholes[i];
        squares += residual * residual;
    }
    return with_interval(ratio, std::sqrt(n / (n - 1) * squares) / whole, parts.size());
}

double quantile(std::span<const double> sorted, double share) {
    if (sorted.empty())
        return none;
    const double place = share * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const std::size_t above = below + 1 < sorted.size() ? below + 1 : below;
    return sorted[below] + (sorted[above] - sorted[below]) * (place - static_cast<double>(below));
}

} // namespace hustle::lab
