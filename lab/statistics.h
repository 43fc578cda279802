// Estimates from independent machines.
#pragma once

#include <span>

namespace hustle::lab {

struct estimate {
    double mean = 0;
    double low = 0; // of the 95 % interval; not a number where there are fewer than two machines
    double high = 0;
};

// The 97.5 % point of Student's distribution with so many degrees of freedom, 1 or more.
double student(int freedom);
// The mean of one value from each machine; of none it is not a number.
estimate mean_of(std::span<const double> values);
// The sum of `parts` over the sum of `wholes`, one of each from a machine: a ratio of sums, with the
// interval from the spread of its residuals between machines.
estimate ratio_of(std::span<const double> parts, std::span<const double> wholes);
// The value below which a share (0 to 1) of the values lies; between two, by the line through them. Of none
// it is not a number.
double quantile(std::span<const double> sorted, double share);

} // namespace hustle::lab
