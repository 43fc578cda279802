#include "lab/figures.h"

#include "lab/policies.h"
#include "lab/statistics.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace hustle::lab {

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr double units_of_pound = 20;

double real(number n) { return static_cast<double>(n); }
double percent(double part, double whole) { return whole > 0 ? 100 * part / whole : none; }
double pounds(number units) { return real(units) / units_of_pound; }

template <class Value> std::vector<double> each(std::span<const record> machines, Value value) {
    std::vector<double> values;
    for (const record& r : machines)
        values.push_back(value(r.counts));
    return values;
}

template <class Part, class Whole> estimate share(std::span<const record> machines, Part part, Whole whole) {
    estimate e = ratio_of(each(machines, part), each(machines, whole));
    return {100 * e.mean, 100 * e.low, 100 * e.high};
}

void write(jsontext& j, const estimate& e) {
    j.open('{');
    j.key("mean"), j.real(e.mean);
    j.key("low"), j.real(e.low);
    j.key("high"), j.real(e.high);
    j.close('}');
}

double play_deviation(const tally& t) { // of what one play pays, in units
    const double n = real(t.plays), mean = real(t.banked) / n;
    return std::sqrt(std::max(0.0, real(t.squares) / n - mean * mean));
}

void open_named(jsontext& j, const named& n) {
    j.open('{');
    j.key("key"), j.text(n.key);
    j.key("title"), j.text(n.title);
}

void write_sources(jsontext& j, const tally& t) {
    j.open('[');
    for (std::size_t i = 0; i < source_count; ++i) {
        open_named(j, name(static_cast<source>(i)));
        j.key("payouts"), j.whole(t.payouts[i]);
        j.key("units"), j.whole(t.paid[i]);
        j.key("percent"), j.real(percent(real(t.paid[i]), real(t.staked)));
        j.key("plays_each"), j.real(t.payouts[i] > 0 ? real(t.plays) / real(t.payouts[i]) : none, 2);
        j.close('}');
    }
    j.close(']');
}

void write_features(jsontext& j, const tally& t) {
    j.open('[');
    for (std::size_t i = 0; i < feature_count; ++i) {
        open_named(j, name(static_cast<feature>(i)));
        j.key("times"), j.whole(t.times[i]);
        j.key("plays_each"), j.real(t.times[i] > 0 ? real(t.plays) / real(t.times[i]) : none, 2);
        j.close('}');
    }
    j.close(']');
}

void write_wins(jsontext& j, const tally& t) {
    j.open('[');
    for (std::size_t i = 0; i < win_bins; ++i) {
        j.open('{');
        j.key("over"), j.real(i == 0 ? none : win_limits[i - 1], 2);
        j.key("upto"), j.real(i < win_limits.size() ? win_limits[i] : none, 2);
        j.key("plays"), j.whole(t.wins[i]);
        j.close('}');
    }
    j.close(']');
}

void write_window(jsontext& j, const tally& t, std::size_t w) {
    const tally::window& window = t.windows[w];
    const double n = real(window.count), stake = real(window_plays[w] * stake_units);
    const auto lost = static_cast<double>(window.lost);
    const double variance = (real(window.lost_squares) - lost * lost / n) / (n - 1);
    j.open('{');
    j.key("plays"), j.whole(window_plays[w]);
    j.key("count"), j.whole(window.count);
    j.key("mean"), j.real(percent(stake - lost / n, stake));
    j.key("spread"), j.real(n > 1 ? percent(std::sqrt(std::max(0.0, variance)), stake) : none);
    j.key("unsteered"), j.real(percent(play_deviation(t) * std::sqrt(real(window_plays[w])), stake));
    j.key("returns"), j.open('[');
    for (std::size_t i = 0; i < window_bins; ++i)
        if (window.returns[i] > 0) {
            j.open('{');
            j.key("from"), j.real(static_cast<double>(i) / 2, 1);
            j.key("count"), j.whole(window.returns[i]);
            j.close('}');
        }
    j.close(']');
    j.close('}');
}

void write_bands(jsontext& j, const tally& t) {
    j.open('[');
    for (std::size_t i = 0; i < band_count; ++i) {
        j.open('{');
        j.key("over"), j.real(i == 0 ? none : double{band_limits[i - 1]}, 1);
        j.key("upto"), j.real(i < band_limits.size() ? double{band_limits[i]} : none, 1);
        j.key("plays"), j.whole(t.band_plays[i]);
        j.key("share"), j.real(percent(real(t.band_plays[i]), real(t.plays)));
        j.key("return"), j.real(percent(real(t.band_paid[i]), real(t.band_plays[i] * stake_units)));
        j.close('}');
    }
    j.close(']');
}

// The middle of the machines at one look: their mean, and what nine in ten of them lie between.
void write_look(jsontext& j, number plays, std::vector<double> values) {
    std::ranges::sort(values);
    const estimate e = mean_of(values);
    j.key("plays"), j.whole(plays);
    j.key("mean"), j.real(e.mean, 3);
    j.key("low"), j.real(e.low, 3);
    j.key("high"), j.real(e.high, 3);
    j.key("least"), j.real(quantile(values, 0.05), 3);
    j.key("most"), j.real(quantile(values, 0.95), 3);
}

