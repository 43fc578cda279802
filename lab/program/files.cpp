#include "lab/program/files.h"

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace hustle::lab {

namespace {

void want_plain_file(const std::string& name) {
    std::error_code none;
    if (const auto status = std::filesystem::symlink_status(name, none);
        std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw file_error(name + ": is there and is no plain file; nothing was written");
}

int open_fresh(const std::string& fresh) {
    return ::open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0644);
}

} // namespace

std::vector<int> machines_of(const terms& t, share_of_run part) {
    std::vector<int> numbers;
    for (int n = part.shard - 1; n < t.machines; n += part.of)
        numbers.push_back(n);
    return numbers;
}

bool result::has(int machine) const {
    const auto found = std::ranges::lower_bound(machines, machine, {}, &record::machine);
    return found != machines.end() && found->machine == machine && found->counts.plays == t.plays;
}

bool result::complete() const {
    return std::ranges::all_of(machines_of(t, part), [&](int n) { return has(n); });
}

std::string read_file(const std::string& name) {
    constexpr std::uintmax_t longest = 1U << 30;
    std::error_code none;
    if (const auto status = std::filesystem::status(name, none);
        std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw file_error(name + ": is no plain file");
    std::ifstream in(name, std::ios::binary);
    if (!in)
        throw file_error(name + ": cannot be opened");
    if (std::filesystem::file_size(name, none) > longest)
        throw file_error(name + ": is longer than a file of the lab can be");
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad())
        throw file_error(name + ": cannot be read");
    return text;
}

void write_file(const std::string& name, const std::string& text) {
    want_plain_file(name);
    const std::string fresh = name + ".new";
    const int file = open_fresh(fresh);
    bool good = file >= 0;
    for (std::size_t done = 0; good && done < text.size();) {
        const ssize_t n = ::write(file, text.data() + done, text.size() - done);
        good = n > 0;
        done += good ? static_cast<std::size_t>(n) : 0;
    }
    good = good && ::fsync(file) == 0;
    if (file >= 0)
        good = ::close(file) == 0 && good;
    if (good && std::rename(fresh.c_str(), name.c_str()) == 0)
        return;
    std::remove(fresh.c_str());
    throw file_error(name + ": cannot be written");
}

bool is_there(const std::string& name) {
    std::error_code none;
    return std::filesystem::exists(std::filesystem::symlink_status(name, none));
}

void try_file(const std::string& name) {
    want_plain_file(name);
    const std::string fresh = name + ".new";
    const int file = open_fresh(fresh);
    if (file < 0)
        throw file_error(name + ": cannot be written");
    ::close(file);
    std::remove(fresh.c_str());
}

std::string csv_name(const std::string& name) {
    return (name.ends_with(".json") ? name.substr(0, name.size() - 5) : name) + ".csv";
}

void save(const result& r, const std::string& name) {
    write_file(name, file_text(r));
    write_file(csv_name(name), csv_text(r));
}

} // namespace hustle::lab
