#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Start-up to the first painted frame, as whole processes: zelflightab against
a minimal Qt Widgets window built in the same tree. Prints the median of each,
their ratio, and the peak memory (resident set) of both.

Usage: bench/startup.py BUILD_DIR [RUNS]"""
import os
import resource
import statistics
import subprocess
import sys
import time


def run(program, runs):
    env = dict(os.environ, ZEL_EXIT_AFTER_FIRST_FRAME="1")
    env.setdefault("QT_QPA_PLATFORM", "offscreen")
    times, peaks = [], []
    for _ in range(runs):
        start = time.perf_counter()
        pid = subprocess.Popen([program], env=env, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL).pid
        _, status, usage = os.wait4(pid, 0)
        times.append(time.perf_counter() - start)
        peaks.append(usage.ru_maxrss)  # KiB on Linux
        if status != 0:
            sys.exit(f"{program} exited with status {status}")
    return statistics.median(times), max(peaks)


def main():
    build = sys.argv[1] if len(sys.argv) > 1 else "build/release"
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 7
    app_time, app_peak = run(os.path.join(build, "zelflightab"), runs)
    min_time, min_peak = run(os.path.join(build, "zel_minimal_window"), runs)
    print(f"runs each:              {runs}")
    print(f"zelflightab   median:   {app_time * 1000:7.1f} ms   peak RSS {app_peak / 1024:6.1f} MiB")
    print(f"minimal window median:  {min_time * 1000:7.1f} ms   peak RSS {min_peak / 1024:6.1f} MiB")
    print(f"ratio of medians:       {app_time / min_time:7.2f}")


if __name__ == "__main__":
    main()
