#!/usr/bin/env bash
# Installs the Debian packages that the project needs and that are not there yet.
#   tools/install_packages.sh run       to build the programs and run them
#   tools/install_packages.sh package   to make the Debian package of them
#   tools/install_packages.sh test      to test all of it as well
#   tools/install_packages.sh windows   to build for Windows what needs no Qt, and test that
#   tools/install_packages.sh windows-qt   to build Qt for it
#   tools/install_packages.sh package-windows   to make the zip of both programs
set -euo pipefail

to_run=(g++ cmake ninja-build qt6-base-dev nlohmann-json3-dev fonts-dejavu-core)
to_package=(lowdown dpkg-dev file)
to_test=(appstream desktop-file-utils libglib2.0-bin lintian mandoc shared-mime-info
         libgtest-dev libbenchmark-dev clang libclang-rt-14-dev clang-format clang-tidy
         git python3 xvfb)
to_cross_build=(g++-mingw-w64-x86-64-posix cmake ninja-build nlohmann-json3-dev googletest wine wine64
                python3)
to_build_qt=("${to_cross_build[@]}" qt6-base-dev dpkg-dev)
to_package_windows=("${to_build_qt[@]}" fonts-dejavu-core lowdown)

case "${1:-}" in
    run) wanted=("${to_run[@]}") ;;
    package) wanted=("${to_run[@]}" "${to_package[@]}") ;;
    test) wanted=("${to_run[@]}" "${to_package[@]}" "${to_test[@]}") ;;
    windows) wanted=("${to_cross_build[@]}") ;;
    windows-qt) wanted=("${to_build_qt[@]}") ;;
    package-windows) wanted=("${to_package_windows[@]}") ;;
    *) echo "usage: tools/install_packages.sh run|package|test|windows|windows-qt|package-windows" >&2; exit 2 ;;
esac

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This is no Debian system, so nothing is installed. The build needs what these Debian" >&2
    echo "packages hold: ${wanted[*]}" >&2
    exit 0
fi

# dpkg-query fails when it does not know a package, which only means that it is missing.
installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null || true)
missing=()
for package in "${wanted[@]}"; do
    grep -qxF "installed $package" <<<"$installed" || missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing, and without sudo only root can install them:" >&2
        echo "    apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

echo "Installing ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
