#!/usr/bin/env python3
"""Pictures of every screen on the displays that people own, to be looked at.

Each display is an Xvfb of our own; the program runs there with the desktop's scale, text size and
colours. Windows that are larger than the free area of their display are told. Give words of the
settings ("1366", "dark", "140") to run only those that have them all.
"""
import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
DISPLAYS = (("1366x768", 1.0), ("1920x1080", 1.0), ("1920x1080", 1.25), ("1920x1080", 1.5),
            ("3840x2160", 2.0))
# The colour groups that a desktop of the KDE kind hands to Qt: window, base, text, selection.
COLOURS = {"light": None,
           "dark": ("42,46,50", "27,30,32", "252,252,252", "61,174,233"),
           "contrast": ("0,0,0", "0,0,0", "255,255,255", "255,255,0")}


def desktop_colours(folder, colours):
    """Writes the settings of a desktop with these colours and gives the environment for it."""
    if colours is None:
        return {}
    window, base, text, selection = colours
    groups = "".join(
        f"[Colors:{group}]\nBackgroundNormal={back}\nBackgroundAlternate={back}\n"
        f"ForegroundNormal={text}\nForegroundInactive={text}\n"
        for group, back in (("Window", window), ("View", base), ("Button", window),
                            ("Tooltip", window), ("Complementary", window)))
    groups += (f"[Colors:Selection]\nBackgroundNormal={selection}\n"
               f"ForegroundNormal={base}\n[General]\n")
    (pathlib.Path(folder) / "kdeglobals").write_text(groups, encoding="utf-8")
    return {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5", "XDG_CONFIG_HOME": folder,
            "QT_QPA_PLATFORMTHEME": "kde"}


def take(program, setting, target):
    """Runs the program once on a display of its own."""
    size, scale, text, colours, adapted = setting
    reader, writer = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{size}x24", "-nolisten", "tcp"],
        pass_fds=[writer], stderr=subprocess.DEVNULL)
    os.close(writer)
    with os.fdopen(reader) as pipe:
        display = ":" + pipe.readline().strip()
    target.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        shutil.copy(ROOT / "examples" / "bmw_m52b28.dat", pathlib.Path(folder) / "pictures.dat")
        environment = {**os.environ, "DISPLAY": display, "QT_QPA_PLATFORM": "xcb",
                       "KESTRUM_FOLDER": folder, "KESTRUM_PICTURES": str(target),
                       "QT_SCALE_FACTOR": str(scale), "QT_FONT_DPI": str(96 * text // 100),
                       "KESTRUM_ADAPTED": str(int(adapted)),
                       **desktop_colours(folder, COLOURS[colours])}
        try:
            done = subprocess.run([program], env=environment, capture_output=True, text=True,
                                  timeout=120, check=False)
        finally:
            server.terminate()
            server.wait()
    return done.stdout + done.stderr


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", default="release", help="name of the build folder")
    parser.add_argument("--to", default="pictures", help="folder for the pictures")
    parser.add_argument("words", nargs="*", help="take only settings with these words")
    chosen = parser.parse_args()
    program = ROOT / "build" / chosen.build / "bench" / "desktop_pictures"
    if not program.exists():
        sys.exit(f"desktop_pictures.py: {program} is not built")
    for size, scale in DISPLAYS:
        for text in (100, 140):
            for colours in COLOURS:
                for adapted in (False, True):
                    name = (f"{size}_{round(scale * 100)}_text{text}_{colours}"
                            f"_{'adapted' if adapted else 'plain'}")
                    if all(word in name for word in chosen.words):
                        told = take(program, (size, scale, text, colours, adapted),
                                    pathlib.Path(chosen.to).resolve() / name)
                        print(f"{name}\n{told}", flush=True)


if __name__ == "__main__":
    main()
