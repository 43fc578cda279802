// The charts of the lab: hustleLab.show(root, results) fills an element with what a list of results
// tells (each as hustlelab writes it, the machines' own records not needed; `running` true in one that
// is still played). Called again it shows the new figures in the old ones' place. Plain SVG, drawn for
// the width that there is, with a table under each chart. The report of hustlelab and the page share it.
const hustleLab = (() => {
    "use strict";

    const space = "http://www.w3.org/2000/svg";
    let ids = 0;

    // Elements.
    const fill = (node, attributes, children) => {
        for (const [name, value] of Object.entries(attributes)) {
            if (name === "style")
                node.style.cssText = value; // a page may forbid the attribute
            else
                node.setAttribute(name, value);
        }
        node.append(...children.filter((c) => c !== null && c !== undefined));
        return node;
    };
    const html = (name, attributes = {}, ...children) => fill(document.createElement(name), attributes, children);
    const svg = (name, attributes = {}, ...children) =>
        fill(document.createElementNS(space, name), attributes, children);
    const label = (x, y, text, attributes = {}) => svg("text", {x, y, ...attributes}, text);

    // Figures.
    const count = (n) => Number(n).toLocaleString("en-GB");
    const short = (n) => n >= 1e9 ? n / 1e9 + "bn" : n >= 1e6 ? n / 1e6 + "m" : n >= 1e3 ? n / 1e3 + "k" : String(n);
    const fixed = (n, digits = 2) => n === null || n === undefined || Number.isNaN(n) ? "–" : n.toFixed(digits);
    const percent = (n, digits = 2) => n === null || n === undefined ? "–" : fixed(n, digits) + " %";
    const interval = (e, digits = 2) => e.low === null ? percent(e.mean, digits)
        : `${percent(e.mean, digits)}\n(${fixed(e.low, digits)} to ${fixed(e.high, digits)})`;
    const pounds = (n) => "£" + n.toFixed(2);
    const seconds = (s) => s < 60 ? fixed(s, 1) + " s" : s < 3600 ? fixed(s / 60, 1) + " min" : s < 172800
        ? fixed(s / 3600, 1) + " h" : count(Math.round(s / 86400)) + " days";

    // How a result is called: its policy, and what sets it apart from the others of that policy beside it.
    const marks = [["rung", (v) => `rung ${v}`], ["moneyin", (v) => `£${v} in`], ["moneyout", (v) => `£${v} out`],
        ["warmup", (v) => `after ${count(v)} plays`], ["seed", (v) => `seed ${v}`]];
    let beside = [];
    const nameOf = (r) => {
        const others = beside.filter((o) => o.policy === r.policy && o.terms.reaction === r.terms.reaction);
        return [r.policy, ...r.terms.reaction > 0 ? [`${r.terms.reaction} ms`] : [],
            ...marks.filter(([key]) => others.some((o) => o.terms[key] !== r.terms[key])).map(([key, told]) => told(r.terms[key])),
            ...r.shard ? [`share ${r.shard[0]} of ${r.shard[1]}`] : []].join(", ");
    };
    const colourOf = (i) => `var(--lab-${i % 6})`;

    // Scales.
    const linear = (from, to, low, high) => (v) => low + (v - from) / (to - from || 1) * (high - low);
    const logarithmic = (from, to, low, high) => {
        const inner = linear(Math.log10(from), Math.log10(to), low, high);
        return (v) => inner(Math.log10(v));
    };
    const niceTicks = (from, to, wanted) => {
        const rough = (to - from) / wanted, power = 10 ** Math.floor(Math.log10(rough));
        const step = [1, 2, 5, 10].map((m) => m * power).find((s) => s >= rough);
        const ticks = [];
        for (let v = Math.ceil(from / step) * step; v <= to + step / 1e6; v += step)
            ticks.push(Math.round(v * 1e6) / 1e6);
        return ticks;
    };
    const decades = (from, to) => {
        const ticks = [];
        for (let v = 10 ** Math.ceil(Math.log10(from)); v <= to; v *= 10)
            ticks.push(v);
        return ticks;
    };

    // A drawing with its two axes. `yTicks` and `xTicks` are values; the plot lies between the margins.
    const plot = (width, height, margin, title) => {
        const id = "lab-title-" + ++ids;
        const root = svg("svg", {viewBox: `0 0 ${width} ${height}`, width, height, role: "img", "aria-labelledby": id},
            svg("title", {id}, title));
        return {root, width, height, left: margin.left, right: width - margin.right, top: margin.top,
            bottom: height - margin.bottom};
    };
    const yAxis = (p, y, ticks, unit, name) => {
        for (const t of ticks)
            p.root.append(svg("line", {class: "grid", x1: p.left, x2: p.right, y1: y(t), y2: y(t)}),
                label(p.left - 6, y(t) + 4, t + unit, {"text-anchor": "end"}));
        p.root.append(label(4, p.top - 10, name, {class: "axis"}));
    };
    const xAxis = (p, x, ticks, form, name) => {
        for (const t of ticks)
            p.root.append(svg("line", {class: "tick", x1: x(t), x2: x(t), y1: p.bottom, y2: p.bottom + 5}),
                label(x(t), p.bottom + 18, form(t), {"text-anchor": "middle"}));
        p.root.append(svg("line", {class: "base", x1: p.left, x2: p.right, y1: p.bottom, y2: p.bottom}),
            label(p.right, p.bottom + 36, name, {class: "axis", "text-anchor": "end"}));
    };
    const path = (points) => points.map(([x, y], i) => (i ? "L" : "M") + x.toFixed(1) + " " + y.toFixed(1)).join("");
    const bandPath = (above, below) => path(above) + path([...below].reverse()).replace("M", "L") + "Z";

    // A line with its band and a dot for each look.
    const drawWay = (p, x, y, looks, i, tip) => {
        const at = (key) => looks.map((l) => [x(l.plays), y(l[key])]);
        p.root.append(svg("path", {class: "band", d: bandPath(at("most"), at("least")), fill: colourOf(i)}),
            svg("path", {class: "line dash" + i % 6, d: path(at("mean")), stroke: colourOf(i)}));
        for (const l of looks)
            p.root.append(svg("circle", {class: "dot", cx: x(l.plays), cy: y(l.mean), r: 7, fill: colourOf(i),
                "data-tip": tip(l)}));
    };
    const legend = (results) => results.length < 2 ? null : html("p", {class: "legend"},
        ...results.map((r, i) => html("span", {}, html("i", {style: `background:${colourOf(i)}`}), nameOf(r))));

    const table = (caption, heads, rows) => html("details", {class: "table"}, html("summary", {}, "The figures as a table"),
        html("div", {class: "scroll", tabindex: "0"}, html("table", {}, html("caption", {}, caption),
            html("thead", {}, html("tr", {}, ...heads.map((h) => html("th", {scope: "col"}, h)))),
            html("tbody", {}, ...rows.map((row) => html("tr", {}, ...row.map((cell, i) =>
                i === 0 ? html("th", {scope: "row"}, cell) : html("td", {}, cell))))))));

    // A chart: heading, words, a drawing that is made anew for each width, a table.
    const charts = [];
    const figure = (root, title, words, draw, below) => {
        const stage = html("div", {class: "stage"});
        root.append(html("figure", {}, html("figcaption", {}, html("h2", {}, title), html("p", {}, words)), stage, ...below));
        charts.push(() => {
            const width = Math.max(280, Math.min(900, Math.floor(stage.clientWidth || 700)));
            stage.replaceChildren(...[draw(width)].flat().filter((d) => d !== null));
        });
    };

    const summary = (root, results) => {
        const rows = results.map((r) => [nameOf(r), count(r.plays_in_all), count(r.machines_played), interval(r.return),
            interval(r.figures.own), interval(r.figures.hit_rate), fixed(r.figures.volatility), count(r.figures.longest_dry_run),
            fixed(r.figures.seconds_per_play) + " s", seconds(r.seconds)]);
        const made = table("Percentages with their 95 % intervals from the spread between machines",
            ["Player", "Plays", "Machines", "Return to player", "Machine's own", "Plays that pay", "Volatility (stakes)",
                "Longest dry run (plays)", "Time a play", "Machine time"], rows);
        made.open = true;
        root.append(html("section", {}, ...results.filter((r) => !r.complete && !r.running).map((r) =>
            html("p", {class: "warning"}, `The run of ${nameOf(r)} was broken off: these are the plays until then.`)), made));
    };

    const returnOverPlays = (root, results) => {
        const draw = (width) => {
            const p = plot(width, 360, {left: 52, right: 20, top: 28, bottom: 48}, "Return to player over plays");
            const looks = results.flatMap((r) => r.figures.way.filter((l) => l.plays >= 100));
            if (looks.length === 0)
                return html("p", {}, "Too few plays for a curve: 100 at least.");
            const most = Math.max(...looks.map((l) => l.most)) * 1.05, last = Math.max(...looks.map((l) => l.plays), 200);
            const x = logarithmic(100, last, p.left, p.right), y = linear(0, most, p.bottom, p.top);
            yAxis(p, y, niceTicks(0, most, 6), " %", "return");
            xAxis(p, x, decades(100, last), short, "plays on each machine");
            results.forEach((r, i) => drawWay(p, x, y, r.figures.way.filter((l) => l.plays >= 100), i, (l) =>
                `${nameOf(r)} after ${count(l.plays)} plays: ${percent(l.mean)} on average, nine machines in ten from ` +
                `${fixed(l.least)} to ${percent(l.most)}`));
            return p.root;
        };
        figure(root, "Return over plays", "What the machines have paid back of the stakes since the first play: the mean, " +
            "and the band in which nine machines in ten lie.", draw, [legend(results), table("Return after so many plays",
            ["Plays", ...results.flatMap((r) => [nameOf(r), "nine in ten"])],
            longest(results, (r) => r.figures.way).map((plays) => [count(plays), ...results.flatMap((r) => {
                const l = r.figures.way.find((w) => w.plays === plays);
                return l ? [percent(l.mean), `${fixed(l.least)} to ${percent(l.most)}`] : ["–", "–"];
            })]))]);
    };
    const longest = (results, looks) =>
        [...new Set(results.flatMap((r) => looks(r).map((l) => l.plays)))].sort((a, b) => a - b);

    const winName = (w) => w.upto === null ? "over " + pounds(w.over) : w.over === null ? "nothing"
        : w.over === 0 ? "up to " + pounds(w.upto) : `over ${pounds(w.over)} to ${pounds(w.upto)}`;
    const winsHistogram = (root, results) => {
        const per = (r, n) => 10000 * r.figures.wins[n].plays / Math.max(r.plays_in_all, 1);
        const bins = results[0].figures.wins.map((_, n) => n).slice(1);
        const draw = (width) => {
            const p = plot(width, 340, {left: 52, right: 8, top: 28, bottom: 48}, "Plays in 10,000 by what they pay");
            const values = results.flatMap((r) => bins.map((n) => per(r, n))).filter((v) => v > 0);
            if (values.length === 0)
                return html("p", {}, "No play has paid anything.");
            const low = 10 ** Math.floor(Math.log10(Math.min(...values))), high = Math.max(...values) * 1.3;
            const y = logarithmic(low, high, p.bottom, p.top), step = (p.right - p.left) / bins.length;
            yAxis(p, y, decades(low, high), "", "plays in 10,000 (each line ten times the one below)");
            const each = step * 0.84 / results.length;
            results.forEach((r, i) => bins.forEach((n, k) => {
                if (per(r, n) <= 0)
                    return;
                p.root.append(svg("rect", {class: "bar", x: p.left + k * step + step * 0.08 + i * each, width: Math.max(each - 1, 1),
                    y: y(per(r, n)), height: Math.max(p.bottom - y(per(r, n)), 1), fill: colourOf(i),
                    "data-tip": `${nameOf(r)}: ${winName(r.figures.wins[n])}: ${fixed(per(r, n), 3)} plays in 10,000`}));
            }));
            const every = Math.ceil(38 / step);
            bins.forEach((n, k) => {
                const limit = results[0].figures.wins[n].upto;
                if (k % every === 0)
                    p.root.append(label(p.left + (k + 0.5) * step, p.bottom + 18, limit === null ? "more" : "£" + (limit % 1 ? limit.toFixed(2) : limit),
                        {"text-anchor": "middle"}));
            });
            p.root.append(svg("line", {class: "base", x1: p.left, x2: p.right, y1: p.bottom, y2: p.bottom}),
                label(p.right, p.bottom + 36, "a play pays up to", {class: "axis", "text-anchor": "end"}));
            return p.root;
        };
        figure(root, "What a play pays", "All that a play leads to until the next stake, gambles and repeats included. " +
            "Plays that pay nothing stand in the table only.", draw, [legend(results), table("Plays in 10,000",
            ["A play pays", ...results.map(nameOf)], results[0].figures.wins.map((w, n) =>
                [winName(w), ...results.map((r) => fixed(per(r, n), 3))]))]);
    };

    // The sources by kind: a hue each, its members from strong to light.
    const kinds = [["Lines", ["line", "nudged_line", "promised_line"]], ["Gamble", ["gamble"]],
        ["Ladders", ["cash", "shots"]],
        ["Awards", ["seven_spinner", "creepy_cash", "fast_cash", "reel_skill", "on_the_run", "win_spins", "super_creepy",
            "run_for_it", "in_a_spin", "spin_a_win"]],
        ["Jackpots", ["jackpot_line", "jackpot_gamble", "jackpot_board"]], ["Again", ["repeat", "streak", "unknown"]]];
    const sourcesBar = (root, results) => {
        const draw = (width) => {
            const row = 62, p = plot(width, 40 + results.length * row, {left: 14, right: 20, top: 8, bottom: 40},
                "The return by source, one bar for each player");
            const most = Math.max(...results.map((r) => r.return.mean), 1) * 1.02, x = linear(0, most, p.left, p.right);
            xAxis(p, x, niceTicks(0, most, width < 500 ? 4 : 8), (t) => t + " %", "of the stakes");
            results.forEach((r, i) => {
                let at = 0;
                const paleFrom = 0.75; // an ink for the paper is read below it
                p.root.append(label(p.left, p.top + i * row + 14, `${nameOf(r)}: ${percent(r.return.mean)}`, {class: "rowname"}));
                kinds.forEach(([kind, keys], k) => keys.forEach((key, n) => {
                    const s = r.figures.sources.find((f) => f.key === key);
                    if (!s || s.percent <= 0)
                        return;
                    const left = x(at), w = x(at + s.percent) - left;
                    at += s.percent;
                    const full = 1 - 0.55 * n / Math.max(keys.length - 1, 1);
                    p.root.append(svg("rect", {class: "bar", x: left, width: Math.max(w - 0.7, 0.5), y: p.top + i * row + 20,
                        height: 26, fill: colourOf(k), "fill-opacity": full,
                        "data-tip": `${nameOf(r)}: ${s.title} ${percent(s.percent)} of the stakes, one play in ${fixed(s.plays_each, 0)}`}));
                    if (w > s.title.length * 6.2 + 8)
                        p.root.append(label(left + 5, p.top + i * row + 37, s.title, {class: full < paleFrom ? "inbar pale" : "inbar"}));
                }));
            });
            return p.root;
        };
        const keys = results[0].figures.sources.map((s) => s.key);
        figure(root, "Where the return comes from", "Every payout belongs to one source, the last way in which it was won; " +
            "the parts add up to the whole exactly. A line that was gambled on and lost has paid nothing.", draw,
        [html("p", {class: "legend"}, ...kinds.map(([kind], k) =>
            html("span", {}, html("i", {style: `background:${colourOf(k)}`}), kind))),
        table("Percent of the stakes, and one payout in so many plays", ["Source", ...results.flatMap((r) => [nameOf(r), "one in"])],
            [...keys.map((key) => [results[0].figures.sources.find((s) => s.key === key).title, ...results.flatMap((r) => {
                const s = r.figures.sources.find((f) => f.key === key);
                return [percent(s.percent, 3), s.plays_each === null ? "–" : count(Math.round(s.plays_each))];
            })]), ["All", ...results.flatMap((r) => [percent(r.return.mean, 3), ""])]])]);
    };

    const normal = (v, mean, spread) => Math.exp(-((v - mean) ** 2) / 2 / spread ** 2) / spread / Math.sqrt(2 * Math.PI);
    const windows = (root, results) => {
        const draw = (whole) => results.flatMap((r, i) => r.figures.windows.filter((w) => w.count >= 2).map((w) => {
            const width = whole < 640 ? whole : Math.floor(whole / 2) - 8; // two side by side where there is room
            const p = plot(width, 240, {left: 46, right: 20, top: 50, bottom: 48},
                `${nameOf(r)}: returns of windows of ${count(w.plays)} plays`);
            const reach = 3.2 * Math.max(w.spread, w.unsteered);
            // Bars of half a percent, or of so many halves that no more than about fifty stand side by side.
            const bar = [0.5, 1, 2, 5, 10].find((b) => 2 * reach / b <= 50) || 20;
            const from = Math.max(0, Math.floor((w.mean - reach) / bar) * bar), to = Math.ceil((w.mean + reach) / bar) * bar;
            const bars = new Map();
            for (const b of w.returns) {
                const left = Math.floor(b.from / bar) * bar;
                bars.set(left, (bars.get(left) || 0) + b.count);
            }
            const share = (n) => 100 * n / w.count, curve = (v) => 100 * bar * normal(v, w.mean, w.unsteered);
            const high = Math.max(...[...bars.values()].map(share), curve(w.mean)) * 1.08;
            const x = linear(from, to, p.left, p.right), y = linear(0, high, p.bottom, p.top);
            yAxis(p, y, niceTicks(0, high, 4), " %", "of the windows");
            xAxis(p, x, niceTicks(from, to, width < 500 ? 4 : 8), (t) => t + " %", "return of the window");
            p.root.append(label(4, 14, `${nameOf(r)}: ${count(w.count)} windows of ${count(w.plays)} plays`, {class: "rowname"}));
            for (const [left, n] of bars)
                if (left >= from && left + bar <= to)
                    p.root.append(svg("rect", {class: "bar", x: x(left), width: Math.max(x(left + bar) - x(left) - 0.5, 0.6),
                        y: y(share(n)), height: p.bottom - y(share(n)), fill: colourOf(i),
                        "data-tip": `${fixed(share(n))} % of the windows return ${left} to ${left + bar} %`}));
            const points = [];
            for (let n = 0; n <= 120; ++n) {
                const v = from + (to - from) * n / 120;
                points.push([x(v), y(curve(v))]);
            }
            p.root.append(svg("path", {class: "unsteered", d: path(points)}));
            return p.root;
        })).concat(results.every((r) => r.figures.windows.every((w) => w.count < 2))
            ? [html("p", {}, "Too few plays for windows: 10,000 on each machine at least.")] : []);
        figure(root, "Steered and unsteered", "The return of windows of plays (bars), beside what a machine with the same mean and " +
            "the same variance of a play would show if its plays did not depend on each other (dashed). " +
            "A narrower hill is the steering at work.", draw,
        [table("Standard deviation of the return of a window", ["Player", "Window", "Windows", "Mean", "Measured", "Unsteered", "Ratio"],
            results.flatMap((r) => r.figures.windows.map((w) => [nameOf(r), count(w.plays), count(w.count), percent(w.mean),
                percent(w.spread), percent(w.unsteered), w.spread === null ? "–" : fixed(w.spread / w.unsteered)])))]);
    };

    const wayHome = (root, results) => {
        const draw = (width) => {
            const p = plot(width, 360, {left: 52, right: 20, top: 28, bottom: 48}, "The payout percentage from 40 and from 120");
            const looks = results.flatMap((r) => r.figures.home.flatMap((h) => h.way));
            if (looks.length === 0)
                return html("p", {}, "No way home has been played.");
            const low = Math.min(40, ...looks.map((l) => l.least)), high = Math.max(120, ...looks.map((l) => l.most)) * 1.03;
            const x = logarithmic(1, Math.max(...looks.map((l) => l.plays), 2), p.left, p.right), y = linear(low, high, p.bottom, p.top);
            yAxis(p, y, niceTicks(low, high, 7), " %", "pcent");
            xAxis(p, x, decades(1, Math.max(...looks.map((l) => l.plays))), short, "plays since");
            results.forEach((r, i) => r.figures.home.forEach((h) => drawWay(p, x, y, h.way, i, (l) =>
                `${nameOf(r)}, from ${h.from}: after ${count(l.plays)} plays ${percent(l.mean)}, nine machines in ten from ` +
                `${fixed(l.least)} to ${percent(l.most)}`)));
            return p.root;
        };
        figure(root, "The way home", "Machines whose ledgers say that they have paid 40 % or 120 % of £100: how their percentage walks " +
            "from there. The mean, and the band in which nine machines in ten lie.", draw, [legend(results),
            table("pcent after so many plays", ["Plays", ...results.flatMap((r) => r.figures.home.map((h) => `${nameOf(r)} from ${h.from}`))],
                longest(results, (r) => r.figures.home.flatMap((h) => h.way)).map((plays) => [count(plays),
                    ...results.flatMap((r) => r.figures.home.map((h) => {
                        const l = h.way.find((w) => w.plays === plays);
                        return l ? percent(l.mean) : "–";
                    }))]))]);
    };

    const bandName = (b) => b.over === null ? "up to " + b.upto : b.upto === null ? "over " + b.over : `${b.over} to ${b.upto}`;
    const bands = (root, results) => {
        const bars = (width, key, title, digits) => {
            const p = plot(width, 250, {left: 52, right: 8, top: 30, bottom: 48}, title);
            const all = results[0].figures.bands, high = Math.max(...results.flatMap((r) => r.figures.bands
                .filter((b) => b.plays >= 100).map((b) => b[key] ?? 0)), 1) * 1.06;
            const y = linear(0, high, p.bottom, p.top), step = (p.right - p.left) / all.length, each = step * 0.84 / results.length;
            yAxis(p, y, niceTicks(0, high, 5), " %", title);
            results.forEach((r, i) => r.figures.bands.forEach((b, k) => {
                if (b.plays >= 100 && b[key] !== null)
                    p.root.append(svg("rect", {class: "bar", x: p.left + k * step + step * 0.08 + i * each, width: Math.max(each - 1, 1),
                        y: y(b[key]), height: p.bottom - y(b[key]), fill: colourOf(i),
                        "data-tip": `${nameOf(r)}, pcent ${bandName(b)}: ${percent(b[key], digits)} (${count(b.plays)} plays)`}));
            }));
            all.forEach((b, k) => p.root.append(label(p.left + (k + 0.5) * step, p.bottom + 18, b.upto === null ? (step < 36 ? "+" : "more")
                : (step < 36 ? "" : "≤") + b.upto, {"text-anchor": "middle"})));
            p.root.append(svg("line", {class: "base", x1: p.left, x2: p.right, y1: p.bottom, y2: p.bottom}),
                label(p.right, p.bottom + 36, "pcent at the stake, up to", {class: "axis", "text-anchor": "end"}));
            return p.root;
        };
        figure(root, "The gates of pcent", "The machine's odds change where its payout percentage crosses a gate. How many plays begin " +
            "in each band between the gates, and what those plays pay. Bands with fewer than 100 plays stand in the table only.",
        (width) => [bars(width, "share", "plays begun here", 3), bars(width, "return", "return of these plays", 2)],
        [legend(results), table("Plays and return by band", ["pcent", ...results.flatMap((r) => [nameOf(r) + ", plays", "return"])],
            results[0].figures.bands.map((b, k) => [bandName(b), ...results.flatMap((r) =>
                [count(r.figures.bands[k].plays), percent(r.figures.bands[k].return)])]))]);
    };

    const features = (root, results) => {
        const made = table("One in so many plays", ["What comes", ...results.map(nameOf)], results[0].figures.features.map((f, n) =>
            [f.title, ...results.map((r) => {
                const each = r.figures.features[n].plays_each;
                return each === null ? "–" : each < 10 ? fixed(each, 2) : count(Math.round(each));
            })]));
        made.open = true;
        root.append(html("section", {}, html("h2", {}, "How often each feature comes"), made));
    };

    const terms = (root, results) => root.append(html("section", {class: "terms"}, html("h2", {}, "The runs"), html("ul", {},
        ...results.map((r) => html("li", {}, `${nameOf(r)}: hustlelab run --policy ${r.policy} --machines ${r.machines} ` +
            `--plays ${r.plays} --seed ${r.terms.seed} --warmup ${r.terms.warmup} --reaction ${r.terms.reaction} --rung ${r.terms.rung} ` +
            `--moneyin ${r.terms.moneyin} --moneyout ${r.terms.moneyout}${r.shard ? ` --shard ${r.shard.join("/")}` : ""}`)))));

    // One small note that follows the pointer.
    const hover = (root) => {
        const note = html("div", {class: "note", hidden: "", "aria-hidden": "true"});
        root.addEventListener("pointermove", (event) => {
            const tip = event.target.getAttribute && event.target.getAttribute("data-tip");
            note.hidden = !tip;
            if (!tip)
                return;
            note.textContent = tip;
            const room = document.documentElement.clientWidth - note.offsetWidth - 8;
            note.style.left = Math.max(8, Math.min(event.clientX + 14, room)) + "px";
            note.style.top = event.clientY + 18 + "px";
        });
        root.addEventListener("pointerleave", () => note.hidden = true);
        return note;
    };

    // What stays with an element from its first show on.
    const shown = new WeakMap();
    const hold = (root) => {
        const held = {note: hover(root), drawn: 0, charts: []};
        held.draw = () => {
            held.drawn = root.clientWidth;
            for (const chart of held.charts)
                chart();
        };
        new ResizeObserver(() => root.clientWidth !== held.drawn && held.draw()).observe(root);
        const opened = [];
        addEventListener("beforeprint", () => root.querySelectorAll("details:not([open])").forEach((d) => {
            d.open = true;
            opened.push(d);
        }));
        addEventListener("afterprint", () => opened.splice(0).forEach((d) => d.open = false));
        shown.set(root, held);
        return held;
    };

    const show = (root, results) => {
        const held = shown.get(root) ?? hold(root), high = root.offsetHeight;
        const open = [...root.querySelectorAll("details")].map((d) => d.open);
        root.style.minHeight = high + "px"; // what stands below keeps its place meanwhile
        charts.length = 0;
        beside = results;
        root.replaceChildren(html("h1", {}, "What the machine pays"));
        summary(root, results);
        for (const part of [returnOverPlays, sourcesBar, winsHistogram, windows, wayHome, bands, features, terms])
            part(root, results);
        held.charts = [...charts];
        root.append(held.note);
        root.querySelectorAll("details").forEach((d, n) => d.open = open[n] ?? d.open);
        held.draw();
        root.style.minHeight = "";
    };

    return {show};
})();
