#!/usr/bin/env python3
"""pack.py WAVES PACK: all waves of a folder as one file of Opus sounds.

The first line is JSON, [[name, length], ...] with the names of the machine; the sounds follow.
"""
import json
import pathlib
import subprocess
import sys
import tempfile

waves, pack = map(pathlib.Path, sys.argv[1:3])
sounds = []
with tempfile.TemporaryDirectory() as folder:
    for wave in sorted(waves.glob("*.wav")):
        small = pathlib.Path(folder) / "small.opus"
        # The serial number is told, so that two builds give the same bytes.
        subprocess.run(["opusenc", "--quiet", "--serial", "1", "--bitrate", "48", wave, small], check=True)
        sounds.append((wave.name, small.read_bytes()))
head = json.dumps([[name, len(data)] for name, data in sounds], separators=(",", ":"))
pack.write_bytes(head.encode() + b"\n" + b"".join(data for _, data in sounds))
