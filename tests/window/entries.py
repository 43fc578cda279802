"""Takes every entry of the menu in a real window: the options are stored, the guides open and
close, the table is wiped, and the machine is refilled in the middle of a payout.

Usage: entries.py HOARDHUSTLE HUSTLESCRIPT
"""

import os
import sys
import time

from window import BOARD, Machine, ask, near, run

PROGRAM, SCRIPT = sys.argv[1:3]
TO_THE_BOARD = 12  # seconds from Start to the open board
TO_THE_COUNT = 7   # seconds from Collect to the middle of the count, its whole-pound bonus included
COLLECT = (68, 531)


def seed_with_mixed_sevens():
    """A first play that makes a line of 1.60, which is topped up to 2.00 when it is collected."""
    for seed in range(1, 2000):
        told = ask(SCRIPT, f"seed {seed}\npress main.start\nrun {TO_THE_BOARD * 1000}\n"
                   "get feature.loaded featuremode win\n")
        if (told["feature.loaded"], told["featuremode"], told["win"]) == ("true", "hilo", "1.6"):
            return seed
    raise AssertionError("no seed makes a line of mixed sevens")


def click_in(machine, title, across, down):
    """A click in a window of its own, at shares of its width and height."""
    window = machine.window(title)
    shape = dict(part.split("=") for part in machine.xdo("getwindowgeometry", "--shell", window))
    x = int(shape["X"]) + int(shape["WIDTH"]) * across
    y = int(shape["Y"]) + int(shape["HEIGHT"]) * down
    machine.xdo("mousemove", round(x), round(y), "click", 1)
    time.sleep(0.15)


def options(machine):
    for letter in "fsr" + "oul" + "ibyg" + "ah" + "eu":  # the LEDs, the logo and the sound among them
        machine.menu("o", letter)
    for letter in "pd":  # the currency asks for a restart
        machine.menu("o", letter)
        machine.window("^Hoard Hustle$")
        machine.key("Return")
        machine.gone("^Hoard Hustle$")
    machine.menu("o", "g")
    machine.menu("o", "r")


def guides(machine):
    for letter, title in (("r", "Reel Guide"), ("w", "Win Guide"), ("a", "About")):
        machine.menu("h", letter)
        machine.front(machine.window(title))
        machine.key("Escape")
        machine.gone(title)
    for letter, page in (("o", "index.html"), ("v", "home.html")):
        machine.menu("h", letter)
        opened = machine.page_opened(page)
        assert os.path.isfile(opened), f"the browser was sent to {opened}, which is not there"


def insert_a_coin(machine):
    machine.menu("g", "i")
    machine.window("Nothing in Bank")
    machine.key("Return")
    machine.gone("Nothing in Bank")


def wipe_the_table(machine):
    machine.menu("g", "v")
    machine.front(machine.window("HighScores"))
    click_in(machine, "HighScores", 5617 / 7785, 5797 / 6300)  # Reset
    machine.key("Escape")
    machine.gone("HighScores")


def refill_in_a_payout(machine):
    machine.front(machine.main)
    machine.key("space")
    time.sleep(TO_THE_BOARD)
    machine.click(*COLLECT, BOARD)
    machine.menu("g", "r")
    machine.front(machine.window("Statistics Screen"))
    time.sleep(TO_THE_COUNT - 1.5)
    click_in(machine, "Statistics Screen", 260 / 368, 249 / 283)  # Reset
    machine.window("Reset Machine Statistics")
    machine.key("alt+y")
    machine.gone("Reset Machine Statistics")
    time.sleep(4)


def leave_with_a_name(machine):
    machine.menu("g", "e")
    machine.front(machine.window("Enter Your Name"))
    machine.key("Return")
    machine.gone("Enter Your Name")
    machine.front(machine.window("HighScores"))
    machine.key("Tab")
    machine.key("Return")
    machine.end()


def everything(display, folder):
    with open(os.path.join(folder, "hscore.dat"), "w", newline="", encoding="utf-8") as file:
        file.write("40\r\n" * 10 + '"          NOBODY"\r\n' * 10)
    machine = Machine(PROGRAM, display, seed_with_mixed_sevens(), folder)
    try:
        insert_a_coin(machine)
        wipe_the_table(machine)
        refill_in_a_payout(machine)
        options(machine)
        guides(machine)
        leave_with_a_name(machine)
    finally:
        machine.stop()
    ledgers = machine.lines("game.dat")
    near(ledgers[0], 100, "money in after the refill")
    assert 80 <= float(ledgers[1]) <= 82, f"money out is {ledgers[1]}: what was still to be counted"
    near(ledgers[2], 2, "the last win stays")
    assert ledgers[12:] == ["3", '"off"', '"no"', "6", '"usd"'], f"the options are {ledgers[12:]}"
    table = machine.lines("hscore.dat")
    near(table[0], 2, "the two pounds of the win")
    assert table[1] == "0" and table[11] == f'"{" " * 15}"', "the table was wiped before"


run(everything)
