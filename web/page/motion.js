// What moves between two events of the machine: reels that roll, the belt that runs on, the glow of
// a win and its coins. The machine's own room show/ says what is seen; here it is painted.

import { artUrl } from "./pictures.js";
import { makeReels } from "./reels.js";

export function makeMotion(machine, cabinet, { still, show }) {
  const { x, sheet } = machine;
  const now = () => (still ? x.hh_now() : Math.floor(performance.now()));
  let waiting = 0;
  let frame = 0;
  let scene = null; // the reels, the glow and the coins of the view of main

  function sceneOf(view) {
    if (scene && scene.view === view) return scene;
    const glow = document.createElement("div");
    glow.className = "glow";
    view.stage.append(glow);
    scene = { view, glow, coins: [], reels: makeReels(machine, view) };
    return scene;
  }

  function paintMain(view, motion) {
    const { glow, coins, reels } = sceneOf(view);
    reels.paint(motion);
    glow.style.opacity = motion.glow > 0.01 ? motion.glow : 0;
    const px = view.scale();
    if (motion.glow > 0.01) place(glow, sheet.winLine.map((length) => (length / 15) * px), px * 3);
    motion.coins.forEach((coin, i) => {
      if (!coins[i]) {
        coins[i] = new Image();
        coins[i].className = "coin";
        coins[i].alt = "";
        coins[i].src = artUrl(machine, sheet.arts.indexOf(x.hh_dollars() ? "coinpic1" : "coinpic"));
        view.stage.append(coins[i]);
      }
      const size = sheet.coinSize * px;
      coins[i].style.opacity = coin.opacity;
      place(coins[i], [coin.x * px - size / 2, coin.y * px - size / 2, size, size], 0);
    });
    for (let i = motion.coins.length; i < coins.length; i += 1) coins[i].style.opacity = 0;
  }

  function place({ style }, [left, top, width, height], inset) {
    style.left = `${left + inset}px`;
    style.top = `${top + inset}px`;
    style.width = `${width - 2 * inset}px`;
    style.height = `${height - 2 * inset}px`;
  }

  function paint() {
    const shown = cabinet.shown();
    if (shown < 0) return;
    const view = cabinet.view(shown);
    const motion = machine.motion();
    if (shown === sheet.screenId.main) paintMain(view, motion);
    else view.runLine("feature.displayline", motion.columns);
  }

  function step() {
    frame = 0;
    const wanted = x.hh_advance(now());
    show();
    paint();
    clearTimeout(waiting);
    if (still || wanted < 0) return;
    if (wanted > 20) waiting = setTimeout(ask, wanted - 8);
    else ask();
  }
  function ask() {
    if (frame === 0) frame = requestAnimationFrame(step);
  }

  return {
    paint,
    // After each batch of events, before the page is brought into step.
    takeIn() {
      x.hh_take_in(now());
      if (still) step();
      else ask();
    },
  };
}
