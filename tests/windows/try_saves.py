#!/usr/bin/env python3
"""Saves of kestrum-cli.exe under wine, where they go wrong: try_saves.py PATH/TO/kestrum-cli.exe

Two programs on one file, a kill in the middle, a file and a disk that cannot be written, a full disk (root is wanted for
the disks, which are mounted). Each must end as on other systems: a file is whole, of one saving, and nothing is left beside.
"""
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import time

PROGRAM = os.path.abspath(sys.argv[1]) if len(sys.argv) > 1 else sys.exit(__doc__)
failed = []


def start(script, folder):
    """The program itself, for wine becomes it."""
    program = subprocess.Popen(["wine", PROGRAM, "script", "--folder", folder, "-"], stdin=subprocess.PIPE,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    try:
        program.stdin.write(script.encode())
        program.stdin.close()
    except BrokenPipeError:
        pass  # it was killed while it read
    return program


def run(script, folder):
    program = start(script, folder)
    output = program.stdout.read().decode()
    program.wait(60)
    return output


def saving(path, part):
    """A script that saves a test with a part number to a path."""
    return f"set Form1.Text102(0) {part}\nset Form1.Text38 {part * 2000}\nchoose Z:{path}\nclick Form1.Save_Data\n"


def check(what, holds, seen=""):
    print(("ok      " if holds else "FAILED  ") + what + ("" if holds else f": {seen}"))
    if not holds:
        failed.append(what)


def is_whole(path, parts):
    text = pathlib.Path(path).read_bytes().decode("latin-1")
    return any(f"Text102_0 = {part}\r\n" in text and part * 2000 in text for part in parts)


def two_programs(folder):
    path = os.path.join(folder, "head.dat")
    programs = [start(saving(path, part) * 40, folder) for part in ("Anton", "Berta")]
    torn = reads = 0
    while any(program.poll() is None for program in programs):
        if os.path.exists(path):
            reads += 1
            torn += not is_whole(path, ("Anton", "Berta"))
    refused = sum(program.stdout.read().decode().count("NOT been Saved") for program in programs)
    left = [name for name in os.listdir(folder) if "kestrum" in name]
    check(f"two programs on one file, {reads} reads meanwhile", torn == 0 and refused == 0 and not left and reads > 20,
          f"torn {torn}, refused {refused}, left {left}")


def killed(folder):
    path = os.path.join(folder, "head.dat")
    run(saving(path, "Anton"), folder)
    chance = random.Random(20260212)
    torn = saves = 0
    for _ in range(12):
        with open(os.path.join(folder, "script"), "w", encoding="ascii") as script:
            script.write((saving(path, "Anton") + saving(path, "Berta")) * 300)
        program = subprocess.Popen(["wine", PROGRAM, "script", "--folder", folder, f"Z:{script.name}"],
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        time.sleep(0.15 + chance.random() / 3)
        saves += program.poll() is None
        program.kill()
        program.wait()
        torn += not is_whole(path, ("Anton", "Berta"))
    time.sleep(1)
    run(saving(path, "Caesar"), folder)
    left = [name for name in os.listdir(folder) if "kestrum" in name]
    check(f"a kill in the middle, {saves} of 12 while saving", torn == 0 and saves > 6 and not left
          and is_whole(path, ("Caesar",)), f"torn {torn}, left {left}")


def read_only(folder):
    place = os.path.join(folder, "disk")
    os.mkdir(place)
    subprocess.run(["mount", "-t", "tmpfs", "none", place], check=True)
    try:
        path = os.path.join(place, "head.dat")
        run(saving(path, "Anton"), folder)
        subprocess.run(["mount", "-o", "remount,ro", place], check=True)
        # Wine's rights are those of the host, and root has all: so it is the disk that takes nothing.
        told = "NOT been Saved" in run(saving(path, "Berta"), folder)
        check("a disk that cannot be written", told and is_whole(path, ("Anton",)) and os.listdir(place) == ["head.dat"],
              f"told {told}, {os.listdir(place)}")
    finally:
        subprocess.run(["umount", place], check=True)


def read_only_file(folder):
    path = os.path.join(folder, "head.dat")
    run(saving(path, "Anton"), folder)
    os.chmod(path, 0o444)
    output = run(saving(path, "Berta"), folder)
    check("a file that is marked as read-only", "NOT been Saved" in output and is_whole(path, ("Anton",)), output[-200:])


def full_disk(folder):
    place = os.path.join(folder, "disk")
    os.mkdir(place)
    subprocess.run(["mount", "-t", "tmpfs", "-o", "size=64k", "none", place], check=True)
    try:
        path = os.path.join(place, "head.dat")
        run(saving(path, "Anton"), folder)
        space = os.statvfs(place)
        pathlib.Path(place, "filler").write_bytes(b"x" * ((space.f_bavail - 1) * space.f_frsize))
        output = run(saving(path, "Berta") + saving(os.path.join(place, "other.dat"), "Berta"), folder)
        check("a full disk", output.count("NOT been Saved") == 2 and is_whole(path, ("Anton",))
              and sorted(os.listdir(place)) == ["filler", "head.dat"], f"{sorted(os.listdir(place))} {output[-300:]}")
    finally:
        subprocess.run(["umount", place], check=True)


def main():
    os.environ.setdefault("WINEDEBUG", "-all")
    trials = [two_programs, killed, read_only_file]
    if os.geteuid() == 0:
        trials += [read_only, full_disk]
    else:
        print("not tried, for it needs root: a disk that cannot be written, a full disk")
    for trial in trials:
        with tempfile.TemporaryDirectory() as folder:
            trial(folder)
    sys.exit(1 if failed else 0)


main()
