"""A display, a program and a hand: what the tests of the real window share.

Everything goes through the X server, as a player's keys and clicks do. What the machine is at, a test
learns from the session that the window writes while it is played: replayed by the script runner, it
stands as the window stood at its last whole second. So nothing here waits for a time by the wall.
Exit status 77 skips the test where there is no Xvfb or no xdotool.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
import urllib.parse

PROGRAM, SCRIPT = sys.argv[1:3]
PANEL = (800, 562)  # pixels of main
BOARD = (800, 593)
PATIENCE = 60  # seconds, on however busy a machine


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
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{self.size}x24", "-nolisten", "tcp", "-noreset"],
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

    def __init__(self, display, seed, folder, wait_for_main=True, country="C"):
        self.env = dict(os.environ, DISPLAY=display.name, HUSTLE_DATA=folder, HUSTLE_SEED=str(seed),
                        SDL_AUDIODRIVER="dummy", LC_ALL=country + ".UTF-8", QT_QPA_PLATFORM="xcb",
                        QT_SCALE_FACTOR="1", PATH=self.browser(folder) + os.pathsep + os.environ["PATH"])
        self.folder = folder
        self.session = os.path.join(folder, "session.txt")
        self.process = subprocess.Popen([PROGRAM, "--full-flashing"], env=self.env)
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

    def wait(self, what, look, may_end=False):
        """Looks until there is something to be seen, and gives it; the end of the program may be that."""
        end = time.time() + PATIENCE
        while time.time() < end:
            if self.process.poll() is not None:
                assert may_end, f"the program ended while it should come to this: {what}"
                return None
            seen = look()
            if seen:
                return seen
            time.sleep(0.05)
        raise AssertionError(f"in vain: {what}")

    def await_main(self):
        self.main = self.window("Hoard Hustle v")
        self.wait("main stands", lambda: "\nboot\n" in self.told())

    def told(self):
        """The session as it is written down by now, in whole lines."""
        if not os.path.exists(self.session):
            return ""
        with open(self.session, encoding="utf-8") as file:
            text = file.read()
        return text[:text.rfind("\n") + 1]

    def state(self, *names):
        """The values that these names had at the last whole second."""
        return ask(self.told() + "get " + " ".join(names) + "\n")

    def until(self, **wanted):
        """Waits until names have these values; a dot in a name is written as two underlines."""
        wanted = {name.replace("__", "."): value for name, value in wanted.items()}
        before, last = None, {}

        def look():
            nonlocal before, last
            text = self.told()
            if text != before:
                before, last = text, self.state(*wanted)
            return all(same(last.get(name, ""), value) for name, value in wanted.items())
        try:
            self.wait(str(wanted), look)
        except AssertionError as vain:
            raise AssertionError(f"{vain}; it was {last} after\n{before[-300:]}") from None

    def xdo(self, *words):
        done = subprocess.run(["xdotool", *map(str, words)], env=self.env, capture_output=True, text=True)
        return done.stdout.split()

    def find(self, title):
        return self.xdo("search", "--onlyvisible", "--name", title)

    def window(self, title):
        """Waits for a window whose title holds the text."""
        return self.wait(f"the window {title!r}", lambda: self.find(title))[0]

    def gone(self, title):
        """Waits until no window has the title."""
        self.wait(f"no window {title!r}", lambda: not self.find(title))

    def front(self, window):
        """Gives a window the keys; those that follow are its own, for they queue up behind the focus."""
        self.xdo("windowfocus", window)
        self.wait("the keys go to the window", lambda: self.xdo("getwindowfocus", "-f") == [window])

    def key(self, *names):
        self.xdo("key", *names)

    def keyboard(self, layout):
        """Lays out the keys as a country has them."""
        subprocess.run(["setxkbmap", layout], env=self.env, check=True)

    def key_in(self, title, *names):
        """Keys for a window that comes up by itself."""
        self.front(self.window(title))
        self.key(*names)

    def menu(self, menu, entry):
        """Opens a menu by Alt and its letter, and takes an entry by its letter once the menu stands. With the
        entry that ends the program the menu goes as well."""
        self.front(self.main)
        before = set(self.find(""))
        self.key("alt+" + menu)
        opened = self.wait(f"the menu {menu} opens", lambda: set(self.find("")) - before)
        self.key(entry)
        self.wait(f"the menu {menu} closes", lambda: not opened & set(self.find("")), may_end=True)

    def click_at(self, window, place):
        """A click on the point of a window that `place` tells from its width and height."""
        shape = dict(part.split("=") for part in self.xdo("getwindowgeometry", "--shell", window))
        left, top, width, height = (int(shape[n]) for n in ("X", "Y", "WIDTH", "HEIGHT"))
        x, y = place(width, height)
        self.xdo("mousemove", round(left + x), round(top + y), "click", 1)

    def click(self, x, y, panel=PANEL):
        """A click on a point of main or of the board, in panel pixels."""
        def place(width, height):
            # Main stands between the menu bar and the hint line; the board is fitted into the same room.
            hint = min(max(width // 40, 26), 52)
            room = width * PANEL[1] / PANEL[0]
            scale = min(width / panel[0], room / panel[1])
            return ((width - panel[0] * scale) / 2 + x * scale,
                    height - hint - room + (room - panel[1] * scale) / 2 + y * scale)
        self.click_at(self.main, place)

    def click_in(self, title, across, down):
        """A click in a window of its own, at shares of its width and height."""
        self.click_at(self.window(title), lambda width, height: (width * across, height * down))

    def page_opened(self, page):
        """Waits until the browser has been sent to a page of that name, and gives its file."""
        pages = os.path.join(self.folder, "pages.txt")

        def look():
            if not os.path.exists(pages):
                return None
            with open(pages, encoding="utf-8") as file:
                found = [address for address in file.read().split() if address.endswith(page)]
            return found and urllib.parse.unquote(found[0].removeprefix("file://"))
        return self.wait(f"a browser is sent to {page}", look)

    def end(self):
        """Waits for the program's own end, which must be a good one."""
        status = self.process.wait(timeout=PATIENCE)
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


def ask(text):
    """What the panel script answers: the same machine, without a window."""
    done = subprocess.run([SCRIPT], input=text, capture_output=True, text=True, timeout=60)
    answers = {}
    for line in done.stdout.splitlines():
        name, equals, value = line.partition(" = ")
        if equals and name != "hash":
            answers[name] = value.strip('"')
    return answers


def same(found, wanted):
    """Two values as the script runner tells them; numbers to half a penny."""
    try:
        return abs(float(found) - float(wanted)) < 0.005
    except ValueError:
        return found == wanted


def near(found, wanted, what):
    assert abs(float(found) - wanted) < 0.005, f"{what}: {found}, not {wanted}"


def run(test):
    """Runs a test with a display and a folder that are gone afterwards."""
    skip_without_tools()
    with Display() as display, tempfile.TemporaryDirectory() as folder:
        try:
            test(display, folder)
        except AssertionError:
            session = os.path.join(folder, "session.txt")
            if os.path.exists(session):
                with open(session, encoding="utf-8") as file:
                    print("the session ended with\n" + "".join(file.readlines()[-30:]))
            raise
    print("played")
