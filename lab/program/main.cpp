// hustlelab: plays the real machine by the million and tells what it pays.
#include "lab/policies.h"
#include "lab/program/merge.h"
#include "lab/program/report.h"
#include "lab/program/run.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace {

using namespace hustle::lab;

std::string policy_help() {
    std::string text = "Who plays:";
    for (const policy_row& p : policies())
        text.append("\n").append(p.name).append(": ").append(p.text);
    return text;
}

// "2/8": share 2 of 8.
void read_shard(const std::string& text, run_options& o) {
    int shard = 0, of = 0, end = 0;
    if (std::sscanf(text.c_str(), "%d/%d%n", &shard, &of, &end) != 2 ||
        end != static_cast<int>(text.size()) || of < 1 || of > most_machines || shard < 1 || shard > of)
        throw CLI::ValidationError("--shard", "'" + text + "' is no share like 2/8");
    o.part = {shard, of};
}

std::uint64_t seed_from(const std::string& text) {
    try {
        return read_seed(text);
    } catch (const file_error& e) {
        throw CLI::ValidationError("--seed", "'" + text + "': " + e.what());
    }
}

// A file that is there is written over on request alone.
void want_free(const std::string& name, bool replace) {
    if (!replace && !name.empty() && is_there(name))
        throw file_error(name + ": is there already: --replace writes it anew; nothing was done");
}

void add_run(CLI::App& app, run_options& o, std::string& policy, std::string& shard, std::string& seed) {
    CLI::App* run = app.add_subcommand("run", "Play machines and count what they pay");
    std::vector<std::string> names;
    for (const policy_row& p : policies())
        names.emplace_back(p.name);
    run->add_option("--policy", policy, policy_help())->check(CLI::IsMember(names))->capture_default_str();
    run->add_option("--machines", o.t.machines, "Independent machines")
        ->check(CLI::Range(1, most_machines))
        ->capture_default_str();
    run->add_option("--plays", o.t.plays, "Plays on each machine")
        ->check(CLI::Range(std::uint64_t{1}, std::uint64_t{10'000'000'000}))
        ->capture_default_str();
    run->add_option("--warmup", o.t.warmup, "Plays on each machine before these that are left out")
        ->check(CLI::Range(std::uint64_t{0}, std::uint64_t{10'000'000'000}))
        ->capture_default_str();
    run->add_option("--seed", seed, "The seed of the whole run: 0 to 2^64 - 1")->capture_default_str();
    run->add_option("--threads", o.threads, "Threads; 0 for one on each core")
        ->check(CLI::Range(0, 1024))
        ->capture_default_str();
    run->add_option("--reaction", o.t.reaction, "Milliseconds from the player's sight to his press")
        ->check(CLI::Range(0, 10'000))
        ->capture_default_str();
    run->add_option("--rung", o.t.rung, "Rung of the cash ladder at which a gambler collects")
        ->check(CLI::Range(1, 10))
        ->capture_default_str();
    run->add_option("--patience", o.t.patience,
                    "Minutes of machine time without a new play that end a machine")
        ->check(CLI::Range(5, 100'000))
        ->capture_default_str();
    run->add_option("--moneyin", o.t.moneyin, "Pounds in the machine's money-in ledger at the start")
        ->check(CLI::Range(1, 10'000'000))
        ->capture_default_str();
    run->add_option("--moneyout", o.t.moneyout, "Pounds in its money-out ledger at the start")
        ->check(CLI::Range(1, 10'000'000))
        ->capture_default_str();
    run->add_option("--shard", shard, "Play one share of the machines: 2/8 is the second of eight");
    CLI::Option* out = run->add_option("--out", o.out, "Result as JSON; the machines as CSV stand beside it");
    CLI::Option* resume =
        run->add_flag("--resume", o.resume, "Go on from the whole machines in the result file")->needs(out);
    run->add_flag("--replace", o.replace, "Play anew where the result file is there already")
        ->needs(out)
        ->excludes(resume);
}

// Figures that could not be told, to a full disk or to nobody, are no success.
int outcome(int status) {
    if (std::cout.good())
        return status;
    std::cerr << "hustlelab: the standard output cannot be written\n";
    return status == 0 ? 1 : status;
}

} // namespace

int main(int count, char** words) {
    CLI::App app{"Plays the machine by the million and tells what it pays."};
    app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast); // the last word counts
    app.require_subcommand(1);
    app.set_version_flag("--version", std::string("hustlelab ") + HUSTLE_VERSION);
    run_options o;
    std::string policy = "starter", shard, seed = "1", merged_name, page_name;
    bool replace = false;
    std::vector<std::string> shares, results;
    add_run(app, o, policy, shard, seed);
    CLI::App* merge = app.add_subcommand("merge", "Join the shares of a run into the bytes of one run");
    merge->add_option("FILE", shares, "The shares' result files")->required();
    merge->add_option("--out", merged_name, "The whole run")->required();
    merge->add_flag("--replace", replace, "Write anew what is there already");
    CLI::App* report = app.add_subcommand("report", "Write a page with charts and tables");
    report->add_option("FILE", results, "Result files, shown side by side")->required();
    report->add_option("--out", page_name, "The page; standard output unless told");
    report->add_flag("--replace", replace, "Write anew what is there already");
    try {
        app.parse(count, words);
        o.t.policy = find_policy(policy);
        o.t.seed = seed_from(seed);
        if (!shard.empty())
            read_shard(shard, o);
    } catch (const CLI::ParseError& e) {
        return app.exit(e) == 0 ? 0 : 2;
    }
    try {
        if (app.got_subcommand("run"))
            return outcome(run(o));
        if (app.got_subcommand(merge)) {
            want_free(merged_name, replace);
            want_free(csv_name(merged_name), replace);
            const result whole = merged(shares);
            save(whole, merged_name);
            std::cout << told(whole) << std::flush;
            return outcome(0);
        }
        want_free(page_name, replace);
        std::vector<result> all;
        all.reserve(results.size());
        for (const std::string& name : results)
            all.push_back(read_result(read_file(name), name));
        const std::string page = page_of(all);
        if (page_name.empty())
            std::cout << page << std::flush;
        else
            write_file(page_name, page);
        return outcome(0);
    } catch (const std::exception& e) {
        std::cerr << "hustlelab: " << e.what() << '\n';
        return 1;
    }
}
