#!/usr/bin/env python3
"""What the page lets be heard."""
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
    heard.context = this.context;
    return connect.call(this, to, ...rest);
  };
  const { start } = AudioBufferSourceNode.prototype;
  AudioBufferSourceNode.prototype.start = function (...given) {
    heard.begun.push(this.buffer.duration);
    return start.apply(this, given);
  };
  const { play } = HTMLMediaElement.prototype;
  HTMLMediaElement.prototype.play = function () {
    heard.tune = this;
    return play.call(this);
  };
  heard.plays = () => heard.tune !== undefined && !heard.tune.paused && heard.tune.currentTime > 0;
  heard.hide = (hidden) => {
    Object.defineProperty(document, 'hidden', { value: hidden, configurable: true });
    document.dispatchEvent(new Event('visibilitychange'));
  };"""


def listen(b):
    """Starts the page with its meter, and waits until a first touch can be heard."""
    b.command("Page.addScriptToEvaluateOnNewDocument", source=TAP)
    b.start_as_player("?seed=3")
    b.until("performance.getEntriesByName('waves').length > 0 && hustle.get('main.start.enabled')")


def seconds_of(name):
    with wave.open(str(SOUNDS / name)) as file:
        return file.getnframes() / file.getframerate()


def sounds():
    """The first touch's own wave is heard, every wave is the one that the machine told, and Sound Off
    is silence."""
    with Browser() as b:
        listen(b)
        before = len(b.get("sounds").split())
        b.key(" ", "Space", 32)
        b.until("heard.all > 0.01")
        begun, told = b.value("[heard.begun, hustle.get('sounds').split(' ').filter(Boolean)]")
        told = told[before:]
        assert len(begun) == len(told) > 0, (begun, told)
        for length, name in zip(begun, told):
            assert abs(length - seconds_of(name)) < 0.05, (name, length)
        b.run("hustle.press('main.soundoff')")
        b.silence()
        b.until("hustle.get('main.start.enabled')")
        b.run("hustle.press('main.start')")
        b.until("!hustle.get('main.start.enabled')")  # the reels spin, and nobody hears them
        b.silence()
        b.run("hustle.press('main.soundon')")
        b.until("hustle.get('main.start.enabled')")
        b.run("hustle.press('main.start')")
        b.until("heard.all > 0.01")


def tune():
    """The tune of the board begins with the machine's word, and rests while the sound is off."""
    with Browser() as b:
        b.command("Page.addScriptToEvaluateOnNewDocument", source=TAP)
        b.open("?seed=63&clock=43200&still")
        b.driver.find_element("css selector", "#hint").click()  # the browser lets sound begin
        for _ in range(2):
            b.run("hustle.press('main.start'); hustle.run(6000); hustle.press('main.stopper'); hustle.run(3000)")
        assert b.get("midi").endswith("play mid1 from 0")
        b.until("heard.plays() && heard.all > 0.001")
        b.run("hustle.press('main.soundoff')")
        b.until("heard.tune.paused")
        b.silence()
        b.run("hustle.press('main.soundon')")
        b.until("heard.plays() && heard.all > 0.001")


def stalls():
    """A hidden tab stands still, tune and all, and nothing is made up for when it is seen again."""
    with Browser() as b:
        listen(b)
        b.key(" ", "Space", 32)
        b.until("heard.all > 0.01")
        stood, real = b.run("heard.hide(true); return [hustle.now(), performance.now()]")
        b.until("heard.context.state === 'suspended'")
        b.until(f"performance.now() > {real} + 3000")
        assert b.value("hustle.now()") == stood, "the clock stands"
        assert b.run("heard.hide(false); return hustle.now()") - stood < 300, "no burst"
        b.until(f"hustle.now() > {stood} + 500")
        behind = b.value(f"performance.now() - {real} - (hustle.now() - {stood})")
        assert behind > 2900, behind


if __name__ == "__main__":
    main({f.__name__: f for f in (sounds, tune, stalls)})
