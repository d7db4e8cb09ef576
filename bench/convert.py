#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""One conversion in the terminal, as whole processes: `zelflightab --convert
weight lbs 75` against GNU units (`units -t '75 lb' kg`, Debian's units
package). Prints both answers, the median of each and their ratio.

Usage: bench/convert.py BUILD_DIR [RUNS]"""
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time


def run(command, runs, env):
    times = []
    for _ in range(runs):
        start = time.perf_counter()
        result = subprocess.run(command, env=env, capture_output=True, text=True, check=True)
        times.append(time.perf_counter() - start)
    return statistics.median(times), result.stdout


def main():
    build = sys.argv[1] if len(sys.argv) > 1 else "build/release"
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 21
    if not shutil.which("units"):
        sys.exit("GNU units is not installed (Debian package units)")
    with tempfile.TemporaryDirectory() as folder:
        env = dict(os.environ)
        ours = [os.path.join(build, "zelflightab"), "--folder", folder, "--locale", "en_US",
                "--convert", "weight", "lbs", "75"]
        ours_time, ours_out = run(ours, runs, env)
        units_time, units_out = run(["units", "-t", "75 lb", "kg"], runs, env)
    kilograms = next(line for line in ours_out.splitlines() if line.startswith("row 1 "))
    print(f"runs each:                   {runs}")
    print(f"zelflightab --convert median: {ours_time * 1000:7.2f} ms   {kilograms}")
    print(f"units -t median:              {units_time * 1000:7.2f} ms   {units_out.strip()} kg")
    print(f"ratio of medians:             {ours_time / units_time:7.2f}")


if __name__ == "__main__":
    main()
