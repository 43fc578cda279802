// The cabinet on the page: main or the board as large as it fits, the other screens as small
// windows above it. Where the whole cabinet would leave its buttons too small for a thumb, they
// stand on a deck of their own beneath it or beside it.

import { makeScreen } from "./view.js";

const thumb = 44; // CSS pixels
const smallest = 0.9; // the scale below which the smallest button is no thumb's breadth

export function makeCabinet(machine, host, { press, type, close, bringToFront, placed }) {
  const { x, sheet } = machine;
  const { screenId } = sheet;
  const pair = [screenId.main, screenId.feature];
  const views = new Map(); // by screen
  const windows = new Map(); // side screens that stand open: the panel round each
  let onShow = -1;
  let front = -1;
  const room = host.querySelector("#room");
  const side = host.querySelector("#side");

  function view(id) {
    if (!views.has(id)) {
      const made = makeScreen(machine, sheet.screens[id], { press, type });
      views.set(id, made);
    }
    return views.get(id);
  }

  function layoutMain() {
    const shown = views.get(onShow);
    if (!shown) return;
    const width = room.clientWidth;
    const height = room.clientHeight;
    const whole = shown.screen;
    const [w, h] = [whole.width / 15, whole.height / 15];
    const plain = Math.min(width / w, height / h);
    const { barTop } = shown;
    if (barTop === undefined || plain >= smallest) {
      shown.root.classList.remove("beside");
      shown.placeAll(plain, false);
      return;
    }
    // Two rows of keys beneath, or four beside.
    const beneath = Math.min(width / w, (height - 2 * (thumb + 22)) / barTop);
    const column = 3 * (thumb + 14);
    const beside = Math.min((width - column) / w, height / barTop);
    shown.root.classList.toggle("beside", beside > beneath);
    shown.placeAll(Math.max(beneath, beside, 0.1), true);
  }

  function layoutWindow(id) {
    const shown = views.get(id);
    const { width, height } = shown.screen;
    const bar = id === screenId.software ? 0 : 48;
    const most = Math.min((side.clientWidth - 16) / (width / 15), (side.clientHeight - bar - 12) / (height / 15));
    shown.placeAll(Math.max(0.2, Math.min(most, 2, Math.max(1.15, 0.55 * most))), false);
  }

  function openWindow(id) {
    const shown = view(id);
    const { screen } = shown;
    const panel = document.createElement("div");
    panel.className = `window ${screen.name}`;
    panel.setAttribute("role", "dialog");
    if (id !== screenId.software) {
      const bar = document.createElement("div");
      bar.className = "titlebar";
      const title = document.createElement("h2");
      title.id = `title-${screen.name}`;
      panel.setAttribute("aria-labelledby", title.id);
      const shut = document.createElement("button");
      shut.type = "button";
      shut.className = "shut";
      shut.textContent = "✕";
      shut.setAttribute("aria-label", "Close");
      shut.dataset.element = `${screen.name}.close`;
      shut.addEventListener("click", () => close(id));
      bar.append(title, shut);
      panel.append(bar);
    }
    panel.append(shown.root);
    panel.tabIndex = -1;
    panel.addEventListener("pointerdown", () => bringToFront(id), true);
    side.append(panel);
    windows.set(id, panel);
    layoutWindow(id);
    shown.refreshAll();
    const first = panel.querySelector("input") ?? panel;
    first.focus({ preventScroll: true });
    if (first.select) first.select();
  }

  function title(id) {
    return machine.text(x.hh_title(id));
  }

  function showWindows(stack) {
    for (const [id, panel] of windows) {
      if (stack.includes(id)) continue;
      panel.remove();
      windows.delete(id);
      views.delete(id);
    }
    for (const id of stack) {
      if (pair.includes(id)) continue;
      if (!windows.has(id)) openWindow(id);
      const head = windows.get(id).querySelector("h2");
      if (head && head.textContent !== title(id)) head.textContent = title(id);
    }
    const now = stack[stack.length - 1] ?? -1;
    if (now !== front && windows.has(now)) side.append(windows.get(now));
    front = now;
  }

  function showMain(stack) {
    const wanted = x.hh_is_loaded(screenId.feature) && stack.includes(screenId.feature) ? screenId.feature
      : stack.includes(screenId.main) ? screenId.main : -1;
    if (wanted !== -1) {
      const heading = title(wanted);
      if (document.title !== heading && heading !== "") document.title = heading;
    }
    if (wanted === onShow) return;
    onShow = wanted;
    room.replaceChildren();
    if (wanted === -1) return;
    room.append(view(wanted).root);
    layoutMain();
    view(wanted).refreshAll();
  }

  room.addEventListener("pointerdown", () => {
    if (onShow !== -1) bringToFront(onShow);
  }, true);
  const settled = new ResizeObserver(() => {
    layoutMain();
    placed();
    for (const id of windows.keys()) layoutWindow(id);
  });
  settled.observe(room);

  return {
    refresh(changed) {
      const stack = machine.screens();
      showMain(stack);
      showWindows(stack);
      for (const id of changed) views.get(sheet.elements[id].screen)?.refresh(id);
    },
    layout: layoutMain,
    // The screen that keys are meant for.
    keyScreen: () => (windows.has(front) ? front : onShow),
    front: () => front,
    shown: () => onShow,
    view,
  };
}
