#!/usr/bin/env python3
"""Puts the icons that a build for Linux has drawn into packaging/kestrum.ico, for the programs on Windows.

tools/make_windows_icon.py build/release/packaging/icons
"""
import pathlib
import struct
import sys

SIDES = (16, 24, 32, 48, 64, 128, 256)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    icons = pathlib.Path(sys.argv[1])
    pictures = [(icons / f"{side}x{side}/apps/kestrum.png").read_bytes() for side in SIDES]
    head = struct.pack("<HHH", 0, 1, len(pictures))
    place = len(head) + 16 * len(pictures)
    entries = b""
    for side, picture in zip(SIDES, pictures):
        entries += struct.pack("<BBBBHHII", side % 256, side % 256, 0, 0, 1, 32, len(picture), place)
        place += len(picture)
    target = pathlib.Path(__file__).resolve().parent.parent / "packaging/kestrum.ico"
    target.write_bytes(head + entries + b"".join(pictures))
    print(f"{target.name}: {len(pictures)} pictures, {place} bytes")


main()
