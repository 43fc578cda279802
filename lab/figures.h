// From the counts of the machines to the figures of a run, as JSON text. The files of the program
// and the page of the browser show the same text.
#pragma once

#include "lab/jsontext.h"
#include "lab/tally.h"
#include "lab/terms.h"

#include <span>
#include <string>

namespace hustle::lab {

inline constexpr int file_version = 1;

// One machine's counts with its number in the run.
struct record {
    int machine = 0;
    tally counts;
};

// The counts of all machines together; the dry run is the longest, `own` stays 0.
tally sum_of(std::span<const record>);

// The head of a result, up to and without `figures`: policy, machines, plays, seconds, return, terms.
void write_head(jsontext&, const terms&, std::span<const record>);
// The value of `figures`.
void write_figures(jsontext&, std::span<const record>);
// A whole result without the machines' own counts: what the charts are drawn from.
std::string result_text(const terms&, std::span<const record>);

} // namespace hustle::lab
