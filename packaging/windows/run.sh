#!/usr/bin/env bash
# Runs a program for Windows under wine. wine hides Qt's variables from its programs, so Windows' own
# shell sets them again. VEMO_WINE_PLATFORM: on which of Qt's platforms, whatever else was asked for.
# Usage: run.sh PROGRAM [ARGUMENT...]
set -euo pipefail
settings=
QT_QPA_PLATFORM=${VEMO_WINE_PLATFORM:-${QT_QPA_PLATFORM:-}}
for name in QT_QPA_PLATFORM QT_SCALE_FACTOR; do
    [[ -z ${!name:-} ]] || settings+="set $name=${!name}&&"
done
[[ -n $settings ]] || exec wine "$@"
path=Z:$(realpath "$1")
shift
exec wine cmd /s /c "\"$settings\"${path//\//\\}\" $*\""
