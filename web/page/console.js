// `hustle` in the console: the machine by its script names. What these calls do is what the commands
// of a panel script do.

const longestRun = 86_400_000; // ms: a day, as in a script

export function makeConsole(machine, session, refreshAll, pays) {
  const { x, sheet } = machine;
  const element = (name) => {
    const found = sheet.byName.get(name);
    if (!found) throw new Error(`unknown element ${name}`);
    return found.id;
  };
  const screen = (name) => {
    if (!(name in sheet.screenId)) throw new Error(`unknown screen ${name}`);
    return sheet.screenId[name];
  };
  // In a script a box takes the next answer, or ok, or no where it asks: so do the boxes of these
  // calls on a still page. Elsewhere they stand until they are answered.
  const asInScript = (act) => {
    if (!session.still) return act();
    x.hh_answer_by_itself(1);
    try {
      return act();
    } finally {
      x.hh_answer_by_itself(0);
    }
  };
  const answers = { no: 0, yes: 1, ok: 2 };
  const taken = (value) => (value instanceof Promise ? value.then(Boolean) : value === 1);

  return {
    get(name) {
      const length = x.hh_get(machine.give(name));
      if (length < 0) throw new Error(`unknown name ${name}`);
      return JSON.parse(machine.text(length));
    },
    press: (name) => asInScript(() => taken(session.send("hh_press", element(name)))),
    key: (code, where) => asInScript(() => taken(session.send("hh_key", screen(where), code))),
    type(name, text) {
      const box = element(name);
      if (sheet.byName.get(name).kind !== "textbox") throw new Error(`${name} is no text box`);
      return asInScript(() => taken(session.send("hh_type", box, machine.give(text))));
    },
    close: (name) => asInScript(() => taken(session.send("hh_close", screen(name)))),
    focus: (name) => asInScript(() => taken(session.send("hh_show", screen(name)))),
    answer(word) {
      if (!(word in answers)) throw new Error("an answer is yes, no or ok");
      x.hh_answer(answers[word]);
    },
    hash: () => machine.text(x.hh_hash()),
    // Time goes by here alone on a still page; on any other it goes by itself.
    run(ms) {
      if (!session.still) throw new Error("the clock of this page runs by itself: add &still to its address");
      if (!Number.isInteger(ms) || ms < 0 || ms > longestRun)
        throw new Error(`run takes whole milliseconds from 0 to ${longestRun}`);
      return asInScript(() => {
        session.run(ms);
        refreshAll();
        return x.hh_now();
      });
    },
    now: () => x.hh_now(),
    session: () => machine.text(x.hh_record()),
    pays: () => pays.text(),
    names: () => [...sheet.byName.keys()],
  };
}
