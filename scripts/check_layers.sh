#!/usr/bin/env bash
# Fails on an #include against the arrows between the folders of src/, on Qt outside src/qt, and on
# what belongs to one system outside src/platform and its implementations with Qt (src/qt/qt_*.cpp,
# src/qt/windows_*.cpp).
# Usage: scripts/check_layers.sh [FOLDER]       checks the checkout (or FOLDER, laid out like it)
#        scripts/check_layers.sh --self-test    proves on a scratch tree that each fault is found
set -euo pipefail

# FOLDER and what it may include, beside the C++ library.
kArrows='
platform  platform
model     platform model
solver    platform model solver
tools     platform model solver tools
cli       platform model solver tools cli
game      platform model solver tools game
qt        platform model solver tools game qt
'

# Reads sources named by paths from the checkout's root; prints one line a fault; exits 1 on any.
kRules='
function Report(text) { print FILENAME ":" FNR ": " text; faults = 1 }

BEGIN {
    for (n = split(ENVIRON["kArrows"], rows, "\n"); n > 0; n--) {
        count = split(rows[n], words, " ")
        for (i = 2; i <= count; i++) { allowed[words[1], words[i]] = 1 }
        if (count > 0) { known[words[1]] = 1 }
    }
}

FNR == 1 {
    split(FILENAME, parts, "/")
    top = parts[1]
    folder = parts[2]
    ofSystem = folder == "platform" || FILENAME ~ /^src\/qt\/(qt|windows)_[a-z_]*\.cpp$/
    line = ""
    if (top == "src" && !(folder in known)) { Report("no folder of the table: " folder) }
}

# A continued line is read as one, comments do not count.
{
    line = line $0
    if (sub(/\\$/, " ", line)) { next }
    text = line
    line = ""
    sub(/\/\/.*/, "", text)
}

text ~ /^[ \t]*#[ \t]*include/ && match(text, /[<"][^>"]*/) {
    name = substr(text, RSTART + 1, RLENGTH - 1)
    ours = substr(text, RSTART, 1) == "\""
    count = split(name, parts, "/")
    if (folder != "qt" && name ~ /^(Q[A-Z]|Qt|q[a-z0-9]+\.h$|qt[a-z]+\/)/) {
        Report("Qt outside the qt folders: " name)
    } else if (top == "src" && count > 1 && parts[1] in known && !((folder, parts[1]) in allowed)) {
        Report(folder " may not include " parts[1] ": " name)
    } else if (top == "src" && ours && !(parts[1] in known) && name !~ /\.moc$/) {
        Report("an include that does not begin with a folder of src: " name)
    } else if (top == "src" && !ofSystem && name ~ ENVIRON["kSystemHeaders"]) {
        Report("a header of one system outside platform: " name)
    }
    next
}

folder != "qt" && text ~ /(^|[^A-Za-z0-9_])Q_[A-Z]/ { Report("a Qt macro outside the qt folders") }

top == "src" && !ofSystem && text ~ /^[ \t]*#[ \t]*(el)?if/ && text ~ ENVIRON["kSystemMacros"] {
    Report("a condition on the system outside platform")
}

END { exit faults }
'
kSystemHeaders='^(windows|winsock2|io|unistd|fcntl|termios|pthread|dlfcn|pwd|dirent)[.]h$|^sys/'
kSystemMacros='WIN32|WIN64|WINDOWS|MINGW|_MSC_VER|CYGWIN|linux|unix|APPLE|__MACH__|BSD|ANDROID|Q_OS_'

