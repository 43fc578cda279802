// The pictures of a guide: machines of their own, played up to the moment that the picture shows and
// drawn as the page draws the cabinet, so that they are sharp at any size and weigh nothing.

import { makeScreen } from "./view.js";

const mute = {
  play() {}, midi() {}, browse() {}, exit() {},
  box: () => 1, wait: () => 0, write: () => true, setAside: () => 0, systemInfo: () => 0,
  currency: () => "", timeOfDay: () => 0,
};
const noon = 43200000; // ms since midnight

// The commands of a script that a picture needs.
function play(machine, script) {
  const { x, sheet } = machine;
  const commands = {
    seed: (number) => x.hh_seed(Number(number), 0, 1),
    boot: () => machine.call("hh_boot", noon, 1),
    run: (ms) => machine.call("hh_run", x.hh_now() + Number(ms)),
    press: (name) => machine.call("hh_press", sheet.byName.get(name).id),
  };
  for (const line of script.split("\n")) {
    const [command, given] = line.split(" ");
    if (command in commands) commands[command](given);
  }
  x.hh_take_in(x.hh_now());
  x.hh_advance(x.hh_now());
}

// Fills each node of `body` with `data-shows` (a screen) from the script in it. `make`: a new module
// in the world that it is given.
export async function drawFigures(body, make) {
  for (const node of body.querySelectorAll("[data-shows]")) {
    const machine = await make(mute);
    const script = node.textContent;
    const screen = machine.sheet.screens[machine.sheet.screenId[node.dataset.shows]];
    play(machine, script);
    const view = makeScreen(machine, screen, { press() {}, type() {} });
    view.root.inert = true;
    for (const { node: part } of view.parts.values()) {
      part.dataset.drawn = part.dataset.element; // the name itself belongs to the player's own machine
      delete part.dataset.element;
    }
    node.replaceChildren(view.root);
    view.refreshAll();
    new ResizeObserver(() => {
      if (node.clientWidth > 0) view.placeAll(node.clientWidth / (screen.width / 15), false);
    }).observe(node);
  }
}
