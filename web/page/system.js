// What the page knows of where it runs.

export function systemText(machine, sound, store) {
  const { screen, devicePixelRatio, innerWidth, innerHeight } = window;
  return [
    `Hoard Hustle ${machine.sheet.version}, in a browser`,
    navigator.userAgent,
    `Screen ${screen.width} by ${screen.height}, page ${innerWidth} by ${innerHeight}, ${devicePixelRatio} device pixels to one`,
    `Sound: ${sound.state()}`,
    `Files: ${store.saves() ? "kept in this browser for this page" : "not kept"}`,
  ].join("\n");
}
