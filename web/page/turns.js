// One page at a time saves. The first to come has the turn; another may ask it to hand the turn over,
// and waits until it has saved.
//
// A browser's lock goes with its tab, whatever becomes of it. Where there are none for the page (in
// some browsers one opened from a disk has none) the pages ask each other through the store, whose
// events reach every other page of the same address, a sleeping one as well.

const answerWithin = 600; // ms
const handOverWithin = 1500;

// `onTaken(asked)` ends the saving here; `asked` false where the turn is gone already. `mine`: this page
// has the turn. `take` brings it here.
export async function takeTurn(onTaken) {
  return (await byLock(onTaken)) ?? byStore(onTaken);
}

async function byLock(onTaken) {
  if (!navigator.locks) return null;
  let letGo = null;
  // What came of asking: true or false, or null where the page may have no locks.
  const hold = (options) => new Promise((got) => {
    navigator.locks.request("hoardhustle", options, (lock) => {
      got(lock !== null);
      return lock === null ? undefined : new Promise((release) => { letGo = release; });
    }).catch(() => {
      got(null);
      if (letGo) onTaken(false); // taken from a page that did not answer
      letGo = null;
    });
  });
  const mine = await hold({ ifAvailable: true });
  if (mine === null) return null;
  const calls = new BroadcastChannel("hoardhustle");
  calls.onmessage = (event) => {
    if (event.data !== "hand over" || !letGo) return;
    onTaken(true);
    letGo();
    letGo = null;
  };
  return {
    mine,
    async take() {
      calls.postMessage("hand over");
      const late = new Promise((on) => setTimeout(() => on("late"), handOverWithin));
      const asked = hold({});
      if (await Promise.race([asked, late]) === "late") await hold({ steal: true });
    },
  };
}

function byStore(onTaken) {
  const key = "hoardhustle/turn";
  const me = Math.random().toString(36).slice(2);
  let mine = false;
  let asking = false;
  let hears = () => {}; // the word of the other page
  const say = (word) => {
    try {
      window.localStorage.setItem(key, `${word} ${me} ${performance.now()}`);
    } catch {
      // A store that takes nothing has nothing that could be written over.
    }
  };
  window.addEventListener("storage", (event) => {
    if (event.key !== key || !event.newValue) return;
    const [word, other] = event.newValue.split(" ");
    if (word === "who" && (mine || (asking && me < other))) say("mine");
    else if (word === "handover" && mine) {
      mine = false;
      onTaken(true);
      say("gone");
    } else if (word === "taken" && mine) {
      mine = false;
      onTaken(false);
    } else hears(word);
  });
  const answer = (question, wanted, within) => new Promise((on) => {
    const late = setTimeout(() => on(false), within);
    hears = (word) => {
      if (word !== wanted) return;
      clearTimeout(late);
      on(true);
    };
    say(question);
  });
  const turn = {
    async take() {
      if (!await answer("handover", "gone", handOverWithin)) say("taken");
      mine = true;
    },
  };
  asking = true;
  return answer("who", "mine", answerWithin).then((held) => {
    asking = false;
    mine = !held;
    return { ...turn, mine };
  });
}
