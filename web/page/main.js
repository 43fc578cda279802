// Puts the page together: the address, the store, the module, the cabinet, sound, menus and keys.

import { asset, wavesOf } from "./assets.js";
import { makeCabinet } from "./cabinet.js";
import { makeConsole } from "./console.js";
import { currencyText } from "./currency.js";
import { askYesNo, dialog, tell } from "./dialogs.js";
import { listenForFiles, replaceFiles } from "./exchange.js";
import { drawFigures } from "./figures.js";
import { machineKey } from "./keys.js";
import { startModule } from "./machine.js";
import { makeMenus } from "./menus.js";
import { makeMotion } from "./motion.js";
import { makePays } from "./pays.js";
import { makeAhead } from "./pictures.js";
import { makeSession } from "./session.js";
import { makeSound } from "./sound.js";
import { download, makeStore } from "./store.js";
import { systemText } from "./system.js";
import { takeTurn } from "./turns.js";

const address = new URLSearchParams(window.location.search);
const still = address.has("still");
const seed = address.has("seed") ? BigInt.asUintN(64, BigInt(address.get("seed") || "0")) : null;
const saveEvery = 500; // ms

function clockAtStart() {
  if (address.has("clock")) return Math.round(Number(address.get("clock")) * 1000) % 86400000;
  return still ? 43200000 : timeOfDay();
}

function timeOfDay() {
  const now = new Date();
  return ((now.getHours() * 60 + now.getMinutes()) * 60 + now.getSeconds()) * 1000 + now.getMilliseconds();
}

