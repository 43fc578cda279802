#!/usr/bin/env python3
"""The page in Firefox, by hand: tests/web/firefox.py [SESSIONS] [PICTURE.png]

Debian has no driver for it; this speaks to its own remote protocol (WebDriver BiDi). Wants firefox-esr and
python3-websocket, and the page and hustlescript built. Seeded sessions must give the hashes of hustlescript.
"""
import base64
import json
import random
import subprocess
import sys
import tempfile

import websocket
from browser import PAGE, play_script

BUTTONS = ["main.start", "main.hold1", "main.hold2", "main.stopper", "feature.hibutton", "feature.lobutton",
           "feature.collect", "feature.exchangebutton", "feature.stopfeature", "feature.startbutton"]
PORT = 9333


class Firefox:
    def __init__(self, folder):
        self.process = subprocess.Popen(
            ["firefox-esr", "--headless", "--no-remote", "--profile", folder, "--remote-debugging-port", str(PORT),
             "about:blank"], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        for line in self.process.stderr:
            if "BiDi listening" in line:
                break
        self.wire = websocket.create_connection(f"ws://127.0.0.1:{PORT}/session", timeout=90, suppress_origin=True)
        self.sent = 0
        self.command("session.new", capabilities={})
        self.tab = self.command("browsingContext.getTree")["contexts"][0]["context"]

    def command(self, method, **params):
        self.sent += 1
        self.wire.send(json.dumps({"id": self.sent, "method": method, "params": params}))
        while True:
            told = json.loads(self.wire.recv())
            if told.get("id") == self.sent:
                assert "error" not in told, told
                return told["result"]

    def value(self, expression):
        told = self.command("script.evaluate", expression=expression, target={"context": self.tab}, awaitPromise=True)
        assert told["type"] == "success", told
        return told["result"].get("value")

    def open(self, query):
        self.command("browsingContext.navigate", context=self.tab, url=PAGE + query, wait="complete")
        self.value("new Promise((on) => { const look = () => document.documentElement.dataset.ready === 'true' "
                   "? on(true) : setTimeout(look, 30); look(); })")


def session(firefox, seed):
    """The states that agree; fails at the first that does not."""
    chance = random.Random(seed)
    steps = [(chance.choice(BUTTONS) if chance.random() < 0.5 else "main.start",
              chance.choice([175, 800, 2600, 6100])) for _ in range(25)]
    firefox.open(f"?seed={seed}&clock=43200&still")
    here = json.loads(firefox.value(
        f"JSON.stringify({json.dumps(steps)}.map(([button, ms]) => {{ hustle.press(button); hustle.run(ms); "
        "return hustle.hash(); }))"))
    script = "".join(f"press {button}\nrun {ms}\nhash\n" for button, ms in steps)
    there = [line.removeprefix("hash = ") for line in play_script(f"clock 43200\nseed {seed}\n{script}").splitlines()]
    assert here == there, f"seed {seed}"
    return len(there)


def main():
    sessions = int(sys.argv[1]) if len(sys.argv) > 1 else 10
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        firefox = Firefox(folder)
        try:
            print(sum(session(firefox, seed) for seed in range(1, sessions + 1)), "states agree in",
                  firefox.value("navigator.userAgent"))
            if len(sys.argv) > 2:
                shot = firefox.command("browsingContext.captureScreenshot", context=firefox.tab)["data"]
                with open(sys.argv[2], "wb") as file:
                    file.write(base64.b64decode(shot))
        finally:
            firefox.process.kill()
            firefox.process.wait()


main()
