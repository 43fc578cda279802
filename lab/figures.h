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

// The counts of all machines together; the dry run is the longest, `own` the sum of the machines' own.
tally sum_of(std::span<const record>);

// A share of a run: the machines whose number leaves `shard` - 1 over `of`. 1 of 1 is the whole run.
struct share_of_run {
    int shard = 1; // 1 to `of`
    int of = 1;

    bool operator==(const share_of_run&) const = default;
};
int machines_in(const terms&, share_of_run);

// The head of a result, up to and without `figures`: policy, machines, plays, seconds, return, terms. It is
// complete where all machines of the share have made all of their plays.
void write_head(jsontext&, const terms&, std::span<const record>, share_of_run = {});
// The key `shard`, where it is not the whole run.
void write_share(jsontext&, share_of_run);
// The value of `figures`.
void write_figures(jsontext&, std::span<const record>);
// A whole result without the machines' own counts: what the charts are drawn from. It tells how many
// machines have played, which are fewer than the run's in a share and in a run that was broken off.
std::string result_text(const terms&, std::span<const record>, share_of_run = {});

} // namespace hustle::lab