CheckTree() { # FOLDER
    local sources
    cd "$1"
    mapfile -d '' -t sources < <(find src tests bench -type f \
        \( -name '*.h' -o -name '*.hpp' -o -name '*.inc' -o -name '*.cpp' -o -name '*.cc' \) \
        -print0 2>/dev/null | sort -z)
    if ((${#sources[@]} == 0)); then
        echo "there are no sources under $1" >&2
        return 2
    fi
    kArrows=$kArrows kSystemHeaders=$kSystemHeaders kSystemMacros=$kSystemMacros \
        awk "$kRules" "${sources[@]}"
}

Write() { # FILE LINE...: a file of the scratch tree
    mkdir -p "$scratch/$(dirname "$1")"
    printf '%s\n' "${@:2}" >"$scratch/$1"
}

# Files that break no rule, though they come near.
WriteCleanTree() {
    Write src/platform/files.h '#include <vector>' '#ifdef _WIN32' '#include <windows.h>' '#endif'
    Write src/model/files.cpp '#include "model/files.h"' '#include "platform/files.h"'
    Write src/solver/techniques/fish.cpp '#include "model/units.h"  // not "game/game.h"'
    Write src/tools/text.cpp '#include <queue>' '#include "solver/solver.h"' '#ifdef NDEBUG'
    Write src/game/game.cpp '#include "tools/text.h"' '// Q_OBJECT is for others'
    Write src/cli/main.cpp '#include "tools/text.h"' '#include "cli/solve.h"'
    Write src/qt/grid.cpp '#include <QWidget>' '#include "game/game.h"' 'Q_OBJECT'
    Write src/qt/qt_store.cpp '#include <QSettings>' '#ifdef Q_OS_WIN'
    Write src/qt/windows_bell.cpp '#include <windows.h>'
    Write src/qt/window.cpp '#include "window.moc"'
    Write tests/qt/test_window.cpp '#include <QtTest>' 'Q_OBJECT'
    Write tests/solver/test_solver.cpp '#include "game/game.h"' '#include "support.h"'
}

# Expects exactly one fault, at the last line of a file that is put into the clean tree.
ExpectFault() { # MESSAGE FILE LINE...
    local message=$1 file=$2 output status=0
    shift 2
    Write "$file" "$@"
    output=$(CheckTree "$scratch") || status=$?
    if [[ $status != 1 || $output != "$file:$#: $message"* || $output == *$'\n'* ]]; then
        printf 'self-test: %s: expected "%s", got status %s and:\n%s\n' \
            "$file" "$message" "$status" "$output" >&2
        failures=$((failures + 1))
    fi
    rm "$scratch/$file"
    cases=$((cases + 1))
}

# Every pair of folders of the table, the forbidden and the allowed.
TestArrows() {
    local from to allowed
    while read -r from allowed; do
        for to in platform model solver tools cli game qt; do
            if [[ " $allowed " != *" $to "* ]]; then
                ExpectFault "$from may not include $to" "src/$from/bad.h" '' "#include \"$to/x.h\""
            fi
        done
    done < <(sed '/^$/d' <<<"$kArrows")
}

SelfTest() {
    scratch=$(mktemp -d)
    trap 'rm -rf "$scratch"' EXIT
    failures=0 cases=0
    WriteCleanTree
    if ! CheckTree "$scratch"; then
        echo 'self-test: the clean tree is refused' >&2
        failures=1
    fi
    TestArrows
    ExpectFault 'model may not include game' src/model/a.cpp '  #  include <game/game.h>'
    ExpectFault 'an include that does not begin' src/model/a.cpp '#include "../game/game.h"'
    ExpectFault 'an include that does not begin' src/model/a.cpp '#include "units.h"'
    ExpectFault 'an include that does not begin' src/qt/a.cpp '#include "gui/window.h"'
    ExpectFault 'no folder of the table' src/gui/a.cpp 'int a;'
    ExpectFault 'no folder of the table' src/main.cpp 'int a;'
    ExpectFault 'Qt outside' src/game/a.cpp '#include <QString>'
    ExpectFault 'Qt outside' src/platform/a.cpp '#include <QtCore/qglobal.h>'
    ExpectFault 'Qt outside' src/cli/a.h '#include "qstring.h"'
    ExpectFault 'Qt outside' tests/game/a.cpp '#include <QTest>'
    ExpectFault 'Qt outside' bench/a.cpp '#include <QApplication>'
    ExpectFault 'a Qt macro' src/game/a.h 'class A {' '    Q_OBJECT'
    ExpectFault 'a Qt macro' tests/model/a.cpp 'Q_UNUSED(a)'
    ExpectFault 'a condition on the system' src/model/a.cpp '#ifdef _WIN32'
    ExpectFault 'a condition on the system' src/tools/a.cpp '#if defined(__linux__)'
    ExpectFault 'a condition on the system' src/cli/a.cpp '#if 0' '#elif defined(__APPLE__)'
    ExpectFault 'a condition on the system' src/game/a.cpp '#if defined(A) || \' '    defined(_WIN64)'
    ExpectFault 'a condition on the system' src/qt/a.cpp '#ifdef Q_OS_LINUX'
    ExpectFault 'a condition on the system' src/qt/qt_store.h '#ifdef _WIN32'
    ExpectFault 'a header of one system' src/qt/a.cpp '#include <windows.h>'
    ExpectFault 'a header of one system' src/cli/a.cpp '#include <unistd.h>'
    ExpectFault 'a header of one system' src/tools/a.cpp '#include <sys/stat.h>'
    echo "self-test: $cases faults planted, $failures failures"
    ((failures == 0))
}

case ${1:-} in
    --self-test) SelfTest ;;
    *) CheckTree "${1:-$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/..}" ;;
esac
