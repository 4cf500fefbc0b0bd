#!/usr/bin/env python3
"""Measures `kestrum-cli graph` against gnuplot: four smooth curves of the same tests to a PNG file of
the same size, each a process of its own.

They run in turn, so that a busy machine slows them alike; the medians and their ratio are printed.
Build the preset release first, and install gnuplot-nox, which nothing else here needs.
"""
import argparse
import csv
import pathlib
import shutil
import statistics
import struct
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
FILES = [str(ROOT / "examples" / name)
         for name in ("jeep_4l_stock_table_1.dat", "jeep_4l_stock_table_2.dat")]


def run(command, **settings):
    done = subprocess.run(command, capture_output=True, text=True, check=False, **settings)
    if done.returncode != 0:
        sys.exit(f"graph_versus_gnuplot.py: {command[0]} ended with status {done.returncode}\n{done.stderr}")
    return done.stdout


def milliseconds(command):
    begin = time.perf_counter()
    run(command)
    return (time.perf_counter() - begin) * 1000


def png_size(path):
    head = path.read_bytes()[:24]
    if not head.startswith(b"\x89PNG"):
        sys.exit(f"graph_versus_gnuplot.py: {path.name} is no PNG file")
    return struct.unpack(">II", head[16:24])


def write_points(program, path):
    """The two X columns and four curves, as the compare table holds them."""
    table = run([program, "compare", *FILES, "--type", "0", "--csv"])
    with open(path, "w", encoding="utf-8") as points:
        for row in csv.DictReader(table.splitlines()):
            lifts = row["Text101"], row["Text106"]
            # Row 16 holds the zero lift; a lift of 0 in a later one is no point.
            if int(row["row"]) == 16 or (int(row["row"]) > 16 and "0" not in lifts):
                points.write(" ".join(row["Text10" + n] for n in "162345") + "\n")


def write_script(path, points, picture, size):
    curves = ((1, 3, "blue", 2), (1, 4, "red", 2), (2, 5, "blue", 4), (2, 6, "red", 4))
    plots = ", ".join(f"'{points}' using {x}:{y} smooth csplines lc rgb '{colour}' lw {width} "
                      f"title 'curve {y}'" for x, y, colour, width in curves)
    path.write_text(f"set terminal pngcairo size {size[0]},{size[1]}\nset output '{picture}'\n"
                    f"set grid\nset title 'CFM'\nset xlabel 'Valve Lift'\n"
                    f"plot {plots}\n", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--rounds", type=int, default=15, help="how often each program runs")
    parser.add_argument("--program", default=str(ROOT / "build" / "release" / "kestrum-cli"))
    arguments = parser.parse_args()
    if shutil.which("gnuplot") is None:
        sys.exit("graph_versus_gnuplot.py: gnuplot is not installed")
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        ours = [arguments.program, "graph", *FILES, "--type", "0", "-o", str(folder / "ours.png")]
        run(ours)
        size = png_size(folder / "ours.png")
        write_points(arguments.program, folder / "points")
        write_script(folder / "script", folder / "points", folder / "theirs.png", size)
        theirs = ["gnuplot", str(folder / "script")]
        run(theirs)
        if png_size(folder / "theirs.png") != size:
            sys.exit("graph_versus_gnuplot.py: the pictures differ in size")
        times = [(milliseconds(ours), milliseconds(theirs)) for _ in range(arguments.rounds)]
    ours, theirs = (statistics.median(column) for column in zip(*times))
    print(f"PNG of {size[0]} by {size[1]}: kestrum-cli graph {ours:.1f} ms / gnuplot {theirs:.1f} ms = "
          f"{ours / theirs:.2f} (wanted: below 1)")


if __name__ == "__main__":
    main()
