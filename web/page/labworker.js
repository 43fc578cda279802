// The lab's worker: plays the machines of a run at full speed and tells now and then what they pay.
// It is a script of its own, started from a text; it gets the module with its first message.
"use strict";

const turn = 60; // ms of play between two looks at what has been asked
const tellEvery = 400; // ms
let x = null; // the exports
let running = false;
const relay = new MessageChannel(); // goes on at once, where a timer would wait

const text = (length) =>
  new TextDecoder().decode(new Uint8Array(x.memory.buffer, x.hl_text(), length));
// A whole number of 64 bits as the module takes it.
const halves = (seed) => [Number(BigInt.asUintN(32, seed)), Number(BigInt.asUintN(32, seed >> 32n))];

let plays = 500; // that take about a turn
let left = 0; // plays of the run
let told = 0;
let began = 0;

function tell(over) {
  told = performance.now();
  postMessage({ left, over, stuck: x.hl_stuck(), seconds: (told - began) / 1000, result: text(x.hl_result()) });
}

relay.port1.onmessage = () => {
  if (!running) return;
  const before = performance.now();
  left = x.hl_play(plays);
  const took = performance.now() - before;
  plays = Math.ceil(plays * Math.min(2, Math.max(0.5, turn / Math.max(took, 1))));
  running = left > 0;
  if (!running || performance.now() - told > tellEvery) tell(!running);
  if (running) relay.port2.postMessage(0);
};

self.onmessage = async ({ data }) => {
  if (data.module) {
    const nowhere = { fd_write: () => 8, fd_close: () => 8, fd_seek: () => 8 };
    const { instance } = await WebAssembly.instantiate(data.module, { wasi_snapshot_preview1: nowhere });
    x = instance.exports;
    x._initialize();
    postMessage({ policies: JSON.parse(text(x.hl_policies())) });
  } else if (data.terms) {
    const { policy, machines, plays: each, seed, reaction, rung } = data.terms;
    if (x.hl_begin(policy, machines, each, ...halves(seed), reaction, rung) !== 1) {
      postMessage({ refused: true });
      return;
    }
    running = true;
    began = performance.now();
    told = began - tellEvery; // the first figures come at once
    relay.port2.postMessage(0);
  } else if (running) {
    running = false;
    tell(true);
  }
};
