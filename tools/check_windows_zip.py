#!/usr/bin/env python3
"""Tries the zip that ./package.sh --windows makes, under wine: from a folder whose name has letters of its own and that
nothing can write to (for that it must be root), with a user's folder of its own. Wants wine, xvfb and a minute.

tools/check_windows_zip.py [ZIP]
"""
import contextlib
import glob
import os
import pathlib
import subprocess
import sys
import tempfile
import time
import zipfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
failed = []


def check(what, holds, seen=""):
    print(("ok      " if holds else "FAILED  ") + what + ("" if holds else f": {seen}"))
    if not holds:
        failed.append(what)


@contextlib.contextmanager
def display(environment):
    reader, writer = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "1920x1080x24", "-nolisten", "tcp"],
                              pass_fds=[writer], stderr=subprocess.DEVNULL)
    try:
        os.close(writer)
        with os.fdopen(reader) as pipe:
            environment["DISPLAY"] = ":" + pipe.readline().strip()
        yield
    finally:
        server.terminate()
        server.wait()


@contextlib.contextmanager
def unpacked(archive):
    """The folder that the zip becomes; where nothing can write, if that can be had."""
    with tempfile.TemporaryDirectory() as above:
        place = pathlib.Path(above, "Zylinderköpfe łódź 试")
        place.mkdir()
        is_root = os.geteuid() == 0
        if is_root:
            subprocess.run(["mount", "-t", "tmpfs", "none", place], check=True)
        try:
            with zipfile.ZipFile(archive) as packed:
                packed.extractall(place)
            if is_root:
                subprocess.run(["mount", "-o", "remount,ro", place], check=True)
            else:
                print("not tried, for it needs root: a folder that cannot be written")
            yield place / "Kestrum"
        finally:
            if is_root:
                subprocess.run(["umount", place], check=True)


def run(words, environment, seconds=60):
    return subprocess.run(["wine", *words], env=environment, capture_output=True, timeout=seconds, check=False)


def try_command_line(folder, out, environment):
    program = str(folder / "kestrum-cli.exe")
    heads = [f"Z:{folder}/doc/examples/jeep_4l_stock_table_{table}.dat" for table in (1, 2)]
    done = run([program, "calc", heads[0]], environment)
    check("figures", done.returncode == 0 and b"Mean area, intake" in done.stdout, done.stderr)
    for ending, magic in (("png", b"\x89PNG"), ("svg", b"<?xml"), ("pdf", b"%PDF-"), ("bmp", b"BM")):
        picture = pathlib.Path(out, f"Köpfe.{ending}")
        done = run([program, "graph", *heads, "--type", "0", "-o", f"Z:{picture}"], environment)
        check(f"a graph as {ending}", done.returncode == 0 and not done.stderr and
              picture.read_bytes().startswith(magic), done.stderr)


def wait_for(path, seconds=40):
    end = time.monotonic() + seconds
    while not path.exists() and time.monotonic() < end:
        time.sleep(0.1)
    return path.exists()


def try_desktop(folder, home, environment):
    program = str(folder / "kestrum.exe")
    done = run([program, "--version"], environment)
    check("the version of the desktop program", done.returncode == 0 and b"kestrum " in done.stdout,
          (done.stdout, done.stderr))
    first = subprocess.Popen(["wine", program], env=environment)
    lock = home / "Kestrum/rescue/in-use"  # taken when Main has been painted
    check("the windows come up, with a folder of the user's", wait_for(lock), os.listdir(home))
    begin = time.monotonic()
    second = run([program, f"Z:{folder}/doc/examples/jeep_4l_stock_table_1.dat"], environment)
    took = time.monotonic() - begin
    copy = home / "Kestrum/rescue/Form1.dat"
    check(f"a second start hands its file to the first ({took:.1f} s)", second.returncode == 0 and first.poll() is None
          and wait_for(copy, 10), f"{second.returncode} {first.poll()}")
    first.kill()
    first.wait()


def main():
    archives = sys.argv[1:] or glob.glob(str(ROOT / "build/package-windows/*.zip"))
    if len(archives) != 1:
        sys.exit(__doc__)
    with tempfile.TemporaryDirectory() as out:
        environment = {**os.environ, "WINEDEBUG": "-all", "WINEPREFIX": out + "/wine"}
        environment.pop("KESTRUM_FOLDER", None)
        with display(environment), unpacked(archives[0]) as folder:
            run(["wineboot", "-i"], environment, 120)
            users = next(iter(glob.glob(out + "/wine/drive_c/users/*/AppData/Local")), None)
            check("wine has a user", users is not None, "no folder of one; the programs were not tried")
            if users:
                try_command_line(folder, out, environment)
                try_desktop(folder, pathlib.Path(users), environment)
            subprocess.run(["wineserver", "-k"], env=environment, check=False)
            time.sleep(1)
    sys.exit(1 if failed else 0)


main()
