#!/usr/bin/env bash
# Installs the Debian packages of the given groups that the machine lacks.
# Usage: scripts/setup.sh GROUP...
# Nothing missing: apt-get is not called. Exits 1, with the line to run, where it may not install.
set -euo pipefail

kLockWait=600 # seconds that another package installation may take
kRetryEvery=5 # seconds between two tries while it does

# PACKAGE REASON. Debian 12's names.
kGame='
g++                 the compiler
cmake               the build
ninja-build         the build
ccache              a second build in seconds
qt6-base-dev        the window, printing; with it the xcb and offscreen platforms
qt6-multimedia-dev  the sounds
fonts-dejavu-core   a font, where the machine has none
'
kWayland='
qt6-wayland         a window on a session without an X server
'
kChecks='
libgtest-dev        the tests
libbenchmark-dev    the benchmarks
clang-14            the second compiler
libclang-rt-14-dev  its fuzzer and sanitizers
lld-14              its quicker linker
clang-format-14     the format check
git                 the list of the files to check
xvfb                a screen for tests with real clicks
xauth               xvfb-run needs it
openbox             without a window manager no window becomes active
xdotool             the real clicks
x11-utils           asks whether the window manager runs
imagemagick         pictures of windows
poppler-utils       reads printed pages back
parallel            a list spread over two jobs
'
kWindows='
g++-mingw-w64-x86-64-posix  the compiler for Windows
cmake               the build
ninja-build         the build
ccache              a second build in seconds
libgtest-dev        the tests, as sources
wine                runs the programs
wine64              the part of it for programs of 64 bits
'
kWindowsGame='
dpkg-dev            the sources of Qt
patch               the changes to them
nsis                the installer
xvfb                a screen for the window tests
openbox             without a window manager no window becomes active
x11-utils           asks whether the window manager runs
fonts-liberation    in place of the fonts of Windows
'
kDebian='
dpkg-dev            finds what the programs need
file                knows programs from other files
'

Packages() { # GROUP...: the names in these groups, one a line
    local group
    for group in "$@"; do
        case $group in
            game) awk 'NF { print $1 }' <<<"$kGame" ;;
            wayland) awk 'NF { print $1 }' <<<"$kWayland" ;;
            checks) awk 'NF { print $1 }' <<<"$kChecks" ;;
            debian) awk 'NF { print $1 }' <<<"$kDebian" ;;
            windows) awk 'NF { print $1 }' <<<"$kWindows" ;;
            windows_game) awk 'NF { print $1 }' <<<"$kWindowsGame" ;;
            *)
                echo "setup: there is no group '$group'" >&2
                return 2
                ;;
        esac
    done
}

Missing() { # PACKAGE...: those that are not installed, one a line
    local installed
    installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "$@" \
        2>/dev/null || true)
    comm -23 <(printf '%s\n' "$@" | sort -u) \
        <(awk '$1 == "installed" { print $2 }' <<<"$installed" | sort -u)
}

Refuse() { # PACKAGE...: says what to run by hand, and ends
    echo "setup: may not install packages here; as root, run this line, then start again:" >&2
    echo "apt-get update && apt-get install -y --no-install-recommends $*" >&2
    exit 1
}

asRoot=() # what stands before a command that needs root

# One quiet apt-get call; waits while another process holds one of apt's or dpkg's locks.
Apt() {
    local deadline=$((SECONDS + kLockWait)) waiting=no
    until "${asRoot[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive \
        apt-get -y -q -o Acquire::Retries=3 "$@" </dev/null >"$log" 2>&1; do
        if ! grep -qE 'Could not get lock|locked by another' "$log"; then
            tail -n 10 "$log" >&2
            echo "setup: apt-get $1 failed" >&2
            return 1
        fi
        if ((SECONDS >= deadline)); then
            echo "setup: another package installation still runs after $kLockWait s:" >&2
            grep -E 'Could not get lock|locked by another' "$log" >&2
            return 1
        fi
        if [[ $waiting == no ]]; then
            echo "setup: waiting for another package installation to end (up to $kLockWait s)"
            waiting=yes
        fi
        sleep "$kRetryEvery"
    done
}

Install() { # PACKAGE...
    log=$(mktemp)
    trap 'rm -f "$log"' EXIT
    echo "setup: installing $# packages (this can take a few minutes): $*"
    # One broken source among many makes `update` fail; the packages may be there all the same.
    Apt update || echo "setup: going on with the package lists that are there" >&2
    Apt install --no-install-recommends "$@"
}

Main() {
    local names missing
    # A root shell opened by `su` lacks the folders that dpkg needs.
    PATH=$PATH:/usr/local/sbin:/usr/sbin:/sbin
    names=($(Packages "$@"))
    if ! command -v dpkg-query >/dev/null; then
        echo "setup: no Debian system; it must have what these packages hold: ${names[*]}" >&2
        return
    fi
    missing=($(Missing "${names[@]}"))
    ((${#missing[@]} > 0)) || return 0
    if ((EUID != 0)); then
        command -v sudo >/dev/null || Refuse "${missing[@]}"
        asRoot=(sudo)
        # A password, where one is needed, is asked for here, before the quiet calls.
        sudo env DEBIAN_FRONTEND=noninteractive apt-get --version </dev/null >/dev/null ||
            Refuse "${missing[@]}"
    fi
    Install "${missing[@]}"
}

Main "$@"
