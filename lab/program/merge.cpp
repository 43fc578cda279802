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
        const result share = read_result(read_file(name), name);
        if (found.empty()) {
            whole.t = share.t;
            whole.part.of = share.part.of;
        }
        if (share.t != whole.t || share.part.of != whole.part.of)
            throw file_error(name + ": it is of another run than " + found.begin()->second);
        if (const auto twice = found.find(share.part.shard); twice != found.end())
            throw file_error(name + ": share " + share_name(share.part.shard, share.part.of) +
                             " is there twice: it is also in " + twice->second);
        if (!share.complete())
            throw file_error(name + ": share " + share_name(share.part.shard, share.part.of) +
                             " was broken off: resume it first");
        found[share.part.shard] = name;
        whole.machines.insert(whole.machines.end(), share.machines.begin(), share.machines.end());
    }
    std::string missing;
    for (int shard = 1; shard <= whole.part.of; ++shard)
        if (!found.contains(shard))
            missing.append(" ").append(share_name(shard, whole.part.of));
    if (!missing.empty())
        throw file_error("shares are missing:" + missing);
    whole.part = {};
    std::ranges::sort(whole.machines, {}, &record::machine);
    return whole;
}

} // namespace hustle::lab
