// Pictures as addresses of SVG texts, made once for each look and kept, so that a change of picture
// shows at once.

const kept = new Map(); // by look: the address, and the picture that keeps it ready

function keep(look, svg) {
  const url = URL.createObjectURL(new Blob([svg], { type: "image/svg+xml" }));
  const image = new Image();
  image.decoding = "sync";
  image.src = url;
  kept.set(look, { url, image });
  return kept.get(look);
}

// The machine chooses between pounds and dollars as it loads main: each has pictures of its own.
const lookOf = (machine, art) => (machine.x.hh_dollars() ? `${art} dollars` : art);

function one(machine, art) {
  const look = lookOf(machine, art);
  return kept.get(look) ?? keep(look, machine.text(machine.x.hh_svg(art)));
}

export const artUrl = (machine, art) => (art > 0 ? one(machine, art).url : "");
export const artImage = (machine, art) => one(machine, art).image;

// A label that is a lamp, by all that its look hangs on.
export function lampUrl(machine, element, look, caption) {
  const key = `${element.width} ${element.height} ${element.id} ${caption} ${look.lit} ${look.back} ${look.fore}`;
  const found = kept.get(key) ?? keep(key, machine.text(machine.x.hh_lamp(element.id)));
  return found.url;
}

// Pictures that are likely to come are made ahead, a few in each idle moment.
export function makeAhead(machine, first, last) {
  const wanted = [];
  for (let art = first; art <= last; art += 1) if (!kept.has(lookOf(machine, art))) wanted.push(art);
  const idle = window.requestIdleCallback ?? ((work) => setTimeout(() => work({ timeRemaining: () => 4 }), 30));
  const work = (deadline) => {
    while (wanted.length > 0 && deadline.timeRemaining() > 2) one(machine, wanted.shift());
    if (wanted.length > 0) idle(work);
  };
  idle(work);
}
