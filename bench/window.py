"""Measures the window beside what the toolkit itself needs (an empty main window that stays open):
the first painted frame, the memory at rest on main and on the board, and the processor's time at
rest and in play, at two widths, all in one run.

Usage: bench/window.py build/release/bin/hoardhustle build/release/bin/hustlescript \
    build/release/bin/emptywindow
"""

import os
import statistics
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../tests/window"))
from window import PROGRAM, Display, Machine, ask, run  # noqa: E402

EMPTY = sys.argv[3]
RUNS = 11
REST = 5         # seconds of rest that are measured
PLAY = 12        # seconds of play
TO_THE_BOARD = 12  # seconds from Start to the open board
WIDTHS = (800, 2400)
TICKS = os.sysconf("SC_CLK_TCK")


def first_frame(program, env):
    """Milliseconds from the start of a process to its first painted frame."""
    begun = time.perf_counter()
    words = [program] if program == EMPTY else [program, "--full-flashing"]
    process = subprocess.Popen(words, env=env, stdout=subprocess.PIPE)
    process.stdout.readline()
    took = (time.perf_counter() - begun) * 1000
    process.kill()
    process.wait()
    process.stdout.close()
    return took


def megabytes(process):
    """What a process holds alone and its share of what it holds with others."""
    with open(f"/proc/{process.pid}/smaps_rollup", encoding="ascii") as file:
        kept = {line.split(":")[0]: line.split()[1] for line in file if ":" in line}
    return int(kept["Pss"]) / 1024, int(kept["Rss"]) / 1024


def processor_seconds(process):
    with open(f"/proc/{process.pid}/stat", encoding="ascii") as file:
        fields = file.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / TICKS


def share(process, seconds, act=lambda: None):
    """Percent of a core that a process takes while `act` is done again and again."""
    before, begun = processor_seconds(process), time.perf_counter()
    while time.perf_counter() - begun < seconds:
        act()
        time.sleep(0.25)
    return 100 * (processor_seconds(process) - before) / (time.perf_counter() - begun)


def seed_of_a_line():
    for seed in range(1, 2000):
        told = ask(f"seed {seed}\npress main.start\nrun {TO_THE_BOARD * 1000}\n"
                   "get feature.loaded featuremode\n")
        if (told["feature.loaded"], told["featuremode"]) == ("true", "hilo"):
            return seed
    raise AssertionError("no seed makes a line")


def frames(env):
    first_frame(EMPTY, env), first_frame(PROGRAM, env)  # warm the disk's cache
    pairs = [(first_frame(EMPTY, env), first_frame(PROGRAM, env)) for _ in range(RUNS)]
    empty, ours = (statistics.median(column) for column in zip(*pairs))
    print(f"first frame: {ours:.0f} ms, an empty window {empty:.0f} ms, ratio {ours / empty:.2f}")


def memory(display, folder, env, width):
    """At rest, in the size that the window opens in, or `width` pixels wide."""
    empty = subprocess.Popen([EMPTY], env=env, stdout=subprocess.DEVNULL)
    machine = Machine(display, seed_of_a_line(), folder)
    size = f"{width} wide" if width else "as it opens"
    try:
        if width:
            machine.xdo("windowsize", "--sync", machine.main, width, width * 3 // 4)
        time.sleep(4)  # the pictures have been drawn ahead
        told = [("an empty window", megabytes(empty)), (f"main {size}", megabytes(machine.process))]
        machine.key("space")
        time.sleep(TO_THE_BOARD + 4)
        told.append((f"the board {size}", megabytes(machine.process)))
    finally:
        machine.stop()
        empty.kill()
        empty.wait()
    for what, (pss, rss) in told:
        ratio = f", ratio {pss / told[0][1][0]:.2f} ({rss / told[0][1][1]:.2f})"
        print(f"memory of {what}: {pss:.0f} MB (resident {rss:.0f} MB){ratio}")


def processor(display, folder, width):
    machine = Machine(display, 3, folder)
    try:
        machine.xdo("windowsize", "--sync", machine.main, width, width * 3 // 4)
        time.sleep(6)  # the pictures have been drawn anew
        rest = share(machine.process, REST)
        play = share(machine.process, PLAY, lambda: machine.xdo("key", "space"))
    finally:
        machine.stop()
    print(f"processor at {width} wide: {rest:.1f} % of a core at rest, {play:.1f} % in play")


def measure(display, folder):
    env = dict(os.environ, DISPLAY=display.name, HUSTLE_DATA=folder, HUSTLE_FIRST_FRAME="1",
               SDL_AUDIODRIVER="dummy", QT_QPA_PLATFORM="xcb")
    frames(env)
    for width in (WIDTHS[0], None):
        memory(display, folder, env, width)
    for width in WIDTHS:
        with Display(f"{max(WIDTHS) + 100}x{max(WIDTHS) * 3 // 4 + 100}") as wide:
            processor(wide, folder, width)


run(measure)
