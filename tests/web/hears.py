#!/usr/bin/env python3
"""What the page lets be heard."""
import time
import wave

from browser import ROOT, Browser, main

SOUNDS = ROOT / "build/release/bin/sounds"
# A meter where all sound leaves the page, and the length of every wave that begins.
TAP = """
  window.heard = { all: 0, begun: [] };
  const { connect } = AudioNode.prototype;
  const meter = (node, what) => {
    const tap = node.context.createAnalyser();
    const data = new Float32Array(tap.fftSize = 2048);
    connect.call(node, tap);
    setInterval(() => {
      tap.getFloatTimeDomainData(data);
      for (const v of data) heard[what] = Math.max(heard[what], Math.abs(v));
    }, 20);
  };
  AudioNode.prototype.connect = function (to, ...rest) {
    if (to === this.context.destination) meter(this, 'all');
    return connect.call(this, to, ...rest);
  };
  const { start } = AudioBufferSourceNode.prototype;
  AudioBufferSourceNode.prototype.start = function (...given) {
    heard.begun.push(this.buffer.duration);
    return start.apply(this, given);
  };"""


def seconds_of(name):
    with wave.open(str(SOUNDS / name)) as file:
        return file.getnframes() / file.getframerate()


def sounds():
    """The first touch's own wave is heard, every wave is the one that the machine told, and Sound Off
    is silence."""
    with Browser() as b:
        b.command("Page.addScriptToEvaluateOnNewDocument", source=TAP)
        b.start_as_player("?seed=3")
        b.until("performance.getEntriesByName('waves').length > 0 && hustle.get('main.start.enabled')")
        before = len(b.get("sounds").split())
        b.key(" ", "Space", 32)
        b.until("heard.all > 0.01")
        begun, told = b.value("[heard.begun, hustle.get('sounds').split(' ').filter(Boolean)]")
        told = told[before:]
        assert len(begun) == len(told) > 0, (begun, told)
        for length, name in zip(begun, told):
            assert abs(length - seconds_of(name)) < 0.05, (name, length)
        b.run("hustle.press('main.soundoff')")
        time.sleep(0.3)  # what was under way has died away
        b.run("heard.all = 0; hustle.press('main.start')")
        time.sleep(1)
        assert b.value("heard.all") == 0
        b.run("hustle.press('main.soundon')")
        b.until("hustle.get('main.start.enabled')")
        b.run("hustle.press('main.start')")
        b.until("heard.all > 0.01")


if __name__ == "__main__":
    main({f.__name__: f for f in (sounds,)})
