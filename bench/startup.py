"""Measures the start-up to the first painted frame beside that of an empty main window, and the
processor time of a machine at rest.

Usage: bench/startup.py build/release/bin/hoardhustle build/release/bin/emptywindow
"""

import os
import statistics
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../tests/window"))
from window import Machine, run  # noqa: E402

PROGRAM, EMPTY = sys.argv[1:3]
RUNS = 9
REST = 5  # seconds of rest that are measured
TICKS = os.sysconf("SC_CLK_TCK")


def first_frame(program, env):
    """Milliseconds from the start of a process to its first painted frame."""
    begun = time.perf_counter()
    process = subprocess.Popen([program], env=env, stdout=subprocess.PIPE)
    process.stdout.readline()
    took = (time.perf_counter() - begun) * 1000
    process.kill()
    process.wait()
    process.stdout.close()
    return took


def processor_seconds(process):
    with open(f"/proc/{process.pid}/stat", encoding="ascii") as file:
        fields = file.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / TICKS


def measure(display, folder):
    env = dict(os.environ, DISPLAY=display.name, HUSTLE_DATA=folder, HUSTLE_FIRST_FRAME="1",
               SDL_AUDIODRIVER="dummy", QT_QPA_PLATFORM="xcb")
    first_frame(EMPTY, env), first_frame(PROGRAM, env)  # warm the disk's cache
    pairs = [(first_frame(EMPTY, env), first_frame(PROGRAM, env)) for _ in range(RUNS)]
    empty, ours = (statistics.median(column) for column in zip(*pairs))
    print(f"first frame: {ours:.0f} ms, an empty window {empty:.0f} ms, ratio {ours / empty:.2f}")

    machine = Machine(PROGRAM, display, 1, folder)
    try:
        time.sleep(3)  # the pictures have been drawn ahead
        before = processor_seconds(machine.process)
        time.sleep(REST)
        share = (processor_seconds(machine.process) - before) / REST
    finally:
        machine.stop()
    print(f"at rest: {100 * share:.1f} % of one core")


run(measure)
