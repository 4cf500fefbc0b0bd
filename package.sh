#!/usr/bin/env bash
# Builds the programs and packs them.
#   ./package.sh             the Debian package, the only one in build/package/
#   ./package.sh --windows   a zip for Windows in build/package-windows/, with the Qt kit that is built for it
set -euo pipefail
cd "$(dirname "$0")"

if [ "${1:-}" = --windows ]; then
    tools/install_packages.sh package-windows
    tools/build_qt_for_windows.sh
    cmake --preset windows -Wno-dev >/dev/null
    cmake --build --preset windows -j "$(nproc)"
    made=build/package-windows
    rm -rf "$made"
    cmake --install build/windows --prefix "$made/Kestrum" >/dev/null
    find "$made" \( -name '*.exe' -o -name '*.dll' \) -exec x86_64-w64-mingw32-strip {} +
    version=$(sed -n 's/^project(kestrum VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
    (cd "$made" && cmake -E tar cf "Kestrum-$version-windows.zip" --format=zip Kestrum)
    rm -r "$made/Kestrum"
    ls -l "$made"/*.zip
    exit 0
fi

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
