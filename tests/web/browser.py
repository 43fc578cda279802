"""A headless Chromium with the page in it, and the few things that tests do to it."""
import os
import pathlib
import subprocess
import sys
import tempfile

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import WebDriverWait

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = (ROOT / "build/web/hoardhustle.html").as_uri()
APP = ROOT / "build/web/app"
SCRIPT = os.environ.get("HUSTLESCRIPT", str(ROOT / "build/release/bin/hustlescript"))
PATIENCE = 120  # seconds until something that was told to come has not come


class Browser:
    def __init__(self, language="en-GB"):
        self.folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        options = Options()
        for word in ("--headless", "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-sync",
                     "--disable-background-networking", "--disable-component-update",
                     "--user-data-dir=" + self.folder.name, "--window-size=1100,900"):
            options.add_argument(word)
        options.add_experimental_option("prefs", {"intl.accept_languages": language})
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        self.driver.set_script_timeout(PATIENCE)

    def __enter__(self):
        return self

    def __exit__(self, kind, *_):
        if kind is None:
            worst = [e["message"] for e in self.driver.get_log("browser") if e["level"] == "SEVERE"]
            assert worst == [], worst
        self.driver.quit()
        self.folder.cleanup()

    def open(self, query="", page=PAGE):
        self.driver.get(page + query)
        if "still" in query:
            self.ready()

    def ready(self):
        self.until("document.documentElement.dataset.ready === 'true'")

    def run(self, text, *given):
        return self.driver.execute_script(text, *given)

    def value(self, expression):
        return self.run(f"return {expression}")

    def until(self, expression):
        return WebDriverWait(self.driver, PATIENCE, 0.05).until(lambda _: self.value(expression))

    def get(self, name):
        return self.run("return hustle.get(arguments[0])", name)

    def at(self, name):
        return self.driver.find_element(By.CSS_SELECTOR, f'[data-element="{name}"]')

    def command(self, name, **given):
        return self.driver.execute_cdp_cmd(name, given)

    def silence(self):
        """Waits until the meter of a test that listens has seen half a second of nothing."""
        self.driver.execute_async_script("""
          const done = arguments[0];
          let quiet = 0;
          const look = () => {
            quiet = heard.all === 0 ? quiet + 1 : 0;
            heard.all = 0;
            if (quiet > 10) done(); else setTimeout(look, 50);
          };
          look();""")

    def resize(self, width, height, ratio=1):
        self.command("Emulation.setDeviceMetricsOverride", width=width, height=height,
                     deviceScaleFactor=ratio, mobile=False)
        self.until(f"innerWidth === {width} && innerHeight === {height}")
        # Two pictures later the page has been laid out for it.
        self.driver.execute_async_script(
            "const done = arguments[0]; requestAnimationFrame(() => requestAnimationFrame(() => done()))")

    def touch(self, name):
        place = self.run("const r = document.querySelector(`[data-element=\"${arguments[0]}\"]`)"
                         ".getBoundingClientRect(); return [r.left + r.width / 2, r.top + r.height / 2]", name)
        self.command("Input.dispatchTouchEvent", type="touchStart",
                     touchPoints=[{"x": place[0], "y": place[1]}])
        self.command("Input.dispatchTouchEvent", type="touchEnd", touchPoints=[])

    def key(self, key, code, number):
        for kind in ("keyDown", "keyUp"):
            self.command("Input.dispatchKeyEvent", type=kind, key=key, code=code,
                         windowsVirtualKeyCode=number)

    def answer(self, name):
        self.until(f"document.querySelector('dialog[open] [data-element=\"box.{name}\"]') !== null")
        self.at(f"box.{name}").click()

    # Starts as a player does who has no wish about flashing; a page with a seed does not ask.
    def start_as_player(self, query="", page=PAGE):
        self.open(query, page)
        if query == "":
            self.answer("asitis")
        self.ready()
        self.until("hustle.get('main.loaded')")


def play_script(text):
    """What hustlescript prints for a script; fails where a line of it does not hold."""
    done = subprocess.run([SCRIPT], input=text, text=True, capture_output=True, check=False)
    assert done.returncode == 0, done.stderr
    return done.stdout


def script_hash(text):
    return play_script(text + "\nhash\n").strip().splitlines()[-1].removeprefix("hash = ")


def main(tests):
    wanted = sys.argv[1]
    tests[wanted]()
    print(f"{wanted}: passed")
