"""Plays the machine in a real window: Start by Space, a hold, the reel guide, a refused transfer,
menu entries, Exit; then the two files must tell of it.

Usage: play.py HOARDHUSTLE HUSTLESCRIPT
"""

import os
import subprocess

from window import PROGRAM, Machine, ask, near, run

ONE_PLAY = 7000  # ms: a play on the fast reels is over, with its trail run
AT_REST = {"main.start.enabled": "true", "main.stopper.enabled": "false", "main.numbers2.running": "false",
           "main.reelspin3.running": "false"}


def seed_with_holds():
    """A first play that ends in a hold offer, and nothing else going on."""
    for seed in range(1, 200):
        told = ask(f"seed {seed}\npress main.start\nrun {ONE_PLAY}\n"
                   "get holdsoffered nudges reel1pos " + " ".join(AT_REST) + "\n")
        first_stop = told.pop("reel1pos")
        if told == {"holdsoffered": "yes", "nudges": "0", **AT_REST}:
            return seed, first_stop
    raise AssertionError("no seed offers a hold")


def at_rest():
    return {name.replace(".", "__"): value for name, value in AT_REST.items()}


def play(display, folder):
    seed, first_stop = seed_with_holds()
    machine = Machine(display, seed, folder)
    try:
        machine.key("space")
        machine.until(credits="19", holdsoffered="yes", **at_rest())
        machine.key("1")  # hold reel 1
        machine.until(reel1held="yes")
        machine.key("space")
        machine.click(350, 250)  # reel 2, while it spins: the guide opens and play goes on
        machine.window("Reel Guide")
        machine.until(credits="18", reelguide__loaded="true", **at_rest())
        machine.key_in("Reel Guide", "Escape")
        machine.gone("Reel Guide")

        machine.front(machine.main)
        machine.click(777, 28)  # transfer, with nothing in the bank
        machine.key_in("Nothing in Bank", "space")  # closes the box, and starts nothing
        machine.gone("Nothing in Bank")
        machine.front(machine.main)
        machine.key("0")  # the same by key
        machine.key_in("Nothing in Bank", "Escape")
        machine.gone("Nothing in Bank")
        machine.keyboard("fr")  # on which that key writes an accented letter
        machine.front(machine.main)
        machine.key("19")  # by its place
        machine.key_in("Nothing in Bank", "Escape")
        machine.gone("Nothing in Bank")
        machine.front(machine.main)
        machine.key("49", "10", "11", "12")  # left of the figures, and three of them
        for code in 192, 49, 50, 51:
            machine.wait(f"the key {code}", lambda line=f"\nkey {code} main\n": line in machine.told())
        machine.keyboard("us")

        machine.menu("o", "s")  # Slow Reelspin
        machine.until(reelspeed="2")
        machine.menu("h", "w")  # Wins
        machine.key_in("Win Guide", "Escape")
        machine.gone("Win Guide")
        machine.menu("g", "n")  # New, and No
        machine.key_in("Begin New Game", "Escape")
        machine.gone("Begin New Game")
        machine.until(credits="18")
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
    machine = Machine(display, 1, folder, wait_for_main=False)
    try:
        machine.key_in("^Hoard Hustle$", "Return")  # the box comes before the machine
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
    done = subprocess.run([PROGRAM], env=bare, capture_output=True, text=True, timeout=60)
    assert done.returncode == 1 and "needs a screen" in done.stderr, done.stderr
    bare["HUSTLE_DATA"] = b"caf\xe9"
    done = subprocess.run([PROGRAM], env=bare, capture_output=True, text=True, timeout=60)
    assert done.returncode == 2 and "no UTF-8" in done.stderr, "else it plays in another folder"


def everything(display, folder):
    without_a_display()
    before = play(display, folder)
    restart(display, folder, before)


run(everything)
