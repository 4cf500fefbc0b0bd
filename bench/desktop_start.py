#!/usr/bin/env python3
"""Measures the desktop program's start, first sheet and memory against bare Qt windows, and how
long it takes to stretch all screens to the display and paint them again.

All programs run in turn on one virtual display, so that a busy machine slows them alike; the
medians and their ratios are printed. Build the preset release first.
"""
import argparse
import json
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

BUILDS = pathlib.Path(__file__).resolve().parent.parent / "build"
SECONDS = 60


def start_display():
    """Starts a display of our own and gives its process and name."""
    reader, writer = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1920x1080x24", "-nolisten", "tcp"],
        pass_fds=[writer], stderr=subprocess.DEVNULL)
    os.close(writer)
    with os.fdopen(reader) as pipe:
        number = pipe.readline().strip()
    if not number:
        sys.exit("desktop_start.py: Xvfb does not start")
    return server, ":" + number


def run(command, display, folder, **settings):
    """Runs a program to its end and gives the figures that it printed."""
    environment = {**os.environ, "DISPLAY": display, "QT_QPA_PLATFORM": "xcb",
                   "KESTRUM_FOLDER": folder, **settings,
                   "BENCH_T0": str(time.clock_gettime_ns(time.CLOCK_MONOTONIC))}
    try:
        done = subprocess.run(command, env=environment, capture_output=True, text=True,
                              timeout=SECONDS, check=False)
    except subprocess.TimeoutExpired:
        sys.exit(f"desktop_start.py: {command[0]} has not ended after {SECONDS} seconds")
    lines = [line for line in done.stdout.splitlines() if line.startswith("{")]
    if done.returncode != 0 or not lines:
        sys.exit(f"desktop_start.py: {command[0]} ended with status {done.returncode} "
                 f"and {len(lines)} lines of figures\n{done.stderr}")
    return json.loads(lines[-1])


def measure(rounds, display, bare_window, kestrum):
    """Gives the median of each figure."""
    figures = {"main": [], "sheet": [], "memory": [], "bare_120": [], "bare_650": [],
               "bare_memory": [], "adapted": [], "worked": []}
    for _ in range(rounds):
        # An own folder each time, or the session file of one round would be read by the next.
        with tempfile.TemporaryDirectory() as folder:
            bare = run([bare_window, "120"], display, folder)
            figures["bare_120"].append(bare["painted_ms"])
            figures["bare_memory"].append(bare["rss_kb"])
            start = run([kestrum], display, folder, KESTRUM_BENCH="start")
            figures["main"].append(start["main_painted_ms"])
        with tempfile.TemporaryDirectory() as folder:
            figures["bare_650"].append(run([bare_window, "650"], display, folder)["painted_ms"])
            sheet = run([kestrum], display, folder, KESTRUM_BENCH="sheet")
            figures["sheet"].append(sheet["sheet_painted_ms"])
            figures["memory"].append(sheet["rss_kb"])
        with tempfile.TemporaryDirectory() as folder:
            adapted = run([kestrum], display, folder, KESTRUM_BENCH="adapt")
            figures["adapted"].append(adapted["repainted_ms"])
            figures["worked"].append(adapted["worked_ms"])
    return {name: statistics.median(values) for name, values in figures.items()}


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--rounds", type=int, default=9, help="how often each program runs")
    parser.add_argument("--build", default="release", help="name of the build folder")
    chosen = parser.parse_args()
    bare_window, kestrum = (BUILDS / chosen.build / "bench" / name
                            for name in ("bare_window", "desktop_measured"))
    for program in (bare_window, kestrum):
        if not program.exists():
            sys.exit(f"desktop_start.py: {program} is not built")

    server, display = start_display()
    try:
        with tempfile.TemporaryDirectory() as folder:  # fills the caches
            run([bare_window, "650"], display, folder)
            run([kestrum], display, folder, KESTRUM_BENCH="sheet")
        median = measure(chosen.rounds, display, bare_window, kestrum)
    finally:
        server.terminate()
        server.wait()

    for title, ours, bare, unit, wanted in (
            ("Start to painted Main / bare window of 120 edits", "main", "bare_120", "ms", 1.4),
            ("First sheet painted / start of a bare window of 650", "sheet", "bare_650", "ms", 1.0),
            ("Memory with one sheet / bare window of 120 edits", "memory", "bare_memory", "kB",
             1.6)):
        print(f"{title:52} {median[ours]:8.1f} {unit} / {median[bare]:8.1f} {unit} = "
              f"{median[ours] / median[bare]:5.2f}  (wanted: at most {wanted})")
    print(f"{'All nine screens stretched and painted again':52} {median['adapted']:8.1f} ms "
          f"(wanted: at most 150), {median['worked']:.1f} ms of them at work in the program")


if __name__ == "__main__":
    main()
