"""Plays a real window at random, kills it with SIGKILL, and replays the session that it has written:
at every hash in the file the replayed machine must stand in the same state, to the last lamp. It is played
in a country whose amounts a panel script does not know.

Usage: record.py HOARDHUSTLE HUSTLESCRIPT [SECONDS]
"""

import os
import random
import signal
import subprocess
import sys
import time

from window import SCRIPT, Machine, run

SECONDS = float(sys.argv[3]) if len(sys.argv) > 3 else 20
COUNTRY = "de_DE"
KEYS = ["space"] * 6 + ["1", "2", "3", "0", "c", "Escape", "Return", "Tab", "F1"]
MENUS = ["v", "r", "i", "n"]  # of Game: the table, the refill, a coin, a new game


def play_at_random(machine, chance):
    end = time.time() + SECONDS
    while time.time() < end:
        assert machine.process.poll() is None, "the program ended by itself"
        deed = chance.random()
        if deed < 0.6:
            machine.xdo("key", chance.choice(KEYS))
        elif deed < 0.9:
            machine.xdo("mousemove", chance.randrange(1280), chance.randrange(60, 1024), "click", 1)
        elif deed < 0.92:  # as long as a laptop that is shut for a moment
            machine.process.send_signal(signal.SIGSTOP)
            time.sleep(chance.uniform(0.05, 0.6))
            machine.process.send_signal(signal.SIGCONT)
        elif deed < 0.96:
            machine.xdo("key", "alt+g", "key", chance.choice(MENUS))
        else:
            machine.xdo("windowfocus", machine.main)
        time.sleep(chance.uniform(0.02, 0.5))


def see_it_told(machine):
    """A box that stands open holds the hashes back: answers it until there are some."""
    def look():
        for window in machine.find("Hoard|Bank|Game|Reset"):
            machine.xdo("windowfocus", window, "key", "Escape")
        return machine.told().count("\nhash # ") >= 3
    machine.wait("three hashes are written down", look)


def replay(path):
    with open(path, encoding="utf-8") as file:
        wanted = [line.split()[-1] for line in file if line.startswith("hash # ") and line.endswith("\n")]
    done = subprocess.run([SCRIPT, path], capture_output=True, text=True, timeout=120)
    assert done.returncode == 0, done.stderr
    found = [line.split()[-1] for line in done.stdout.splitlines() if line.startswith("hash = ")]
    for second, (want, have) in enumerate(zip(wanted, found)):
        assert want == have, f"hash {second} of {len(wanted)}: {have}, not {want}"
    assert len(wanted) == len(found)
    with open(path, encoding="utf-8") as file:
        assert "€" in file.read(), "no amount of that country was seen"
    print(f"{len(wanted)} hashes hold")


def record(display, folder):
    seed = int(os.environ.get("SEED", "5"))  # of the presses; their times are the real clock's
    print(f"seed {seed}")
    machine = Machine(display, seed, folder, country=COUNTRY)
    session = os.path.join(folder, "session.txt")
    try:
        for window in "vr":  # the table and the ledgers, with amounts as that country writes them
            machine.menu("g", window)
        play_at_random(machine, random.Random(seed))
        see_it_told(machine)
    finally:
        machine.stop()  # SIGKILL
    try:
        replay(session)
    except AssertionError:
        os.replace(session, "failed-session.txt")  # in the folder of the test, to be looked at
        raise

    machine = Machine(display, 1, folder)  # the one before is kept
    machine.stop()
    assert os.path.exists(os.path.join(folder, "session-before.txt"))


run(record)
