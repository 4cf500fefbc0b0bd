#!/usr/bin/env python3
"""Runs clang-tidy over the sources of src/, cli/ and desktop/, with the preset tidy configured.

A file that passed is passed over until something changes that its result hangs on: the file, a
header that it includes, its compile command, a .clang-tidy or clang-tidy itself.

tools/run_tidy.py          looks at what has changed and notes what passes
tools/run_tidy.py --all    looks at every file
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys

import check_tree

ROOT = check_tree.ROOT
BUILD = ROOT / "build" / "tidy"
# What has passed, by its content. The list lies in the tree, so that a new machine looks only at what
# has changed since.
PASSED = ROOT / "tools" / "tidy_passed.txt"


def with_headers(path, tree, found=None):
    """The file and all headers of the project that it includes, near and far."""
    found = set() if found is None else found
    found.add(path)
    for _, _, header in check_tree.includes_of(path, tree[path], tree):
        if header in tree and header not in found:
            with_headers(header, tree, found)
    return found


def key_of(path, command, tree, common):
    parts = [common, command] + [name + "\n" + tree[name] for name in sorted(with_headers(path, tree))]
    return hashlib.sha256("\0".join(parts).encode()).hexdigest()[:24]


def look_at(path):
    done = subprocess.run(["clang-tidy", "-p", str(BUILD), "--quiet", str(ROOT / path)], cwd=ROOT,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
    return done.returncode, done.stdout if done.stdout.strip() else done.stderr


def note(good):
    lines = "".join(key + "\n" for key in sorted(good))
    if not PASSED.exists() or PASSED.read_text() != lines:
        PASSED.write_text(lines)


def main():
    tree = check_tree.read_tree()
    commands = {os.path.relpath(entry["file"], ROOT): entry["command"]
                for entry in json.loads((BUILD / "compile_commands.json").read_text())}
    commands = {path: command.replace(str(ROOT), ".") for path, command in commands.items()
                if path in tree and path.startswith(("src/", "painting/", "cli/", "desktop/"))}
    if not commands:
        sys.exit("run_tidy.py: there is nothing to look at")
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, text=True, check=True)
    common = version.stdout + "".join(text for path, text in tree.items() if path.endswith(".clang-tidy"))

    passed = set(PASSED.read_text().split()) if PASSED.exists() and "--all" not in sys.argv[1:] else set()
    keys = {path: key_of(path, command, tree, common) for path, command in commands.items()}
    changed = [path for path, key in keys.items() if key not in passed]
    failed = set()
    good = {key for key in keys.values() if key in passed}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for path, (status, output) in zip(changed, pool.map(look_at, changed)):
            if status != 0:
                failed.add(path)
                print(output, end="", flush=True)
                continue
            good.add(keys[path])
            note(good)  # at once, for a run may be cut off
    note(good)
    print(f"clang-tidy: {len(changed)} of {len(keys)} files looked at, {len(failed)} with findings")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
