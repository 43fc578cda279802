#include "lab/program/merge.h"

#include <algorithm>
#include <map>

namespace hustle::lab {

namespace {

std::string share_name(int shard, int of) { return std::to_string(shard) + "/" + std::to_string(of); }

} // namespace

result merged(const std::vector<std::string>& names) {
    result whole;
    std::map<int, std::string> found; // share and its file
    for (const std::string& name : names) {
        const result part = read_result(read_file(name), name);
        if (found.empty()) {
            whole.t = part.t;
            whole.of = part.of;
        }
        if (part.t != whole.t || part.of != whole.of)
            throw file_error(name + ": it is of another run than " + found.begin()->second);
        if (const auto twice = found.find(part.shard); twice != found.end())
            throw file_error(name + ": share " + share_name(part.shard, part.of) +
                             " is there twice: it is also in " + twice->second);
        if (!part.complete())
            throw file_error(name + ": share " + share_name(part.shard, part.of) +
                             " was broken off: resume it first");
        found[part.shard] = name;
        whole.machines.insert(whole.machines.end(), part.machines.begin(), part.machines.end());
    }
    std::string missing;
    for (int shard = 1; shard <= whole.of; ++shard)
        if (!found.contains(shard))
            missing.append(" ").append(share_name(shard, whole.of));
    if (!missing.empty())
        throw file_error("shares are missing:" + missing);
    whole.shard = whole.of = 1;
    std::ranges::sort(whole.machines, {}, &record::machine);
    return whole;
}

} // namespace hustle::lab
