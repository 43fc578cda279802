// The files of the lab: a result as JSON with every machine's counts, and as CSV.
#pragma once

#include "lab/figures.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace hustle::lab {

// What is wrong with a file, in a sentence that names it.
struct file_error : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct result {
    terms t;
    share_of_run part;
    std::vector<record> machines; // by number; in a broken-off run some have fewer plays, or are missing

    bool has(int machine) const; // all of its plays are there
    bool complete() const;       // all machines of the share
};

// The machines of a share, by number.
std::vector<int> machines_of(const terms&, share_of_run);

std::string file_text(const result&);
std::string csv_text(const result&);
// Throws file_error where the text is damaged or not the lab's.
result read_result(const std::string& text, const std::string& name);

// A seed as a person or a file writes it: figures alone, below 2^64. Throws file_error.
std::uint64_t read_seed(const std::string& text);

// Both take plain files alone, and throw file_error. Of a file that is written, the old one or the new one is
// there, whatever happens.
std::string read_file(const std::string& name);
void write_file(const std::string& name, const std::string& text);
bool is_there(const std::string& name);
// Throws what write_file would, as far as it can be told before; leaves a file that is there as it is.
void try_file(const std::string& name);
// The result as JSON, and as CSV beside it.
void save(const result&, const std::string& name);
std::string csv_name(const std::string& name);

} // namespace hustle::lab
