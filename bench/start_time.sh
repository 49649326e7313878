#!/usr/bin/env bash
# Measures the game's start: from the call to its window on the screen with the board painted, and
# its resident memory. Usage: bench/start_time.sh [PROGRAM] [RUNS]; the first run is not counted.
# Needs Xvfb, openbox, xdotool, x11-utils and imagemagick.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
game=${1:-$root/build/release/bin/vemosud2}
runs=${2:-5}
home=$(mktemp -d)
export HOME=$home XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data XDG_RUNTIME_DIR=$home
chmod 700 "$home"
mkdir -p "$home/config" "$home/data"
# Neither first-run box nor a question: the window is all there is.
printf '[Options]\nLogfiles=True\n' >"$home/config/VemoSud2.conf"

exec {number}<>"$home/display"
Xvfb -displayfd "$number" -screen 0 1280x900x24 {number}>"$home/display" 2>/dev/null &
server=$!
trap 'kill $server 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$home"' EXIT
until [[ -s $home/display ]]; do sleep 0.05; done
DISPLAY=:$(<"$home/display")
export DISPLAY
openbox >/dev/null 2>&1 &
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do sleep 0.05; done

# The board is painted once the picture of the window has more than a few colours.
IsPainted() {
    local window
    window=$(xdotool search --onlyvisible --name '^Vemo Sudoku 2$' 2>/dev/null | tail -n 1)
    [[ -n $window ]] || return 1
    [[ $(import -silent -window "$window" -format %k info: 2>/dev/null || echo 0) -gt 50 ]]
}

for ((run = 0; run <= runs; ++run)); do
    start=$(date +%s%N)
    "$game" >/dev/null 2>&1 &
    pid=$!
    until IsPainted; do sleep 0.005; done
    end=$(date +%s%N)
    memory=$(awk '/^VmRSS/ {print $2}' "/proc/$pid/status")
    kill "$pid"
    wait "$pid" 2>/dev/null || true
    if ((run > 0)); then
        printf 'painted after at most %d ms, %d MB resident\n' $(((end - start) / 1000000)) \
            $((memory / 1024))
    fi
done
