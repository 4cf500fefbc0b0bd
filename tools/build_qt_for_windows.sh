#!/usr/bin/env bash
# Makes the Qt kit for the preset "windows" from the source package of the Qt that this Debian system has,
# with the cross compiler mingw-w64. Quick when the kit is there; else some half an hour on two cores.
#   tools/build_qt_for_windows.sh [FOLDER]   makes it in FOLDER, by default build/qt-windows
set -euo pipefail
tree=$(cd "$(dirname "$0")/.." && pwd)
kit=$(realpath -m "${1:-$tree/build/qt-windows}")
parts="$kit.parts"

"$tree/tools/install_packages.sh" windows-qt
version=$(dpkg-query -W -f '${Version}' qt6-base-dev)
# What would make another kit: the source and what says how it is built.
recipe=$(cat "$0" <(echo "$version") | sha256sum | cut -d ' ' -f 1)
if [ "$(cat "$kit/recipe" 2>/dev/null)" = "$recipe" ]; then
    echo "The Qt kit in $kit is up to date"
    exit 0
fi

# apt works in folders of its own here, so that the system's lists of sources stay as they are. It asks where
# the installed Qt came from, and checks the source by the signatures and sums of that place.
apt="$parts/apt"
mkdir -p "$apt/lists/partial" "$apt/cache/archives/partial" "$parts/download"
apt-cache madison qt6-base-dev | tr -d '|' | awk -v version="$version" '
    $2 == version { split($4, suite, "/"); print "deb-src " $3 " " suite[1] " " suite[2] }' |
    sort -u >"$apt/sources.list"
if [ ! -s "$apt/sources.list" ]; then
    echo "apt knows no place that has qt6-base $version" >&2
    exit 1
fi
own_apt() {
    apt-get -qq -o Dir::Etc::SourceList="$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null \
        -o Dir::State::Lists="$apt/lists" -o Dir::Cache="$apt/cache" -o APT::Sandbox::User="$(id -un)" "$@"
}
if [ ! -f "$parts/source/CMakeLists.txt" ]; then
    own_apt update
    (cd "$parts/download" && own_apt source --download-only "qt6-base=$version")
    # Reads the sums in the .dsc again before it takes anything out.
    rm -rf "$parts/source"
    dpkg-source --extract "$parts"/download/qt6-base_*.dsc "$parts/source"
fi

launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    export CCACHE_SLOPPINESS=pch_defines,time_macros
fi
options=(
    -DBUILD_SHARED_LIBS=ON -DCMAKE_BUILD_TYPE=Release -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF
    # The libraries that Windows lacks come with Qt's source.
    -DFEATURE_system_{zlib,freetype,harfbuzz,jpeg,png,pcre2,doubleconversion}=OFF -DFEATURE_pkg_config=OFF
    # Nothing of ours draws or asks through these.
    -DFEATURE_{sql,network,dbus,xml,concurrent,opengl,vulkan,direct2d}=OFF -DINPUT_opengl=no
    # Debian's source has no wintab.h, and this compiler does not export the classes of DirectWrite.
    -DFEATURE_tabletevent=OFF -DFEATURE_directwrite=OFF)
cmake -S "$parts/source" -B "$parts/build" -G Ninja -Wno-dev \
    -DCMAKE_TOOLCHAIN_FILE="$tree/cmake/windows_toolchain.cmake" -DKESTRUM_WINE=OFF \
    -DCMAKE_INSTALL_PREFIX="$kit" \
    "${launcher[@]}" "${options[@]}" >"$parts/configure.log" || { tail -n 40 "$parts/configure.log" >&2; exit 1; }
nice cmake --build "$parts/build" -j "${KESTRUM_JOBS:-$(nproc)}"
rm -rf "$kit"
cmake --install "$parts/build" >"$parts/install.log"
cp -r "$parts/source/LICENSES" "$kit/licences"
echo "$recipe" >"$kit/recipe"
rm -rf "$parts"
echo "The Qt kit is in $kit"
