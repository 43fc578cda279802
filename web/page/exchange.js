// Files from a disk: dropped on the page or chosen. They are the machine's own two, as the program
// on a desktop keeps them.

import { askYesNo, tell } from "./dialogs.js";

export function listenForFiles(take) {
  const chosen = document.querySelector("#files");
  chosen.addEventListener("change", () => {
    take([...chosen.files]);
    chosen.value = "";
  });
  window.addEventListener("dragover", (event) => event.preventDefault());
  window.addEventListener("drop", (event) => {
    event.preventDefault();
    if (event.dataTransfer.files.length > 0) take([...event.dataTransfer.files]);
  });
}

const isFile = (machine, file, text) => machine.x.hh_is_file(file, machine.give(text)) === 1;

async function textOf(blob) {
  if (blob.size > 100000) return null;
  try {
    return new TextDecoder("utf-8", { fatal: true, ignoreBOM: true }).decode(await blob.arrayBuffer());
  } catch {
    return null;
  }
}

// Takes what is whole, after a question, and starts the machine anew from it.
export async function replaceFiles({ machine, store, restart }, list) {
  const fileNames = machine.sheet.files;
  const taken = new Map();
  for (const blob of list) {
    const text = await textOf(blob);
    const which = text === null ? -1 : fileNames.findIndex((_, file) => isFile(machine, file, text));
    if (which < 0) {
      await tell("Hoard Hustle", `${blob.name} is no ${fileNames.join(" or ")}, or it is damaged. Nothing was changed.`, "warning");
      return;
    }
    taken.set(which, text);
  }
  const names = [...taken.keys()].map((file) => fileNames[file]).join(" and ");
  const yes = await askYesNo("Hoard Hustle",
    `Start the machine anew from ${names}? What it has kept here in that place is replaced, and the game that is on ends without a score.`);
  if (!yes) return;
  for (const [file, text] of taken) {
    if (store.write(file, text)) continue;
    await tell("Hoard Hustle", `${fileNames[file]} could not be kept.`, "warning");
    return;
  }
  await restart();
}
