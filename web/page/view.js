// The screens as elements of the page. Each element of the sheet is one node that carries its name
// in `data-element`; it is drawn anew only when the machine has touched it.

import { artUrl, lampUrl } from "./pictures.js";
import { drawLine } from "./lines.js";

const twips = 15;
const standsStill = 500; // ms that a name must stand before it is told
const pressable = new Set(["button", "clicked", "push"]);
// The height of each screen's stage without its bar of buttons, in panel pixels.
const barTops = { main: 456, feature: 496 };

const make = (tag, className) => {
  const node = document.createElement(tag);
  node.className = className;
  return node;
};

function nodeFor(e) {
  if (pressable.has(e.kind)) {
    const button = make("button", `el ${e.kind}`);
    button.type = "button";
    if (e.kind !== "push") button.append(picture());
    else button.append(make("span", "cap"));
    return button;
  }
  if (e.kind === "picture") {
    const image = picture();
    image.classList.add("el");
    return image;
  }
  if (e.kind === "line") {
    const canvas = make("canvas", "el line");
    canvas.setAttribute("role", "img");
    return canvas;
  }
  if (e.kind === "textbox") {
    if (e.full !== "Entername.Text1") return make("output", "el field");
    const input = make("input", "el field");
    input.type = "text";
    input.autocomplete = "off";
    input.spellcheck = false;
    input.setAttribute("aria-label", "Your name");
    return input;
  }
  if (!e.lamp) return make("div", `el ${e.kind}`);
  const lamp = make("div", "el lamp");
  lamp.setAttribute("role", "img");
  lamp.append(picture());
  return lamp;
}

function picture() {
  const image = make("img", "art");
  image.alt = "";
  image.draggable = false;
  image.decoding = "sync";
  return image;
}

