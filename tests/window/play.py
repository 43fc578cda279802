"""Plays the machine in a real window: Start by Space, a hold, the reel guide, a refused transfer,
menu entries, Exit; then the two files must tell of it.

Usage: play.py HOARDHUSTLE HUSTLESCRIPT
"""

import os
import subprocess
import sys
import time

from window import Machine, ask, near, run

PROGRAM, SCRIPT = sys.argv[1:3]
ONE_PLAY = 7  # seconds: a play on the fast reels is over, with its trail run


def seed_with_holds():
    """A first play that ends in a hold offer, and nothing else going on."""
    for seed in range(1, 200):
        told = ask(SCRIPT, f"seed {seed}\npress main.start\nrun {ONE_PLAY * 1000}\n"
                   "get holdsoffered nudges main.start.enabled main.stopper.enabled reel1pos\n")
        if (told["holdsoffered"], told["nudges"], told["main.start.enabled"],
                told["main.stopper.enabled"]) == ("yes", "0", "true", "false"):
            return seed, told["reel1pos"]
    raise AssertionError("no seed offers a hold")


def play(display, folder):
    seed, first_stop = seed_with_holds()
    machine = Machine(PROGRAM, display, seed, folder)
    try:
        machine.key("space")
        time.sleep(ONE_PLAY)
        machine.key("1")  # hold reel 1
        machine.key("space")
        time.sleep(0.5)

        machine.click(350, 250)  # reel 2, while it spins: the guide opens and play goes on
        machine.window("Reel Guide")
        time.sleep(ONE_PLAY)
        machine.xdo("windowfocus", "--sync", machine.window("Reel Guide"))
        machine.key("Escape")
        machine.gone("Reel Guide")

        machine.front(machine.main)
        machine.click(777, 28)  # transfer, with nothing in the bank
        machine.window("Nothing in Bank")
        machine.key("space")  # closes the box, and starts nothing
        machine.gone("Nothing in Bank")
        machine.front(machine.main)
        machine.key("0")  # the same by key
        machine.window("Nothing in Bank")
        machine.key("Escape")
        machine.gone("Nothing in Bank")

        machine.menu("o", "s")  # Slow Reelspin
        machine.menu("h", "w")  # Wins
        machine.xdo("windowfocus", "--sync", machine.window("Win Guide"))
        machine.key("Escape")
        machine.gone("Win Guide")
        machine.menu("g", "n")  # New, and No
        machine.window("Begin New Game")
        machine.key("Escape")
        machine.gone("Begin New Game")
        machine.menu("g", "e")  # Exit
        machine.end()
    finally:
        machine.stop()

    ledgers = machine.lines("game.dat")
    assert len(ledgers) == 17, f"game.dat has {len(ledgers)} lines"
    near(ledgers[0], 100.50, "money in after two plays")
    near(ledgers[7], 0.10, "house cut of two plays")
    assert ledgers[8] == "", "line 9 of game.dat is empty"
    assert ledgers[9] == first_stop, f"the held reel stands on {ledgers[9]}, not {first_stop}"
    assert ledgers[12] == "2", "slow reels are remembered"
    assert len(machine.lines("hscore.dat")) == 20, "hscore.dat has twenty lines"
    return ledgers


def restart(display, folder, before):
    """The second run reads what the first one wrote, and a damaged file is told and kept."""
    with open(os.path.join(folder, "hscore.dat"), "w", encoding="utf-8") as file:
        file.write("nonsense\r\n")
    machine = Machine(PROGRAM, display, 1, folder, wait_for_main=False)
    try:
        machine.window("Hoard Hustle")  # the box comes before the machine
        time.sleep(0.3)
        machine.key("Return")
        machine.await_main()
        machine.menu("g", "e")
        machine.end()
    finally:
        machine.stop()
    assert machine.lines("game.dat") == before, "a run without a play changes nothing"
    assert len(machine.lines("hscore.dat")) == 20
    assert os.path.exists(os.path.join(folder, "hscore.dat.damaged"))


def without_a_display():
    bare = {name: value for name, value in os.environ.items()
            if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    done = subprocess.run([PROGRAM], env=bare, capture_output=True, text=True, timeout=10)
    assert done.returncode == 1 and "needs a screen" in done.stderr, done.stderr


def everything(display, folder):
    without_a_display()
    before = play(display, folder)
    restart(display, folder, before)


run(everything)
