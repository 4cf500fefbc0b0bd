#!/usr/bin/env bash
# Builds the programs and starts the desktop program with the remaining arguments.
#   ./run.sh [ARGUMENTS]   build and start
#   ./run.sh --build       build only
set -euo pipefail

root=$(cd "$(dirname "$0")" && pwd)
start=yes
if [ "${1:-}" = --build ]; then
    start=no
    shift
fi

"$root/tools/install_packages.sh" run
(
    cd "$root"
    if [ ! build/release/build.ninja -nt CMakePresets.json ]; then
        cmake --preset release # later changes of the CMake files are seen by the build itself
    fi
    cmake --build --preset release -j "$(nproc)" --target kestrum kestrum-cli
)

if [ "$start" = no ]; then
    echo "Built build/release/kestrum and build/release/kestrum-cli"
    exit 0
fi
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    echo "There is no display here (DISPLAY is not set), so the desktop program cannot start." >&2
    echo "It is built as build/release/kestrum; build/release/kestrum-cli works without one." >&2
    exit 1
fi
exec "$root/build/release/kestrum" "$@"
