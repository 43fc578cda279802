// The reels on their strip: paper behind, the strip at its place, glass before it. The strip is drawn
// once for each size, sharp, blurred and as one even smear, for the speeds that the eye meets.

import { artImage } from "./pictures.js";

const stops = 16;
const blurredRows = 26; // to a stop
const blurLength = 12; // rows: at full speed a little less than half a stop
const blurFrom = 0.15;
const smearFrom = 2; // stops that pass while the eye takes a picture

function canvasOf(width, height) {
  const canvas = document.createElement("canvas");
  canvas.width = Math.max(1, Math.round(width));
  canvas.height = Math.max(1, Math.round(height));
  return [canvas, canvas.getContext("2d")];
}

function drawn(image, width, height) {
  const [canvas, c] = canvasOf(width, height);
  c.drawImage(image, 0, 0, canvas.width, canvas.height);
  return canvas;
}

// The mean of `length` pictures of the strip, each a row further, over its end to its beginning.
function blurredDown(from, length) {
  const [canvas, c] = canvasOf(from.width, from.height);
  for (let i = 0; i < length; i += 1) {
    const shift = (i - (length >> 1) + from.height) % from.height;
    c.globalAlpha = 1 / (i + 1);
    c.globalCompositeOperation = i === 0 ? "copy" : "source-over";
    c.drawImage(drawShifted(from, shift), 0, 0);
  }
  return canvas;
}

function drawShifted(from, shift) {
  const [canvas, c] = canvasOf(from.width, from.height);
  c.drawImage(from, 0, shift);
  c.drawImage(from, 0, shift - from.height);
  return canvas;
}

// One row that is the mean of all: halved until an odd number of rows is left.
function smearOf(from) {
  let now = from;
  while (now.height % 2 === 0) {
    const [half, c] = canvasOf(now.width, now.height / 2);
    c.drawImage(now, 0, 0, half.width, half.height);
    now = half;
  }
  const mean = blurredDown(now, now.height);
  const [row, c] = canvasOf(now.width, 1);
  c.drawImage(mean, 0, 0, mean.width, 1, 0, 0, mean.width, 1);
  return row;
}

export function makeReels(machine, view) {
  const { sheet } = machine;
  const art = (name) => sheet.arts.indexOf(name);
  const wells = [1, 2, 3].map((n) => {
    const part = view.parts.get(sheet.byName.get(`main.reel${n}`).id);
    const canvas = document.createElement("canvas");
    canvas.className = "reel";
    part.node.append(canvas);
    return { part, canvas, drawn: "" };
  });
  let strips = null;

  // The pictures of the strip at a size; null while the browser still reads them.
  function stripsFor(width, height) {
    const usd = machine.x.hh_dollars() === 1;
    const key = `${width} ${height} ${usd}`;
    if (strips && strips.key === key) return strips;
    const images = ["reelpaper", "reelglass", usd ? "reelstrip1" : "reelstrip"].map((name) => artImage(machine, art(name)));
    if (!images.every((image) => image.complete && image.naturalWidth > 0)) {
      Promise.all(images.map((image) => image.decode())).then(() => paint(machine.motion()), () => {});
      return null;
    }
    const sharp = drawn(images[2], width, Math.round(height / 3) * stops);
    const low = drawn(sharp, width, stops * blurredRows);
    strips = { key, sharp, paper: drawn(images[0], width, height), glass: drawn(images[1], width, height),
      blurred: blurredDown(low, blurLength), smear: smearOf(low) };
    return strips;
  }

  // A stretch of the strip, in stops from its top; it may run over the end.
  function stretch(c, strip, from, length, left, top, width, height) {
    let at = from - Math.floor(from / stops) * stops;
    const rows = strip.height / stops;
    let y = top;
    let rest = length;
    while (rest > 1e-6) {
      const part = Math.min(rest, stops - at);
      const high = (height * part) / length;
      c.drawImage(strip, 0, at * rows, strip.width, part * rows, left, y, width, high);
      y += high;
      rest -= part;
      at = 0;
    }
  }

  function paintReel({ part, canvas, ...well }, reel, swell) {
    const ratio = window.devicePixelRatio || 1;
    const width = Math.round(part.node.clientWidth * ratio);
    const height = Math.round(part.node.clientHeight * ratio);
    const set = reel.onStrip && width > 0 ? stripsFor(width, height) : null;
    part.node.classList.toggle("rolling", set !== null);
    canvas.hidden = set === null;
    if (set === null) return "";
    const blur = reel.blur >= smearFrom ? 2 : reel.blur >= blurFrom ? 1 : 0;
    const key = `${set.key} ${blur === 2 ? 0 : reel.at} ${blur} ${swell}`;
    if (well.drawn === key) return key;
    if (canvas.width !== width || canvas.height !== height) [canvas.width, canvas.height] = [width, height];
    const c = canvas.getContext("2d", { alpha: false });
    c.drawImage(set.paper, 0, 0);
    const third = height / 3;
    if (blur === 2) c.drawImage(set.smear, 0, 0, width, height);
    else if (blur === 1) stretch(c, set.blurred, reel.at - 1, 3, 0, 0, width, height);
    else if (swell > 1.001) {
      stretch(c, set.sharp, reel.at - 1, 1, 0, 0, width, third);
      stretch(c, set.sharp, reel.at + 1, 1, 0, 2 * third, width, third);
      const [wide, high] = [(width * (swell - 1)) / 2, (third * (swell - 1)) / 2];
      stretch(c, set.sharp, reel.at, 1, -wide, third - high, width + 2 * wide, third + 2 * high);
    } else {
      // In whole pixels, so that it stays as sharp as it was drawn.
      const rows = set.sharp.height / stops;
      stretch(c, set.sharp, Math.round((reel.at - 1) * rows) / rows, 3, 0, 0, width, height);
    }
    c.drawImage(set.glass, 0, 0);
    return key;
  }

  function paint(motion) {
    wells.forEach((well, i) => { well.drawn = paintReel(well, motion.reels[i], motion.swell); });
  }
  return { paint };
}
