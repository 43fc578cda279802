// What the page keeps: the two stored files, as texts in the browser's own store, and the player's
// choices of the View menu. A machine under ?still keeps nothing and finds nothing.

const prefix = "hoardhustle/";

// `fileNames`: those of the sheet. Nothing is read or kept where it is not `enabled`.
export function makeStore(enabled, fileNames) {
  let shelf = null;
  let saving = enabled;
  try {
    shelf = enabled ? window.localStorage : null;
    if (shelf) {
      shelf.setItem(`${prefix}try`, "1");
      shelf.removeItem(`${prefix}try`);
    }
  } catch {
    // Full, or forbidden. What is there may be readable all the same.
  }
  const get = (key) => {
    try {
      return shelf ? shelf.getItem(prefix + key) : null;
    } catch {
      return null;
    }
  };
  const put = (key, text) => {
    if (!enabled) return true;
    try {
      shelf.setItem(prefix + key, text); // the old text or the new one, never half of one
      return true;
    } catch {
      return false;
    }
  };
  return {
    works: () => put("try", "1"),
    read: (file) => get(fileNames[file]),
    // False where the text could not be kept. A page that plays without saving says it was.
    write: (file, text) => !saving || get(fileNames[file]) === text || put(fileNames[file], text),
    // Keeps a damaged file beside its place: the number of that place, or 0 where there is no room;
    // it then stays where it is, and nothing is saved over it.
    setAside(file) {
      const name = fileNames[file];
      const text = get(name);
      let place = 1;
      while (get(place === 1 ? `${name}.damaged` : `${name}.damaged-${place}`) !== null) place += 1;
      if (saving && text !== null && put(place === 1 ? `${name}.damaged` : `${name}.damaged-${place}`, text)) {
        shelf.removeItem(prefix + name);
        return place;
      }
      saving = false;
      return 0;
    },
    saves: () => saving,
    stopSaving() { saving = false; },
    choices() {
      try {
        return JSON.parse(get("view") ?? "{}") ?? {};
      } catch {
        return {};
      }
    },
    choose: (choices) => put("view", JSON.stringify(choices)),
  };
}

export function download(name, text) {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(new Blob([text], { type: "text/plain;charset=utf-8" }));
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 10000);
}
