// A result as the text of its two files, and back.
#include "lab/program/files.h"

#include "lab/policies.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <cstdio>
#include <sstream>

namespace hustle::lab {

namespace {

using json = nlohmann::json;

constexpr std::string_view seal_key = "\"checksum\":\"";

std::string checksum(std::string_view text) {
    std::uint64_t h = 0xcbf29ce484222325ULL;
    for (const char c : text)
        h = (h ^ static_cast<unsigned char>(c)) * 0x100000001b3ULL;
    char hex[17];
    std::snprintf(hex, sizeof hex, "%016llx", static_cast<unsigned long long>(h));
    return hex;
}

// A long row of counts is written as pairs of place and count, noughts left out.
constexpr std::size_t long_row = 64;

void write_count(jsontext& j, auto value) {
    if constexpr (std::is_signed_v<decltype(value)>)
        j.negative_or_whole(value);
    else
        j.whole(value);
}

void write_record(jsontext& j, const record& r) {
    j.open('{');
    j.key("machine"), j.whole(static_cast<number>(r.machine));
    each_count(r.counts, [&](std::string_view key, auto values) {
        j.key(key);
        if (values.size() == 1) {
            write_count(j, values[0]);
            return;
        }
        j.open('[');
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (values.size() <= long_row) {
                write_count(j, values[i]);
            } else if (values[i] != 0) {
                j.open('['), j.whole(i), write_count(j, values[i]), j.close(']');
            }
        }
        j.close(']');
    });
    j.close('}');
    j.line();
}

void read_record(const json& from, record& r) {
    r.machine = from.at("machine").get<int>();
    each_count(r.counts, [&](std::string_view key, auto values) {
        using value = std::decay_t<decltype(values[0])>;
        const json& row = from.at(std::string(key));
        if (values.size() == 1) {
            values[0] = row.get<value>();
        } else if (values.size() > long_row) {
            for (const json& pair : row) {
                const auto place = pair.at(0).get<std::size_t>();
                if (place >= values.size())
                    throw file_error("a count stands outside its row");
                values[place] = pair.at(1).get<value>();
            }
        } else {
            if (row.size() != values.size())
                throw file_error("a row of counts has another length");
            for (std::size_t i = 0; i < values.size(); ++i)
                values[i] = row.at(i).get<value>();
        }
    });
}

terms read_terms(const json& from) {
    const json& more = from.at("terms");
    terms t;
    t.policy = find_policy(from.at("policy").get<std::string>());
    if (t.policy < 0)
        throw file_error("its policy is not known here");
    t.machines = from.at("machines").get<int>();
    if (t.machines < 1 || t.machines > most_machines)
        throw file_error("it has " + std::to_string(t.machines) + " machines");
    t.plays = from.at("plays").get<std::uint64_t>();
    t.seed = read_seed(more.at("seed").get<std::string>());
    t.warmup = more.at("warmup").get<std::uint64_t>();
    t.reaction = more.at("reaction").get<int>();
    t.rung = more.at("rung").get<int>();
    t.patience = more.at("patience").get<int>();
    t.moneyin = more.at("moneyin").get<int>();
    t.moneyout = more.at("moneyout").get<int>();
    return t;
}

// The machine that was read last is one of the share, and comes after those before it.
void check_machine(const result& r) {
    const int number = r.machines.back().machine;
    const bool in_order = r.machines.size() < 2 || r.machines[r.machines.size() - 2].machine < number;
    if (number < 0 || number >= r.t.machines || number % r.part.of != r.part.shard - 1 || !in_order)
        throw file_error("machine " + std::to_string(number) + " has no place in it");
}

// The bytes before the seal must be those that it was made of.
void check_seal(const std::string& text) {
    const std::size_t at = text.rfind(seal_key);
    if (at == std::string::npos)
        throw file_error("it has no checksum: it is cut short, or not a file of the lab");
    if (text.compare(at + seal_key.size(), 16, checksum(std::string_view(text).substr(0, at))) != 0)
        throw file_error("it is damaged: its checksum does not fit");
}

} // namespace

std::uint64_t read_seed(const std::string& text) {
    std::uint64_t seed = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
    if (error != std::errc{} || end != text.data() + text.size())
        throw file_error("the seed is no whole number from 0 to 18446744073709551615");
    return seed;
}

std::string file_text(const result& r) {
    jsontext j;
    j.open('{');
    j.line();
    write_head(j, r.t, r.machines, r.part);
    write_share(j, r.part);
    j.key("figures"), write_figures(j, r.machines), j.line();
    j.key("records"), j.open('['), j.line();
    for (const record& m : r.machines)
        write_record(j, m);
    j.close(']');
    j.out += ",\n";
    j.out += std::string(seal_key) + checksum(j.out) + "\"}\n";
    return j.out;
}

std::string csv_text(const result& r) {
    std::ostringstream out;
    out << "policy,machine,plays,staked_pounds,banked_pounds,return_percent,own_percent,paying_plays,"
           "longest_dry_run,machine_seconds";
    for (std::size_t i = 0; i < source_count; ++i)
        out << ',' << name(static_cast<source>(i)).key << "_pounds";
    out << '\n';
    const auto amount = [](double value, int decimals) {
        jsontext j;
        j.real(value, decimals);
        return j.out;
    };
    for (const record& m : r.machines) {
        const tally& t = m.counts;
        const auto pounds = [&](number units) {
            return amount(static_cast<double>(units) / units_of_pound, 2);
        };
        out << policies()[static_cast<std::size_t>(r.t.policy)].name << ',' << m.machine << ',' << t.plays
            << ',' << pounds(t.staked) << ',' << pounds(t.banked) << ','
            << (t.staked > 0
                    ? amount(100.0 * static_cast<double>(t.banked) / static_cast<double>(t.staked), 6)
                    : "")
            << ',' << amount(static_cast<double>(t.own) / 1000, 3) << ',' << t.hits << ',' << t.dry << ','
            << amount(static_cast<double>(t.ms) / 1000, 3);
        for (const number units : t.paid)
            out << ',' << pounds(units);
        out << '\n';
    }
    return out.str();
}

result read_result(const std::string& text, const std::string& name) {
    try {
        const json from = json::parse(text);
        if (!from.is_object() || from.value("format", "") != "hustlelab")
            throw file_error("it is not a file of the lab");
        if (from.at("version").get<int>() != file_version)
            throw file_error("it is of version " + from.at("version").dump() +
                             ", and this lab reads version " + std::to_string(file_version));
        check_seal(text);
        result r;
        r.t = read_terms(from);
        if (from.contains("shard")) {
            r.part.shard = from["shard"].at(0).get<int>();
            r.part.of = from["shard"].at(1).get<int>();
        }
        if (r.part.of < 1 || r.part.of > most_machines || r.part.shard < 1 || r.part.shard > r.part.of)
            throw file_error("it is no share of a run");
        for (const json& row : from.at("records")) {
            read_record(row, r.machines.emplace_back());
            check_machine(r);
        }
        return r;
    } catch (const file_error& e) {
        throw file_error(name + ": " + e.what());
    } catch (const json::parse_error&) {
        throw file_error(name + ": it is cut short, or not a file of the lab");
    } catch (const json::exception& e) {
        throw file_error(name + ": it is damaged: " + e.what());
    }
}

} // namespace hustle::lab
