#!/usr/bin/env bash
# Everything that must hold before a change goes in: what is quick and fails often comes first.
#   ./test.sh             all of it, for Linux
#   ./test.sh --windows   the cross build of the library and kestrum-cli, tested under wine
set -euo pipefail
cd "$(dirname "$0")"
jobs=$(nproc)

step() {
    printf '\n== %s (after %s s)\n' "$1" "$SECONDS"
}

build() {
    cmake --preset "$1" -Wno-dev >/dev/null
    cmake --build --preset "$1" -j "$jobs"
}

if [ "${1:-}" = --windows ]; then
    tools/install_packages.sh windows
    export WINEDEBUG=-all
    step "Build for Windows"
    build windows-cli
    step "Tests under wine"
    ctest --preset windows-cli
    step "Example cases under wine"
    python3 tests/cases/check.py build/windows-cli/kestrum-cli.exe
    step "Saves that go wrong under wine"
    tests/windows/try_saves.py build/windows-cli/kestrum-cli.exe
    printf '\nAll of it passed in %s s\n' "$SECONDS"
    exit 0
fi

tools/install_packages.sh test

step "The tree"
tools/check_tree.py --self-test
tools/check_tree.py

step "Format"
git ls-files -z --cached --others --exclude-standard --deduplicate '*.h' '*.cpp' |
    while IFS= read -r -d '' file; do
        if [ -f "$file" ]; then printf '%s\0' "$file"; fi # not those that are deleted just now
    done |
    xargs -0 -r clang-format --dry-run -Werror

step "Build of the tests"
build checked

step "Tests"
ctest --preset checked -j "$jobs"

step "Fuzzing"
ctest --preset fuzz -j "$jobs"

step "Programs and benchmarks"
build release
for program in build/release/bench/*_bench; do
    echo "$program"
    "$program" --benchmark_min_time=0.01
done
bench/desktop_start.py --rounds 1

step "Example cases"
python3 tests/cases/check.py build/release/kestrum-cli

step "Package"
./package.sh
tools/check_package.py

step "clang-tidy"
cmake --preset tidy -Wno-dev >/dev/null
tools/run_tidy.py

printf '\nAll of it passed in %s s\n' "$SECONDS"
