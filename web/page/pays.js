// "What it pays": the lab's own heart plays the machine by the million in a worker, and the charts of
// its report follow while it does. The player's machine stands still meanwhile.
/* global hustleLab */

const reactions = [0, 50, 100, 150, 200, 250, 300, 500, 1000];
const machines = [1, 4, 8, 16, 32, 64];
const plays = [1000, 10000, 100000, 1000000];
const mostShown = 5; // runs side by side
const count = (n) => Math.round(n).toLocaleString("en-GB");

const make = (tag, attributes, ...children) => {
  const node = document.createElement(tag);
  Object.assign(node, attributes);
  node.append(...children);
  return node;
};

// `loadModule` gives the bytes of lab.wasm; `host` is the tab's own part of the page.
export function makePays(host, loadModule) {
  let worker = null;
  let ready = null; // the promise that the worker is
  let policies = [];
  let earlier = []; // results that stay beside the one that is played
  let now = null;
  let running = false;
  let text = "";

  const part = (name, node) => {
    node.dataset.element = `lab.${name}`;
    return node;
  };
  const field = (caption, node, extra = {}) => make("label", extra, make("span", { textContent: caption }), node);
  const choice = (name, values, chosen, told = count) => part(name, make("select", {},
    ...values.map((value) => make("option", { value, textContent: told(value), selected: value === chosen }))));
  const player = part("policy", make("select", {}));
  const what = make("p", { className: "what" });
  const reaction = choice("reaction", reactions, 0, (ms) => (ms === 0 ? "none" : `${ms} ms`));
  const rung = choice("rung", [1, 2, 3, 4, 5, 6, 7, 8, 9, 10], 8);
  const rungField = field("Collects at rung", rung);
  const many = choice("machines", machines, 16);
  const each = choice("plays", plays, 100000);
  const seed = part("seed", make("input", { type: "text", inputMode: "numeric", value: "1", autocomplete: "off",
    required: true, maxLength: 19, pattern: "[0-9]+" }));
  const beside = part("beside", make("input", { type: "checkbox" }));
  const go = part("go", make("button", { type: "submit", textContent: "Play" }));
  const bar = make("progress", { max: 1, value: 0 });
  bar.setAttribute("aria-label", "Plays made");
  const news = part("news", make("output", {}));
  const form = make("form", { className: "labterms" },
    field("Player", player), field("Reaction", reaction), rungField, field("Machines", many),
    field("Plays on each", each), field("Seed", seed),
    field("Keep runs beside each other", beside, { className: "tick" }), go, what, bar, news);
  const charts = part("charts", make("div", { className: "charts" }));
  host.classList.add("lab");
  host.append(
    make("p", { className: "lead", textContent: "The same machine, played by the million: choose who plays, and watch where the return goes. "
      + "It is played here, in this browser; your own machine stands still meanwhile." }), form, charts);

  function tellPlayer() {
    const policy = policies[player.selectedIndex];
    what.textContent = policy ? `${policy[0]}: ${policy[1]}.` : "";
    rungField.hidden = !policy || policy[0] !== "gambler";
  }

  function show() {
    go.textContent = running ? "Stop" : "Play";
    for (const node of [player, reaction, rung, many, each, seed, beside]) node.disabled = running;
    const results = [...earlier, ...(now ? [now] : [])];
    if (results.length > 0 && !host.hidden) hustleLab.show(charts, results);
  }

  function hear({ data }) {
    if (data.refused) {
      running = false;
      news.textContent = "These are no terms of a run.";
      show();
      return;
    }
    running = !data.over;
    text = data.result;
    if (text === "") {
      now = null;
    } else {
      now = { ...JSON.parse(text), running };
      const wanted = now.plays * now.machines;
      bar.value = now.plays_in_all / wanted;
      const rate = now.plays_in_all / Math.max(data.seconds, 0.001);
      const rest = running && rate > 0 ? `, ${count(Math.max(1, data.left / rate))} s left` : "";
      news.textContent = `${count(now.plays_in_all)} of ${count(wanted)} plays, ${count(rate)} a second${rest}`;
      if (data.stuck > 0) news.textContent += `; ${data.stuck} came to a standstill`;
    }
    show();
  }

  function wake() {
    ready ??= (async () => {
      const source = document.querySelector("#labworker").textContent;
      worker = new Worker(URL.createObjectURL(new Blob([source], { type: "text/javascript" })));
      const module = await loadModule();
      const first = new Promise((on, off) => {
        worker.onmessage = on;
        worker.onerror = () => off(new Error("this browser starts no worker here"));
      });
      worker.postMessage({ module }, [module]);
      ({ data: { policies } } = await first);
      worker.onmessage = hear;
      player.replaceChildren(...policies.map(([name], value) => make("option", { value, textContent: name })));
      player.selectedIndex = policies.findIndex(([name]) => name === "holder");
      tellPlayer();
    })();
    return ready;
  }

  player.addEventListener("change", tellPlayer);
  form.addEventListener("submit", (event) => {
    event.preventDefault();
    if (running) {
      worker.postMessage({ stop: true });
      return;
    }
    if (now && beside.checked) earlier = [...earlier, now].slice(1 - mostShown);
    if (!beside.checked) earlier = [];
    running = true;
    now = null;
    bar.value = 0;
    worker.postMessage({ terms: { policy: player.selectedIndex, machines: Number(many.value), plays: Number(each.value),
      seed: BigInt.asUintN(64, BigInt(seed.value)), reaction: Number(reaction.value), rung: Number(rung.value) } });
    show();
  });

  return {
    // The tab is shown.
    async open() {
      try {
        await wake();
        show();
      } catch (error) {
        news.textContent = `The lab could not be started: ${error.message ?? error}`;
        go.disabled = true;
      }
    },
    isRunning: () => running,
    // The result that is shown, as hustlelab writes it without the machines' own records.
    text: () => text,
  };
}
