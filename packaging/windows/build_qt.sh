#!/usr/bin/env bash
# Builds Qt for Windows from the source package of the very Qt that this Debian has.
# Usage: build_qt.sh FOLDER    makes FOLDER; one that is complete is left as it is
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")

kKeyring=/usr/share/keyrings/debian-archive-keyring.gpg

# What the game does without, and the libraries of which Qt brings its own copy along.
kOff='
network xml concurrent dbus sql tabletevent tuiotouch icu vulkan direct2d directwrite zstd glib jpeg
system_zlib system_pcre2 system_png system_freetype system_harfbuzz system_doubleconversion
'

# The system's package lists know no sources; these calls have lists and a cache of their own.
Apt() {
    apt-get -q -o Dir::Etc::SourceList="$work/sources.list" -o Dir::Etc::SourceParts=/dev/null \
        -o Dir::State::Lists="$work/lists" -o Dir::Cache="$work/cache" \
        -o APT::Sandbox::User="$(id -un)" -o Acquire::Retries=3 "$@"
}

FetchSource() { # VERSION
    local uri release
    mkdir -p "$work/lists/partial" "$work/cache/archives/partial"
    apt-get indextargets --format '$(REPO_URI) $(RELEASE)' \
        'Created-By: Packages' 'Origin: Debian' 'Component: main' | sort -u |
        while read -r uri release; do
            echo "deb-src [signed-by=$kKeyring] $uri $release main"
        done >"$work/sources.list"
    [[ -s $work/sources.list ]] || { echo "apt knows no Debian archive" && return 1; }
    Apt update
    (cd "$work" && Apt source --download-only "qt6-base=$1" &&
        dpkg-source --extract qt6-base_*.dsc source)
}

Compile() {
    local name off=()
    for name in $kOff; do
        off+=("-DFEATURE_$name=OFF")
    done
    cmake -S "$work/source" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" -DCMAKE_INSTALL_PREFIX="$folder" \
        -DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache \
        -DCMAKE_CXX_FLAGS=-Wno-attributes -DQT_HOST_PATH=/usr \
        -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_BUILD_MULTIARCH)/cmake" \
        -DBUILD_SHARED_LIBS=ON -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
        -DINPUT_opengl=no "${off[@]}"
    cmake --build "$work/build" --parallel "$(nproc)"
    cmake --install "$work/build" --strip
}

folder=$(realpath --canonicalize-missing "$1")
work=$folder.work
[[ ! -e $folder/complete ]] || exit 0
rm -rf "$folder" "$work"
mkdir -p "$folder" "$work"
FetchSource "$(dpkg-query --show --showformat='${source:Version}' qt6-base-dev)"
Compile
rm -rf "$work"
touch "$folder/complete"
