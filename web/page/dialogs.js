// Boxes of the page. One at a time; the others wait their turn.

let last = Promise.resolve();

function ask({ title, text, look, buttons, body }) {
  const box = document.createElement("dialog");
  box.className = `box ${look ?? "plain"}`;
  box.setAttribute("aria-labelledby", "box-title");
  const head = document.createElement("h2");
  head.id = "box-title";
  head.textContent = title;
  const main = body ?? document.createElement("p");
  if (!body) main.textContent = text;
  main.id = "box-text";
  if (!body) box.setAttribute("aria-describedby", "box-text");
  const row = document.createElement("div");
  row.className = "answers";
  box.append(head, main, row);
  return new Promise((answered) => {
    const answer = (value) => {
      box.close();
      box.remove();
      answered(value);
    };
    buttons.forEach(([name, caption, value], n) => {
      const button = document.createElement("button");
      button.type = "button";
      button.textContent = caption;
      button.dataset.element = `box.${name}`;
      button.autofocus = n === buttons.length - 1;
      button.addEventListener("click", () => answer(value));
      row.append(button);
    });
    box.addEventListener("cancel", (event) => { // Escape says what the last button says
      event.preventDefault();
      answer(buttons[buttons.length - 1][2]);
    });
    document.body.append(box);
    box.showModal();
  });
}

// Asks and gives the value of the chosen button; the last one is the careful answer, and Escape's.
export function dialog(what) {
  const mine = last.then(() => ask(what));
  last = mine.catch(() => {});
  return mine;
}

export const tell = (title, text, look = "plain") =>
  dialog({ title, text, look, buttons: [["ok", "OK", true]] });

export const askYesNo = (title, text) =>
  dialog({ title, text, look: "question", buttons: [["yes", "Yes", true], ["no", "No", false]] });