void write_way(jsontext& j, std::span<const record> machines) {
    j.open('[');
    for (std::size_t n = 0; n < look_count; ++n) {
        if (machines.empty() ||
            !std::ranges::all_of(machines, [n](const record& r) { return r.counts.look_staked[n] > 0; }))
            break;
        j.open('{');
        write_look(j, look_at(n), each(machines, [n](const tally& t) {
                       return percent(real(t.look_banked[n]), real(t.look_staked[n]));
                   }));
        j.key("own"),
            j.real(mean_of(each(machines, [n](const tally& t) { return real(t.look_own[n]) / 1000; })).mean,
                   3);
        j.close('}');
    }
    j.close(']');
}

void write_home(jsontext& j, std::span<const record> machines) {
    j.open('[');
    for (std::size_t k = 0; k < home_from.size(); ++k) {
        j.open('{');
        j.key("from"), j.whole(static_cast<number>(home_from[k]));
        j.key("way"), j.open('[');
        for (std::size_t n = 0; n < home_looks; ++n) {
            if (machines.empty() ||
                !std::ranges::all_of(machines, [&](const record& r) { return r.counts.home_own[k][n] > 0; }))
                break;
            j.open('{');
            write_look(j, look_at(n),
                       each(machines, [&](const tally& t) { return real(t.home_own[k][n]) / 1000; }));
            j.close('}');
        }
        j.close(']');
        j.close('}');
    }
    j.close(']');
}

} // namespace

tally sum_of(std::span<const record> machines) {
    tally sum;
    for (const record& r : machines) {
        std::vector<std::span<const number>> parts;
        each_count(r.counts, [&](std::string_view, auto values) {
            parts.emplace_back(reinterpret_cast<const number*>(values.data()), values.size());
        });
        std::size_t next = 0;
        each_count(sum, [&](std::string_view key, auto values) {
            for (std::size_t i = 0; i < values.size(); ++i) {
                const auto part = static_cast<std::decay_t<decltype(values[i])>>(parts[next][i]);
                values[i] = key == "dry" ? std::max(values[i], part) : values[i] + part;
            }
            ++next;
        });
    }
    return sum;
}

int machines_in(const terms& t, share_of_run share) {
    return t.machines < share.shard ? 0 : (t.machines - share.shard) / share.of + 1;
}

void write_head(jsontext& j, const terms& t, std::span<const record> machines, share_of_run part) {
    const tally sum = sum_of(machines);
    j.key("format"), j.text("hustlelab"), j.key("version"), j.whole(file_version), j.line();
    j.key("policy"), j.text(policies()[static_cast<std::size_t>(t.policy)].name), j.line();
    j.key("machines"), j.whole(static_cast<number>(t.machines)), j.line();
    j.key("plays"), j.whole(t.plays), j.line();
    j.key("seconds"), j.real(real(sum.ms) / 1000, 3), j.line();
    j.key("return"),
        write(j, share(
                     machines, [](const tally& m) { return real(m.banked); },
                     [](const tally& m) { return real(m.staked); })),
        j.line();
    j.key("complete"), j.truth(sum.plays == t.plays * static_cast<number>(machines_in(t, part))), j.line();
    j.key("plays_in_all"), j.whole(sum.plays), j.line();
    j.key("terms"), j.open('{');
    j.key("seed"), j.text(std::to_string(t.seed));
    j.key("warmup"), j.whole(t.warmup);
    j.key("reaction"), j.whole(static_cast<number>(t.reaction));
    j.key("rung"), j.whole(static_cast<number>(t.rung));
    j.key("patience"), j.whole(static_cast<number>(t.patience));
    j.key("moneyin"), j.whole(static_cast<number>(t.moneyin));
    j.key("moneyout"), j.whole(static_cast<number>(t.moneyout));
    j.close('}'), j.line();
}

void write_figures(jsontext& j, std::span<const record> machines) {
    const tally sum = sum_of(machines);
    j.open('{');
    j.key("staked"), j.real(pounds(sum.staked), 2);
    j.key("banked"), j.real(pounds(sum.banked), 2);
    j.key("own"), write(j, mean_of(each(machines, [](const tally& t) { return real(t.own) / 1000; })));
    j.key("hit_rate"),
        write(j, share(
                     machines, [](const tally& t) { return real(t.hits); },
                     [](const tally& t) { return real(t.plays); })),
        j.line();
    j.key("volatility"), j.real(play_deviation(sum) / real(stake_units));
    j.key("longest_dry_run"), j.whole(sum.dry);
    j.key("seconds_per_play"), j.real(real(sum.ms) / 1000 / real(sum.plays)), j.line();
    j.key("sources"), write_sources(j, sum), j.line();
    j.key("features"), write_features(j, sum), j.line();
    j.key("wins"), write_wins(j, sum), j.line();
    j.key("windows"), j.open('[');
    for (std::size_t w = 0; w < window_plays.size(); ++w)
        write_window(j, sum, w);
    j.close(']'), j.line();
    j.key("bands"), write_bands(j, sum), j.line();
    j.key("way"), write_way(j, machines), j.line();
    j.key("home"), write_home(j, machines);
    j.close('}');
}

void write_share(jsontext& j, share_of_run part) {
    if (part.of > 1)
        j.key("shard"), j.open('['), j.whole(static_cast<number>(part.shard)),
            j.whole(static_cast<number>(part.of)), j.close(']'), j.line();
}

std::string result_text(const terms& t, std::span<const record> machines, share_of_run part) {
    jsontext j;
    j.open('{');
    write_head(j, t, machines, part);
    j.key("machines_played"), j.whole(machines.size()), j.line();
    write_share(j, part);
    j.key("figures"), write_figures(j, machines);
    j.close('}');
    return j.out;
}

} // namespace hustle::lab
