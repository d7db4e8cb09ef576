#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""zelflightab against its yardsticks, as whole processes, in one run:

  1. `zelflightab --convert weight lbs 165` against GNU units
     (`units -t '165 lb' kg`, Debian's units package);
  2. the window from start to a saved first frame (`--script EMPTY
     --screenshot OUT.png`, offscreen) against the smallest Qt Widgets program
     that shows one QLabel and saves its first frame (bench/minimal_window.cpp).

The two sides of each pair run alternately, RUNS times each (at least 15).
Prints the medians, their ratio and the peak memory (resident set) of each.

Usage: bench/ratios.py [BUILD_DIR] [RUNS]"""
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time


def once(command, env):
    """Seconds and peak resident KiB of one run."""
    start = time.perf_counter()
    process = subprocess.Popen(command, env=env, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    seconds = time.perf_counter() - start
    if status != 0:
        sys.exit(f"{' '.join(command)} exited with status {status}")
    return seconds, usage.ru_maxrss


def pair(name, ours, theirs, yardstick, runs, env):
    times = {"ours": [], "theirs": []}
    peaks = {"ours": 0, "theirs": 0}
    for _ in range(runs):
        for side, command in (("ours", ours), ("theirs", theirs)):
            seconds, peak = once(command, env)
            times[side].append(seconds)
            peaks[side] = max(peaks[side], peak)
    ours_median = statistics.median(times["ours"])
    theirs_median = statistics.median(times["theirs"])
    print(f"{name}")
    print(f"  zelflightab   median {ours_median * 1000:7.2f} ms   peak RSS "
          f"{peaks['ours'] / 1024:6.1f} MiB")
    print(f"  {yardstick:13} median {theirs_median * 1000:7.2f} ms   peak RSS "
          f"{peaks['theirs'] / 1024:6.1f} MiB")
    print(f"  ratio of medians      {ours_median / theirs_median:7.2f}")


def main():
    build = sys.argv[1] if len(sys.argv) > 1 else "build/release"
    runs = max(15, int(sys.argv[2]) if len(sys.argv) > 2 else 21)
    if not shutil.which("units"):
        sys.exit("GNU units is not installed (Debian package units)")
    program = os.path.join(build, "zelflightab")
    with tempfile.TemporaryDirectory() as folder:
        env = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=folder)
        empty = os.path.join(folder, "empty.script")
        open(empty, "w").close()
        print(f"runs of each: {runs}, alternating")
        pair("--convert weight lbs 165",
             [program, "--folder", folder, "--locale", "en_US", "--convert", "weight", "lbs", "165"],
             ["units", "-t", "165 lb", "kg"], "GNU units", runs, env)
        # The yardstick's label is as large as the window: read off its picture.
        ours = os.path.join(folder, "ours.png")
        subprocess.run([program, "--folder", folder, "--script", empty, "--screenshot", ours],
                       env=env, check=True)
        with open(ours, "rb") as png:
            header = png.read(24)  # the IHDR chunk: width and height, big-endian
        width, height = int.from_bytes(header[16:20], "big"), int.from_bytes(header[20:24], "big")
        pair("window start to a saved first frame",
             [program, "--folder", folder, "--script", empty, "--screenshot",
              os.path.join(folder, "ours.png")],
             [os.path.join(build, "zel_minimal_window"), os.path.join(folder, "theirs.png"),
              str(width), str(height)],
             "one QLabel", runs, env)


if __name__ == "__main__":
    main()