async function start() {
  let store = null;
  let session = null;
  let cabinet = null;
  let menus = null;
  let machine = null;
  let sound = null;
  let motion = null;

  const world = {
    play: (wave) => sound.play(wave),
    midi: (command) => sound.midi(command),
    box: (title, text, look, asks) => session.hold(asks ? askYesNo(title, text)
      : tell(title, text, ["plain", "warning", "question"][look])).then((yes) => (yes ? 1 : 0)),
    wait: (ms) => (still ? 0 : session.hold(new Promise((on) => setTimeout(() => on(0), ms)), ms)),
    write: (file, text) => store.write(file, text),
    setAside: (file) => store.setAside(file),
    browse: (home) => showGuide(home ? "home" : "help"),
    systemInfo() {
      const body = document.createElement("pre");
      body.textContent = systemText(machine, sound, store);
      dialog({ title: "System", body, buttons: [["ok", "OK", true]] });
      return 1;
    },
    currency: (amount) => (still ? "" : currencyText(amount, navigator.language)),
    exit: () => setTimeout(ended, 0),
    timeOfDay,
  };

  const module = await WebAssembly.compile(await asset("hustle.wasm"));
  machine = await startModule(module, world);
  const { x, sheet } = machine;
  store = makeStore(!still, sheet.files);
  const choices = { volume: 1, mute: false, reduced: null, hints: true, ...store.choices() };
  sound = makeSound(sheet.sounds, async () => wavesOf(await asset("waves.pack")), () => asset("tune.opus"));
  session = makeSession(machine, { still, refresh });
  const send = (name, ...given) => session.send(name, ...given);
  const press = (element) => send("hh_press", element);

  cabinet = makeCabinet(machine, document.body, {
    press,
    type: (element, text) => send("hh_type", element, machine.give(text)),
    close: (screen) => send("hh_close", screen),
    placed: () => motion?.paint(),
    bringToFront(screen) {
      if (cabinet.front() !== screen && !session.isHeld()) send("hh_show", screen);
    },
  });

  const soundOff = sheet.byName.get("main.soundoff").id;
  motion = makeMotion(machine, cabinet, { still, show });
  // The hint names buttons to whoever touches the screen, and keys to all others.
  let touched = matchMedia("(pointer: coarse)").matches;
  function playedBy(touch) {
    if (touch === touched) return;
    touched = touch;
    refresh();
  }
  const hint = document.querySelector("#hint");
  const [bank, words, credits] = hint.children;
  function refresh() {
    motion.takeIn();
    show();
    if (!choices.hints || cabinet.shown() < 0) return;
    setText(bank, machine.text(x.hh_bank_label()));
    setText(words, machine.text(x.hh_hint(touched ? 1 : 0)));
    setText(credits, machine.text(x.hh_credits_label()));
  }
  const setText = (node, text) => {
    if (node.textContent !== text) node.textContent = text;
  };
  function show() {
    const changed = machine.changed();
    cabinet.refresh(changed);
    for (const id of changed) if (menus) menus.refresh(id);
    if (ahead !== null && ahead !== x.hh_dollars()) picturesAhead();
    if (changed.includes(soundOff)) hearIt();
  }
  let ahead = null; // whether the pictures that were made ahead show dollars
  function picturesAhead() {
    ahead = x.hh_dollars();
    makeAhead(machine, 1, sheet.arts.length - 1);
  }
  function hearIt() {
    sound.set({ volume: choices.volume, silent: choices.mute || machine.look(soundOff).checked === 1 });
  }
  function choose(change) {
    Object.assign(choices, change);
    store.choose(choices);
    hearIt();
    follow();
  }
  function follow() {
    x.hh_reduce(choices.reduced ? 1 : 0);
    hint.hidden = !choices.hints;
    refresh();
  }

  // --- files ---

  const kept = [null, null];
  function saveLedgers() {
    if (!store.saves() || still || x.hh_over()) return;
    const text = machine.text(x.hh_file_text(0));
    if (text !== kept[0] && store.write(0, text)) kept[0] = text;
  }
  // The page goes: as a player leaves who closes every window in turn. With a box open the ledgers
  // alone are kept.
  function leave() {
    session.end();
    if (still || !store.saves()) return;
    if (session.isHeld()) {
      saveLedgers();
      return;
    }
    x.hh_answer_by_itself(1);
    for (const name of ["main", "Entername", "Highscore"])
      if (!x.hh_over()) machine.call("hh_close", sheet.screenId[name]);
  }
  const files = {
    machine, store,
    async restart() {
      store.stopSaving();
      window.removeEventListener("pagehide", onHide);
      window.location.reload();
    },
  };
  const downloadFile = (file) => download(sheet.files[file], machine.text(x.hh_file_text(file)));

  // --- menus ---

  const volumes = [["Loud", 1], ["Quieter", 0.5], ["Quiet", 0.2]];
  menus = makeMenus(machine, document.querySelector("#bar"), {
    press,
    own: [
      ["View", [
        ...(document.fullscreenEnabled ? [{ name: "fullscreen", text: "Full Screen",
          checked: () => document.fullscreenElement !== null,
          act: () => (document.fullscreenElement ? document.exitFullscreen()
            : document.documentElement.requestFullscreen()).catch(() => {}) }, null] : []),
        { name: "reduced", text: "Reduced Flashing", checked: () => choices.reduced === true,
          act: () => choose({ reduced: !choices.reduced }) },
        { name: "hints", text: "Hints", checked: () => choices.hints,
          act: () => choose({ hints: !choices.hints }) },
        null,
        ...volumes.map(([text, volume]) => ({ name: text.toLowerCase(), text,
          checked: () => !choices.mute && choices.volume === volume,
          act: () => choose({ volume, mute: false }) })),
        { name: "mute", text: "Mute", checked: () => choices.mute, act: () => choose({ mute: !choices.mute }) },
      ]],
      ["Files", [
        { name: "savegame", text: `Download ${sheet.files[0]}`, act: () => downloadFile(0) },
        { name: "savetable", text: `Download ${sheet.files[1]}`, act: () => downloadFile(1) },
        { name: "session", text: "Download session.txt",
          act: () => download("session.txt", machine.text(x.hh_record())) },
        null,
        { name: "open", text: "Take files from a disk…", act: () => document.querySelector("#files").click() },
      ]],
    ],
  });
  listenForFiles((list) => replaceFiles(files, list));

  // --- what it pays: another room of the page, while the machine stands still ---

  const paysRoom = document.querySelector("#pays");
  const pays = makePays(paysRoom, () => asset("lab.wasm"));
  const tab = menus.addTab("What it pays", "page.pays", () => {
    paysRoom.hidden = !paysRoom.hidden;
    const open = !paysRoom.hidden;
    document.body.classList.toggle("atlab", open);
    tab.setAttribute("aria-pressed", String(open));
    tab.firstChild.textContent = open ? "Back to the machine" : "What it pays";
    standOrGoOn();
    if (open) pays.open();
  });
  const unseen = () => document.hidden || !paysRoom.hidden;
  function standOrGoOn() {
    if (still) return;
    session.hide(unseen());
    sound.hide(unseen());
    if (unseen()) saveLedgers();
  }

  // --- the player's hands ---

  window.addEventListener("pointerdown", (event) => {
    sound.wake();
    playedBy(event.pointerType === "touch");
  }, true);
  window.addEventListener("keydown", (event) => {
    sound.wake();
    if (event.target.tagName !== "INPUT") playedBy(false); // a name may be typed on the screen
    if (document.querySelector("dialog[open]") || !paysRoom.hidden) return;
    const screen = cabinet.keyScreen();
    const onButton = document.activeElement?.closest("button");
    const writing = document.activeElement?.tagName === "INPUT";
    const side = screen !== cabinet.shown();
    if (event.key === "Escape" && side && screen !== sheet.screenId.Entername) {
      send("hh_close", screen);
      return;
    }
    if (event.key === "Enter" && (onButton || event.repeat)) return;
    if (writing && event.key !== "Enter") return;
    if (side && onButton && event.key === " ") return;
    const code = machineKey(event);
    if (code === 0 || screen < 0) return;
    event.preventDefault();
    send("hh_key", screen, code);
  });
  // Space goes to the machine, whatever has the focus.
  window.addEventListener("keyup", (event) => {
    const onCabinet = document.activeElement?.closest("#room");
    if (event.key === " " && onCabinet) event.preventDefault();
  });

  function onHide(event) {
    if (event.persisted) saveLedgers();
    else leave();
  }
  window.addEventListener("pagehide", onHide);
  document.addEventListener("visibilitychange", standOrGoOn);
  window.addEventListener("beforeunload", (event) => {
    if (!still && !x.hh_over() && x.hh_is_loaded(sheet.screenId.feature)) event.preventDefault();
  });

  function ended() {
    session.end();
    document.body.classList.add("over");
    sound.midi("stop mid1");
    dialog({ title: "Hoard Hustle", text: "The machine is switched off.",
      buttons: [["again", "Switch it on", true]] }).then(() => window.location.reload());
  }

  function showGuide(which) {
    const body = document.createElement("div");
    body.className = "guide";
    body.append(document.querySelector(`#${which}`).content.cloneNode(true));
    drawFigures(body, (its) => startModule(module, its));
    session.hold(dialog({ title: "Hoard Hustle", look: "wide", body, buttons: [["ok", "Close", true]] }));
  }

  // --- the start ---

  async function firstWords() {
    if (still) return;
    if (choices.reduced === null && seed === null) {
      choices.reduced = await askFlashing();
      store.choose(choices);
    }
    const turn = await takeTurn((asked) => {
      if (asked) saveLedgers();
      store.stopSaving();
      session.end();
      tell("Hoard Hustle", "The machine has been taken to another tab. This one stands still.");
    });
    if (!turn.mine) {
      const here = await dialog({ title: "Hoard Hustle",
        text: "The machine stands open in another tab already. It can be brought here, or played here without saving.",
        buttons: [["bring", "Bring it here", true], ["without", "Play without saving", false]] });
      if (here) await turn.take();
      else store.stopSaving();
    } else if (!store.works()) {
      await tell("Hoard Hustle",
        "This browser keeps nothing for the page: its store is full or forbidden. You can play, but the machine forgets it when the page closes. Files, Download keeps it.", "warning");
    }
  }

  // Before the first lamp flashes.
  const askFlashing = () => dialog({ title: "Hoard Hustle", buttons: [["asitis", "Leave it as it is", false],
    ["reduce", "Reduce flashing", true]],
    text: "This machine flashes. Flashing light can bring on fits in some people, and headaches in more.\n\nShall it flash less? Lamps that flash fast are then held steady. The menu View, Reduced Flashing changes it at any time." });

  await firstWords();
  for (const file of sheet.files.keys()) {
    const text = store.read(file);
    if (text !== null) x.hh_give_file(file, machine.give(text));
  }
  const chance = crypto.getRandomValues(new Uint32Array(2));
  if (seed !== null || still) {
    const first = seed ?? 1n;
    x.hh_seed(Number(first & 0xFFFFFFFFn), Number(first >> 32n), 1);
  } else {
    x.hh_seed(chance[0], chance[1], 0);
  }
  x.hh_reduce(choices.reduced ? 1 : 0);
  hint.hidden = !choices.hints;
  const booted = machine.call("hh_boot", clockAtStart(), still ? 1 : 0);
  refresh();
  if (booted instanceof Promise) await booted;
  session.start();
  hearIt();
  window.hustle = makeConsole(machine, session, refresh, pays);
  performance.mark("machine");
  document.documentElement.dataset.ready = "true";
  if (!still) {
    setInterval(saveLedgers, saveEvery);
    sound.decode().catch(() => {});
  }
  picturesAhead();
}

start().catch((error) => {
  const note = document.querySelector("#trouble");
  note.hidden = false;
  note.textContent = `The machine could not be started: ${error.message ?? error}`;
});
