// The waves, one at a time, and the tune. A browser lets nothing be heard before the player's first
// touch or key: the waves are decoded before it, and what was asked for last is heard with it.

const waveVolume = 112 / 128;
const tuneVolume = 52 / 128; // the tune stays beneath the waves
const freshFor = 400; // ms that a wave from before the first touch is still worth hearing

export function makeSound(names, loadWaves, loadTune) {
  let context = null;
  let loudness = null;
  let waves = new Map(); // decoded, by name
  let source = null;
  let tune = null;
  let tuneWanted = false;
  let early = null;
  let volume = 1;
  let silent = false; // Sound Off, or muted
  let away = false; // the tab is hidden

  const level = () => (silent ? 0 : volume);

  let decoding = null;
  const decode = () => decoding ??= decodeAll().then(() => performance.mark("waves"));
  async function decodeAll() {
    const pack = await loadWaves();
    const Offline = window.OfflineAudioContext ?? window.webkitOfflineAudioContext;
    if (!Offline) return;
    const decoder = new Offline(1, 1, 48000);
    for (const [name, bytes] of pack) {
      try {
        waves.set(name, await decoder.decodeAudioData(bytes));
      } catch {
        return; // a browser without this kind of sound plays in silence
      }
    }
  }

  function playNow(name) {
    if (source) source.stop();
    source = null;
    const buffer = waves.get(name);
    if (!buffer) return;
    source = context.createBufferSource();
    source.buffer = buffer;
    const gain = context.createGain();
    gain.gain.value = waveVolume;
    source.connect(gain).connect(loudness);
    source.start();
  }

  async function openTune() {
    const bytes = await loadTune();
    tune = new Audio(URL.createObjectURL(new Blob([bytes], { type: "audio/ogg" })));
    const gain = context.createGain();
    gain.gain.value = tuneVolume;
    context.createMediaElementSource(tune).connect(gain).connect(loudness);
    tune.addEventListener("ended", () => { tuneWanted = false; });
    follow();
  }

  function follow() {
    if (!tune) return;
    if (tuneWanted && !away && !silent) tune.play().catch(() => {});
    else tune.pause();
  }

  return {
    decode,
    // The player's first touch or key.
    wake() {
      if (context) {
        if (context.state === "suspended" && !away) context.resume();
        return;
      }
      const Context = window.AudioContext ?? window.webkitAudioContext;
      if (!Context) return;
      context = new Context({ latencyHint: "interactive" });
      loudness = context.createGain();
      loudness.gain.value = level();
      loudness.connect(context.destination);
      if (early && performance.now() - early.at < freshFor) playNow(early.name);
      early = null;
      openTune().catch(() => {});
      decode().catch(() => {});
    },
    play(sound) {
      const name = names[sound];
      if (context) playNow(name);
      else early = { name, at: performance.now() };
    },
    midi(command) {
      if (command === "play mid1 from 0") {
        tuneWanted = true;
        if (tune) tune.currentTime = 0;
      } else if (command === "stop mid1" || command === "close mid1") {
        tuneWanted = false;
      }
      follow();
    },
    set(to) {
      volume = to.volume;
      silent = to.silent;
      if (loudness) loudness.gain.value = level();
      follow();
    },
    hide(now) {
      away = now;
      if (context) (away ? context.suspend() : context.resume()).catch(() => {});
      follow();
    },
    state() {
      if (!context) return "no sound yet: it begins with the first touch or key";
      return `${context.state}, ${context.sampleRate} Hz, ${waves.size} waves`;
    },
  };
}
