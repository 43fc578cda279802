// The module: its calls and its texts, and boxes that leave the page free to go on.
//
// The machine asks its boxes in the middle of a handler. The module was put through asyncify, so
// that such a call can be left standing: its stack is unwound, and wound up again with the answer.

const unwinding = 1;
const rewinding = 2;
const decoder = new TextDecoder();
const encoder = new TextEncoder();

// `module`: compiled. `world` answers what the module asks (web/surface.h); `box` and `wait` may answer with a promise.
export async function startModule(module, world) {
  let x = null; // the exports
  let standing = null; // the promise that the unwound call waits for
  let answer = 0;
  let unwound = 0;

  const read = (at, length) => decoder.decode(new Uint8Array(x.memory.buffer, at, length));
  // Leaves a text in the module's room; its length in bytes.
  const give = (text) => {
    const coded = encoder.encode(text);
    const at = x.hh_room(coded.length);
    new Uint8Array(x.memory.buffer, at, coded.length).set(coded);
    return coded.length;
  };
  const waiting = (ask) => (...given) => {
    if (x.asyncify_get_state() === rewinding) {
      x.asyncify_stop_rewind();
      return answer;
    }
    const result = ask(...given);
    if (!(result instanceof Promise)) return result;
    standing = result;
    unwound = x.hh_unwound();
    x.asyncify_start_unwind(unwound);
    return 0;
  };

  const page = {
    play: (sound) => world.play(sound),
    midi: (at, length) => world.midi(read(at, length)),
    box: waiting((title, titleLength, text, textLength, look, asks) =>
      world.box(read(title, titleLength), read(text, textLength), look, asks !== 0)),
    wait: waiting((ms) => world.wait(ms)),
    write: (file, at, length) => (world.write(file, read(at, length)) ? 1 : 0),
    set_aside: (file) => world.setAside(file),
    browse: (home) => world.browse(home === 1),
    system_info: () => world.systemInfo(),
    currency: (amount) => give(world.currency(amount)),
    exit: () => world.exit(),
    time_of_day: () => world.timeOfDay(),
  };
  const system = { // what the C library would write to goes nowhere
    fd_write: () => 8, fd_close: () => 8, fd_seek: () => 8,
  };
  const instance = await WebAssembly.instantiate(module, { page, wasi_snapshot_preview1: system });
  x = instance.exports;
  x._initialize();

  async function goOn(name, given) {
    let value;
    do {
      x.asyncify_stop_unwind();
      answer = await standing;
      x.asyncify_start_rewind(unwound);
      value = x[name](...given);
    } while (x.asyncify_get_state() === unwinding);
    return value;
  }

  const machine = {
    x,
    // A call that may stand still: its value, or a promise of it while a box or a wait is open.
    call(name, ...given) {
      const value = x[name](...given);
      return x.asyncify_get_state() === unwinding ? goOn(name, given) : value;
    },
    text: (length) => (length > 0 ? read(x.hh_text(), length) : ""),
    give,
    changed() {
      const count = x.hh_take_changed();
      return new Uint16Array(x.memory.buffer, x.hh_changed(), count).slice();
    },
    look(element) {
      const [art, top, back, fore, dots, enabled, visible, checked, flash, lit] =
        new Int32Array(x.memory.buffer, x.hh_look(element), 10);
      return { art, top, back, fore, dots, enabled, visible, checked, flash, lit };
    },
    screens() {
      const count = x.hh_shown();
      return [...new Uint8Array(x.memory.buffer, x.hh_shown_screens(), count)];
    },
    // Reels, belt, win and coins as the eye sees them now.
    motion() {
      const count = x.hh_motion();
      const all = new Float64Array(x.memory.buffer, x.hh_numbers(), count).slice();
      const reels = [0, 3, 6].map((i) => ({ onStrip: all[i] === 1, at: all[i + 1], blur: all[i + 2] }));
      const coins = [];
      for (let i = 12; i < all.length; i += 3) coins.push({ x: all[i], y: all[i + 1], opacity: all[i + 2] });
      return { reels, columns: all[9], glow: all[10], swell: all[11], coins };
    },
    glyph: (letter) => new Uint8Array(x.memory.buffer, x.hh_glyph(letter), 7),
  };
  machine.sheet = readSheet(JSON.parse(machine.text(x.hh_sheet())));
  return machine;
}

// The lists of the sheet as records.
function readSheet(json) {
  const screens = json.screens.map(([name, width, height], id) => ({ id, name, width, height }));
  const elements = json.elements.map(([name, screen, kind, left, top, width, height, lamp], id) => ({
    id, name, screen, kind, left, top, width, height, lamp: lamp === 1,
    full: `${screens[screen].name}.${name}`,
  }));
  const menus = json.menus.map(([menu, entry]) => ({ menu, entry }));
  const byName = new Map(elements.map((e) => [e.full, e]));
  const screenId = Object.fromEntries(screens.map((s) => [s.name, s.id]));
  return { ...json, screens, elements, menus, byName, screenId };
}
