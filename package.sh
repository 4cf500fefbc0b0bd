#!/usr/bin/env bash
# Builds the programs and makes the Debian package, the only one in build/package/.
set -euo pipefail
cd "$(dirname "$0")"

tools/install_packages.sh package
cmake --preset release -Wno-dev >/dev/null
cmake --build --preset release -j "$(nproc)"

made=build/package
rm -rf "$made"
mkdir -p "$made"
# The rights of what is packed must not hang on those of the one who packs it.
umask 022
cpack --config build/release/CPackConfig.cmake -B "$made/parts" >"$made/log" ||
    { cat "$made/log" >&2; exit 1; }
mv "$made"/parts/*.deb "$made"
rm -r "$made/parts" "$made/log"
ls -l "$made"/*.deb
