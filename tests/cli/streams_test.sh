#!/usr/bin/env bash
# The program on the streams of the system: exit codes, a full disk, a closed pipe, prompt answers.
# Usage: streams_test.sh PROGRAM LIST
set -uo pipefail
program=$1
list=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

Fail() { # MESSAGE
    echo "failed: $1" >&2
    failures=$((failures + 1))
}

# The exit code of a command, what it wrote to standard error in $scratch/err.
Expect() { # NAME CODE MESSAGE COMMAND...
    local name=$1 code=$2 message=$3 got=0
    shift 3
    "$@" 2>"$scratch/err" || got=$?
    [[ $got == "$code" ]] || Fail "$name: exit code $got instead of $code"
    if [[ -n $message ]]; then
        grep -qF -- "$message" "$scratch/err" || Fail "$name: no \"$message\" in: $(cat "$scratch/err")"
    elif [[ -s $scratch/err ]]; then
        Fail "$name: said: $(cat "$scratch/err")"
    fi
}

ReadList() { "$program" rate - <"$list" >"$scratch/out"; }
ReadBadLine() { echo 123 | "$program" solve - >"$scratch/out"; }
WriteToFullDisk() { "$program" "$@" >/dev/full; }
WriteToClosedPipe() {
    # More than a pipe holds, so that the reader is gone before the last line.
    { for _ in 1 2 3 4 5; do cat "$list"; done | "$program" rate --log -; } | true
    return "${PIPESTATUS[0]}"
}

Expect 'a list on standard input' 0 '' ReadList
[[ $(wc -l <"$scratch/out") == $(grep -vc '^#' "$list") ]] || Fail 'a list: not one line a puzzle'
Expect 'a bad line' 1 'line 1: the grid field has 3 characters' ReadBadLine
Expect 'a wrong option' 2 '--foo' "$program" rate --foo -
Expect 'a missing file' 3 "$scratch/missing" "$program" rate "$scratch/missing"
Expect 'a folder as the file' 3 "$scratch" "$program" rate "$scratch"
if [[ -c /dev/full ]]; then
    Expect 'a full disk' 3 'cannot be written' WriteToFullDisk rate "$list"
    Expect 'help on a full disk' 3 'cannot be written' WriteToFullDisk --help
fi
Expect 'a closed pipe' 3 'cannot be written' WriteToClosedPipe

# No thread can be started: none has room for a stack as large as this.
WithoutThreads() { (ulimit -Ss 68719476736 && timeout 60 "$program" "$@" >"$scratch/out"); }
if (ulimit -Ss 68719476736) 2>/dev/null; then
    Expect 'a list without threads' 0 '' WithoutThreads check --threads 3 "$list"
    cmp -s "$scratch/out" <("$program" check "$list") || Fail 'without threads: other results'
    Expect 'a search without threads' 1 'no thread left' WithoutThreads generate --levels easy:1
    mkdir "$scratch/levels"
    Expect 'levels without threads' 3 'no thread left' \
        WithoutThreads make-levels --levels 1:1 --output "$scratch/levels"
    [[ -z $(ls "$scratch/levels") ]] || Fail 'without threads: level files'
fi

# A list in parts, two jobs at a time: what docs/batch.md shows.
if command -v parallel >/dev/null; then
    (cd "$scratch" && grep -v '^#' "$list" | split --lines 150 --additional-suffix .part - list- &&
        parallel --will-cite --jobs 2 "$program" rate --quiet --threads 1 --resume {.}.rated {} \
            ::: list-*.part) 2>"$scratch/err" || Fail "parallel jobs: $(cat "$scratch/err")"
    cat "$scratch"/list-*.rated | cmp -s - <("$program" rate "$list") || Fail 'parallel jobs: other results'
fi

# What is installed beside the program.
"$program" --bash-completion >"$scratch/completion" && bash -n "$scratch/completion" ||
    Fail 'the completion is no script'
completed=$(bash -c 'source "$1"; COMP_WORDS=(vemosud rate --t) COMP_CWORD=2; _vemosud
    echo "${COMPREPLY[@]}"' bash "$scratch/completion")
[[ $completed == '--timeout --threads' ]] || Fail "completed: $completed"

ln -s "$scratch/out" "$scratch/link"
Expect 'a link as the list to be written' 3 'no regular file' \
    "$program" make-levels --corpus "$scratch/link" --corpus-count 1
[[ -L $scratch/link ]] || Fail 'a link: it was replaced'

# An answer comes before the next line is asked for.
mkfifo "$scratch/questions" "$scratch/answers"
"$program" rate "$scratch/questions" >"$scratch/answers" &
exec 4<"$scratch/answers" 3>"$scratch/questions"
grep -m 1 -v '^#' "$list" >&3
read -r -t 20 answer <&4 || Fail 'the answer waits for more input'
[[ ${answer:-} == *$'\t'Easy$'\t'* ]] || Fail "the answer is: ${answer:-}"
exec 3>&-
wait $! || Fail 'the end of the input is a fault'

((failures == 0))
