#!/usr/bin/env bash
# Runs a program for Windows under wine. wine hides Qt's variables from its programs, so Windows' own
# shell sets them again, and the program runs in its folder: that shell takes no quoted path here.
# VEMO_WINE_PLATFORM: on which of Qt's platforms, whatever else was asked for.
# Usage: run.sh PROGRAM [ARGUMENT...]
set -euo pipefail
QT_QPA_PLATFORM=${VEMO_WINE_PLATFORM:-${QT_QPA_PLATFORM:-}}
settings=
for name in QT_QPA_PLATFORM QT_SCALE_FACTOR; do
    [[ -z ${!name:-} ]] || settings+="set $name=${!name}&&" # a blank before && would be the value's
done
[[ -n $settings ]] || exec wine "$@"
settings+="set QT_ASSUME_STDERR_HAS_CONSOLE=1&&" # else a test tells a debugger what fails
cd "$(dirname "$1")"
read -ra command <<<"$settings$(basename "$1")"
exec wine cmd /c "${command[@]}" "${@:2}"
