// The dot-matrix lines: cells of five by seven dots, on a grid of whole device pixels.

const rows = 7;
const cellColumns = 6;
const white = [255, 255, 255];
const rgb = (bgr) => [bgr & 255, (bgr >> 8) & 255, (bgr >> 16) & 255];
const mix = (a, b, share) => a.map((from, i) => Math.round(from + (b[i] - from) * share));
const css = (colour) => `rgb(${colour.join(",")})`;

function gridOf(width, height) {
  const cells = width > 5 * height ? 26 : 4;
  const columns = cells * cellColumns - 1;
  let pitch = Math.min(width / columns, height / (rows + 1.6));
  if (Math.floor(pitch) * columns > 0.9 * width || columns < 30) pitch = Math.max(1, Math.floor(pitch));
  let tall = Math.min(pitch * 1.2, height / (rows + 1.4));
  if (pitch >= 2 && Math.floor(pitch) === pitch) tall = Math.max(pitch, Math.floor(tall));
  const left = (width - columns * pitch) / 2;
  const top = (height - rows * tall) / 2;
  const x = (column) => Math.round(left + column * pitch);
  const y = (row) => Math.round(top + row * tall);
  return { columns, x, y };
}

const grounds = new Map(); // whole lines with every dot lit or dark: what a text is put together from

function ground(width, height, lamp, lit, flash) {
  const key = `${width} ${height} ${lamp} ${lit} ${flash}`;
  const found = grounds.get(key);
  if (found) return found;
  if (grounds.size > 60) grounds.clear();
  const canvas = document.createElement("canvas");
  canvas.width = width;
  canvas.height = height;
  const c = canvas.getContext("2d");
  const glass = flash ? mix([8, 6, 8], lamp, 0.22) : mix([9, 7, 9], lamp, 0.02);
  c.fillStyle = css(glass);
  c.fillRect(0, 0, width, height);
  const dark = flash ? mix([22, 16, 18], lamp, 0.52) : mix([24, 18, 20], lamp, 0.11);
  const dot = lit ? mix(lamp, white, flash ? 0.72 : 0.22) : dark;
  const bloom = css(mix(glass, lamp, flash ? 0.45 : 0.42));
  const grid = gridOf(width, height);
  for (let row = 0; row < rows; row += 1) {
    for (let column = 0; column < grid.columns; column += 1) {
      const [x, y] = [grid.x(column), grid.y(row)];
      const [w, h] = [grid.x(column + 1) - x, grid.y(row + 1) - y];
      if (lit) {
        c.fillStyle = bloom;
        c.fillRect(x, y, w, h);
      }
      c.fillStyle = css(dot);
      c.beginPath();
      const radius = 0.5 * Math.min(w, h);
      c.ellipse(x + w / 2, y + h / 2, radius, Math.max(radius, 0.46 * h), 0, 0, 2 * Math.PI);
      c.fill();
    }
  }
  grounds.set(key, canvas);
  return canvas;
}

const glyphs = new Map();
function glyphOf(machine, letter) {
  if (!glyphs.has(letter)) glyphs.set(letter, [...machine.glyph(letter.codePointAt(0))]);
  return glyphs.get(letter);
}

// Draws a text over the whole canvas; `run` is how many columns of dots it has run to the left, or
// "middle": its letters stand in the middle of the line.
export function drawLine(machine, canvas, text, dots, flash, run = 0) {
  const { width, height } = canvas;
  if (width < 1 || height < 1) return;
  const c = canvas.getContext("2d", { alpha: false });
  const grid = gridOf(width, height);
  const lamp = rgb(dots);
  c.drawImage(ground(width, height, lamp, false, flash), 0, 0);
  const lit = ground(width, height, lamp, true, flash);
  const letters = [...(run === "middle" ? text.trim() : text)];
  let left = run === "middle" ? Math.trunc((grid.columns - letters.length * cellColumns + 1) / 2) : -run;
  for (const letter of letters) {
    if (left >= grid.columns) break;
    const shape = glyphOf(machine, letter);
    for (let row = 0; row < rows; row += 1) {
      for (let column = 0; column < 5; column += 1) {
        const at = left + column;
        if (at < 0 || at >= grid.columns || !((shape[row] >> (4 - column)) & 1)) continue;
        const [x, y] = [grid.x(at), grid.y(row)];
        const [w, h] = [grid.x(at + 1) - x, grid.y(row + 1) - y];
        c.drawImage(lit, x, y, w, h, x, y, w, h);
      }
    }
    left += cellColumns;
  }
}