// One screen: its nodes, and where they stand at a scale.
export function makeScreen(machine, screen, { press, type }) {
  const { x, sheet } = machine;
  const root = make("section", "screen");
  root.dataset.screen = screen.name;
  const stage = make("div", "stage");
  const deck = make("div", "deck");
  root.append(stage, deck);
  const barTop = barTops[screen.name];
  const parts = new Map();

  for (const e of sheet.elements) {
    if (e.screen !== screen.id || e.kind === "entry") continue;
    const node = nodeFor(e);
    node.dataset.element = e.full;
    const part = { e, node, named: null, timer: 0 };
    parts.set(e.id, part);
    const onDeck = barTop !== undefined && e.kind === "button";
    (onDeck ? deck : stage).append(node);
    if (pressable.has(e.kind)) wire(part);
    if (node.tagName === "INPUT") node.addEventListener("input", () => type(e.id, node.value));
  }

  // A button acts when the mouse or a finger goes down; a picture to be clicked when it is let go.
  function wire({ e, node }) {
    const atOnce = e.kind === "button";
    node.addEventListener("pointerdown", (event) => {
      if (!atOnce && event.button !== 0) return;
      if (node.getAttribute("aria-disabled") !== "true") node.classList.add("down");
      if (atOnce) press(e.id);
    });
    for (const end of ["pointerup", "pointercancel", "pointerleave"])
      node.addEventListener(end, () => node.classList.remove("down"));
    node.addEventListener("click", (event) => {
      // A click that no pointer made: Enter, or a screen reader.
      if (!atOnce || event.detail === 0) press(e.id);
    });
    if (atOnce) node.addEventListener("contextmenu", (event) => event.preventDefault());
  }

  function showLook(part) {
    const { e, node } = part;
    const look = machine.look(e.id);
    node.classList.toggle("hidden", look.visible === 0);
    if (pressable.has(e.kind)) node.setAttribute("aria-disabled", String(look.enabled === 0));
    if (look.top !== part.top) {
      part.top = look.top;
      if (part.place) part.place();
    }
    if (look.visible === 0) return;
    const caption = ["label", "line", "textbox", "push"].includes(e.kind)
      ? machine.text(x.hh_caption(e.id)) : "";
    if (e.kind === "line") showLine(part, look, caption);
    else if (e.lamp) showLamp(part, look, caption);
    else if (e.kind === "push") node.firstChild.textContent = caption.replace("&", "");
    else if (node.tagName === "INPUT") node.value = node.value === caption ? node.value : caption;
    else if (e.kind === "textbox" || e.kind === "label") node.textContent = caption;
    else showArt(node.tagName === "IMG" ? node : node.firstChild, artUrl(machine, look.art));
  }

  function showArt(image, url) {
    image.classList.toggle("blank", url === "");
    if (url !== "" && image.src !== url) image.src = url;
  }

  function showLamp(part, look, caption) {
    part.node.classList.toggle("lit", look.lit === 1);
    showArt(part.node.firstChild, lampUrl(machine, part.e, look, caption));
  }

  function showLine(part, look, caption) {
    const run = part.e.name === "shotbox" ? "middle" : part.run ?? 0; // a number, always in the middle
    const key = `${caption}|${look.dots}|${look.flash}|${run}`;
    if (part.drawn === key || !part.node.width) return;
    part.drawn = key;
    drawLine(machine, part.node, caption, look.dots, look.flash === 1, run);
  }

  // Names follow the panel once it has stood still for a moment: the dark frame of a flashing text
  // is no change.
  function speak(part) {
    const name = machine.text(x.hh_spoken(part.e.id));
    if (name === part.coming) return;
    part.coming = name;
    clearTimeout(part.timer);
    if (part.named === null) tellName(part);
    else if (name !== "") part.timer = setTimeout(() => tellName(part), standsStill);
  }
  function tellName(part) {
    part.named = part.coming;
    const { node, e } = part;
    if (e.kind === "picture") node.alt = part.named;
    else if (e.kind === "line" || e.lamp || pressable.has(e.kind)) node.setAttribute("aria-label", part.named);
  }

  let scaleNow = 1;
  function placeAll(scale, withDeck) {
    scaleNow = scale;
    const ratio = window.devicePixelRatio || 1;
    const snap = (length) => Math.round(length * ratio) / ratio;
    const unit = scale / twips;
    const height = withDeck && barTop ? barTop * twips : screen.height;
    root.classList.toggle("decked", withDeck && barTop !== undefined);
    root.style.setProperty("--px", `${scale}px`);
    stage.style.width = `${snap(screen.width * unit)}px`;
    stage.style.height = `${snap(height * unit)}px`;
    for (const part of parts.values()) {
      const { e, node } = part;
      const glow = e.lamp ? sheet.glow * twips : 0;
      part.place = () => {
        const { style } = node;
        style.left = `${snap(e.left * unit)}px`;
        style.top = `${snap((part.top ?? e.top) * unit)}px`;
        style.width = `${Math.max(1 / ratio, snap(e.width * unit))}px`;
        style.height = `${Math.max(1 / ratio, snap(e.height * unit))}px`;
        if (glow > 0) {
          const light = node.firstChild.style;
          light.left = light.top = `${-snap(glow * unit)}px`;
          light.width = `${snap((e.width + 2 * glow) * unit)}px`;
          light.height = `${snap((e.height + 2 * glow) * unit)}px`;
        }
      };
      part.place();
      if (e.kind === "line") {
        node.width = Math.max(1, Math.round(e.width * unit * ratio));
        node.height = Math.max(1, Math.round(e.height * unit * ratio));
        part.drawn = "";
        showLook(part);
      }
    }
  }

  return {
    root, screen, parts, barTop, stage, deck,
    refresh(id) {
      const part = parts.get(id);
      if (!part) return;
      showLook(part);
      speak(part);
    },
    refreshAll() {
      for (const part of parts.values()) {
        showLook(part);
        speak(part);
      }
    },
    placeAll,
    scale: () => scaleNow,
    // The columns of dots that a line has run on to the left.
    runLine(full, columns) {
      const part = parts.get(sheet.byName.get(full).id);
      if ((part.run ?? 0) === columns) return;
      part.run = columns;
      showLook(part);
    },
  };
}
