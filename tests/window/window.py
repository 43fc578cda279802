"""A display, a program and a hand: what the tests of the real window share.

Everything goes through the X server, as a player's keys and clicks do. Exit status 77 skips the
test where there is no Xvfb or no xdotool.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
import urllib.parse

PANEL = (800, 562)  # pixels of main
BOARD = (800, 593)


def skip_without_tools():
    for tool in ("Xvfb", "xdotool"):
        if shutil.which(tool) is None:
            print(f"skipped: {tool} is not there")
            sys.exit(77)


class Display:
    """A virtual screen of its own, so many pixels wide and high."""

    def __init__(self, size="1280x1024"):
        self.size = size

    def __enter__(self):
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{self.size}x24", "-nolisten", "tcp"],
            pass_fds=(write_end,), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as answer:
            self.name = ":" + answer.readline().strip()
        assert self.name != ":", "Xvfb did not start"
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()


class Machine:
    """The program in its window, with a folder of its own for the two files."""

    def __init__(self, program, display, seed, folder, wait_for_main=True):
        self.env = dict(os.environ, DISPLAY=display.name, HUSTLE_DATA=folder, HUSTLE_SEED=str(seed),
                        SDL_AUDIODRIVER="dummy", LC_ALL="C.UTF-8", QT_QPA_PLATFORM="xcb",
                        QT_SCALE_FACTOR="1", PATH=self.browser(folder) + os.pathsep + os.environ["PATH"])
        self.folder = folder
        self.process = subprocess.Popen([program, "--full-flashing"], env=self.env)
        if wait_for_main:
            self.await_main()

    @staticmethod
    def browser(folder):
        """A folder with a browser that only notes which page it is given, one a line, in pages.txt."""
        programs = os.path.join(folder, "bin")
        os.makedirs(programs, exist_ok=True)
        path = os.path.join(programs, "xdg-open")
        with open(path, "w", encoding="utf-8") as file:
            file.write(f'#!/bin/sh\necho "$1" >> "{folder}/pages.txt"\n')
        os.chmod(path, 0o755)
        return programs

    def await_main(self):
        self.main = self.window("Hoard Hustle v")
        time.sleep(0.5)

    def xdo(self, *words):
        done = subprocess.run(["xdotool", *map(str, words)], env=self.env, capture_output=True, text=True)
        return done.stdout.split()

    def find(self, title):
        return self.xdo("search", "--onlyvisible", "--name", title)

    def window(self, title, seconds=20):
        """Waits for a window whose title holds the text."""
        end = time.time() + seconds
        while time.time() < end:
            assert self.process.poll() is None, f"the program ended while {title!r} was awaited"
            found = self.find(title)
            if found:
                return found[0]
            time.sleep(0.05)
        raise AssertionError(f"no window {title!r}")

    def gone(self, title, seconds=10):
        """Waits until no window has the title."""
        end = time.time() + seconds
        while time.time() < end:
            if not self.find(title):
                return
            time.sleep(0.05)
        raise AssertionError(f"the window {title!r} is still there")

    def key(self, name):
        self.xdo("key", name)
        time.sleep(0.15)

    def menu(self, menu, entry):
        """Opens a menu by Alt and its letter, and takes an entry by its letter."""
        self.front(self.main)
        self.key("alt+" + menu)
        time.sleep(0.2)
        self.key(entry)

    def front(self, window):
        self.xdo("windowfocus", "--sync", window)
        time.sleep(0.2)

    def click(self, x, y, panel=PANEL):
        """A click on a point of main or of the board, in panel pixels."""
        shape = dict(part.split("=") for part in self.xdo("getwindowgeometry", "--shell", self.main))
        left, top, width, height = (int(shape[n]) for n in ("X", "Y", "WIDTH", "HEIGHT"))
        # Main fills the window beneath the menu bar; the board is fitted into the same room.
        room = width * PANEL[1] / PANEL[0]
        scale = min(width / panel[0], room / panel[1])
        x = left + (width - panel[0] * scale) / 2 + x * scale
        y = top + height - room + (room - panel[1] * scale) / 2 + y * scale
        self.xdo("mousemove", round(x), round(y), "click", 1)
        time.sleep(0.15)

    def page_opened(self, page, seconds=10):
        """Waits until the browser has been sent to a page of that name, and gives its file."""
        pages = os.path.join(self.folder, "pages.txt")
        end = time.time() + seconds
        while time.time() < end:
            if os.path.exists(pages):
                with open(pages, encoding="utf-8") as file:
                    for address in file.read().split():
                        if address.endswith(page):
                            return urllib.parse.unquote(address.removeprefix("file://"))
            time.sleep(0.05)
        raise AssertionError(f"no browser was sent to {page}")

    def end(self, seconds=10):
        """Waits for the program's own end, which must be a good one."""
        status = self.process.wait(timeout=seconds)
        assert status == 0, f"the program ended with {status}"

    def stop(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()

    def lines(self, name):
        """The lines of a stored file, each of which must end with CR LF."""
        with open(os.path.join(self.folder, name), newline="", encoding="utf-8") as file:
            text = file.read()
        assert text.endswith("\r\n"), f"{name} does not end with CR LF"
        return text[:-2].split("\r\n")


def ask(script_program, text):
    """What the panel script answers: the same machine, without a window."""
    done = subprocess.run([script_program], input=text, capture_output=True, text=True, timeout=60)
    answers = {}
    for line in done.stdout.splitlines():
        name, equals, value = line.partition(" = ")
        if equals:
            answers[name] = value.strip('"')
    return answers


def near(found, wanted, what):
    assert abs(float(found) - wanted) < 0.005, f"{what}: {found}, not {wanted}"


def run(test):
    """Runs a test with a display and a folder that are gone afterwards."""
    skip_without_tools()
    with Display() as display, tempfile.TemporaryDirectory() as folder:
        test(display, folder)
    print("played")
