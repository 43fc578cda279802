#include "lab/policies.h"
#include "lab/program/run.h"

#include <nlohmann/json.hpp>

#include <iomanip>
#include <sstream>

namespace hustle::lab {

namespace {

using json = nlohmann::json;

struct fixed_to {
    double value;
    int decimals;
};
std::ostream& operator<<(std::ostream& out, const fixed_to& f) {
    return out << std::fixed << std::setprecision(f.decimals) << f.value;
}

// A percentage with its 95 % interval.
struct interval {
    const json& e;
};
std::ostream& operator<<(std::ostream& out, const interval& i) {
    out << fixed_to{i.e["mean"].get<double>(), 3} << " %";
    if (i.e["low"].is_null())
        return out << " (one machine: no interval)";
    return out << " (" << fixed_to{i.e["low"].get<double>(), 3} << " to "
               << fixed_to{i.e["high"].get<double>(), 3} << ")";
}

void tell_windows(std::ostream& out, const json& windows) {
    for (const json& w : windows)
        if (!w["spread"].is_null())
            out << "  over " << std::setw(6) << w["plays"].get<int>() << " plays    spread "
                << fixed_to{w["spread"].get<double>(), 2} << " %, of an unsteered machine "
                << fixed_to{w["unsteered"].get<double>(), 2} << " %\n";
}

void tell_sources(std::ostream& out, const json& sources) {
    for (const json& s : sources)
        if (s["payouts"].get<number>() > 0)
            out << "  " << std::left << std::setw(24) << s["title"].get<std::string>() << std::right
                << std::setw(9) << fixed_to{s["percent"].get<double>(), 3} << " %   one play in "
                << fixed_to{s["plays_each"].get<double>(), 0} << '\n';
}

} // namespace

std::string told(const result& r) {
    const json all = json::parse(result_text(r.t, r.machines, r.part));
    const json& f = all["figures"];
    std::ostringstream out;
    out << all["policy"].get<std::string>() << ": " << r.machines.size() << " machines, "
        << all["plays_in_all"].get<number>() << " plays";
    if (r.part.of > 1)
        out << " (share " << r.part.shard << " of " << r.part.of << ")";
    out << "\n  return to player     " << interval{all["return"]} << "\n  the machine's own    "
        << interval{f["own"]} << "\n  plays that pay       " << interval{f["hit_rate"]}
        << "\n  volatility           " << fixed_to{f["volatility"].get<double>(), 2}
        << " stakes a play\n  longest dry run      " << f["longest_dry_run"].get<number>()
        << " plays\n  machine time         " << fixed_to{f["seconds_per_play"].get<double>(), 2}
        << " s a play\n";
    tell_windows(out, f["windows"]);
    tell_sources(out, f["sources"]);
    return out.str();
}

} // namespace hustle::lab
