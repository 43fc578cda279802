"""Takes every entry of the menu in a real window: the options are stored, the guides open and
close, the table is wiped, and the machine is refilled in the middle of a payout.

Usage: entries.py HOARDHUSTLE HUSTLESCRIPT
"""

import os

from window import BOARD, Machine, ask, near, run

TO_THE_BOARD = 12000  # ms from Start to the open board
COLLECT = (68, 531)


def seed_with_mixed_sevens():
    """A first play that makes a line of 1.60, which is topped up to 2.00 when it is collected."""
    for seed in range(1, 2000):
        told = ask(f"seed {seed}\npress main.start\nrun {TO_THE_BOARD}\n"
                   "get feature.loaded featuremode win\n")
        if (told["feature.loaded"], told["featuremode"], told["win"]) == ("true", "hilo", "1.6"):
            return seed
    raise AssertionError("no seed makes a line of mixed sevens")


def options(machine):
    for letter in "fsr" + "oul" + "ibyg" + "ah" + "eu":  # the LEDs, the logo and the sound among them
        machine.menu("o", letter)
    for letter in "pd":  # the currency asks for a restart
        machine.menu("o", letter)
        machine.key_in("^Hoard Hustle$", "Return")
        machine.gone("^Hoard Hustle$")
    machine.menu("o", "g")
    machine.menu("o", "r")


def guides(machine):
    for letter, title in (("r", "Reel Guide"), ("w", "Win Guide"), ("a", "About")):
        machine.menu("h", letter)
        machine.key_in(title, "Escape")
        machine.gone(title)
    for letter, page in (("o", "index.html"), ("v", "home.html")):
        machine.menu("h", letter)
        opened = machine.page_opened(page)
        assert os.path.isfile(opened), f"the browser was sent to {opened}, which is not there"


def insert_a_coin(machine):
    machine.menu("g", "i")
    machine.key_in("Nothing in Bank", "Return")
    machine.gone("Nothing in Bank")


def wipe_the_table(machine):
    machine.menu("g", "v")
    machine.front(machine.window("HighScores"))
    machine.click_in("HighScores", 5617 / 7785, 5797 / 6300)  # Reset
    machine.key("Escape")
    machine.gone("HighScores")


def refill_in_a_payout(machine):
    machine.front(machine.main)
    machine.key("space")
    machine.until(feature__loaded="true", feature__collect__enabled="true")
    machine.click(*COLLECT, BOARD)
    machine.until(feature__loaded="false")  # the count begins
    machine.menu("g", "r")
    machine.front(machine.window("Statistics Screen"))  # it closes where it loses the keys
    machine.click_in("Statistics Screen", 260 / 368, 249 / 283)  # Reset
    machine.key_in("Reset Machine Statistics", "alt+y")
    machine.gone("Reset Machine Statistics")
    machine.until(moneyin="100", bank="2", main__wintobank__running="false")


def leave_with_a_name(machine):
    machine.menu("g", "e")
    machine.key_in("Enter Your Name", "Return")
    machine.gone("Enter Your Name")
    machine.key_in("HighScores", "Tab", "Return")
    machine.end()


def everything(display, folder):
    with open(os.path.join(folder, "hscore.dat"), "w", newline="", encoding="utf-8") as file:
        file.write("40\r\n" * 10 + '"          NOBODY"\r\n' * 10)
    machine = Machine(display, seed_with_mixed_sevens(), folder)
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
