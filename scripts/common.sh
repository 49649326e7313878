# shellcheck shell=bash
# What ./play and ./check share; both source it with `root` set to the checkout.

# Qt and the compilers want UTF-8; a bare machine speaks plain C.
[[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8

# A user without a home still gets a compiler cache.
if [[ ! -w ${HOME:-} && -z ${CCACHE_DIR:-} ]]; then
    export CCACHE_DIR=$root/build/ccache
fi

# A precompiled header is found again in the cache by what is in it.
export CCACHE_SLOPPINESS=pch_defines,time_macros
# The compiler lists what it reads: a first build does not run the preprocessor twice.
export CCACHE_DEPEND=1
# A precompiled header is large: it is not read again for every file that uses it.
export CCACHE_INODECACHE=1

Fail() { # MESSAGE
    echo "$program: $1" >&2
    exit 1
}

# Under sudo: starts the script again as the user who called sudo, so that nothing that it makes
# belongs to root. To be called when the packages stand.
LeaveSudo() { # ARGUMENT...
    local home session
    if ((EUID != 0)) || [[ -z ${SUDO_USER:-} || $SUDO_USER == root ]]; then
        return
    fi
    home=$(getent passwd "$SUDO_USER" | cut -d: -f6)
    session=/run/user/$(id -u "$SUDO_USER")
    if [[ -d $session ]]; then
        export XDG_RUNTIME_DIR=$session
    fi
    exec env --unset=SUDO_USER HOME="$home" USER="$SUDO_USER" LOGNAME="$SUDO_USER" \
        runuser --user "$SUDO_USER" -- "$root/$program" "$@"
}

# Ends with a plain message where the builds could not be written.
NeedBuildFolder() {
    mkdir -p "$root/build/logs" 2>/dev/null && [[ -w $root/build && -w $root/build/logs ]] ||
        Fail "$(id -un) cannot write to $root/build; make it writable or remove it"
}

# Runs a command, its output going to build/logs/NAME.log; shows the end of that when it fails.
Quiet() { # NAME COMMAND...
    local log=$root/build/logs/$1.log
    shift
    if ! "$@" >"$log" 2>&1 </dev/null; then
        tail -n 40 "$log" >&2
        echo "(the whole output: $log)" >&2
        return 1
    fi
}

# Configures a preset where that is needed: the first time, after an interrupted one, after a change
# of the presets or of the checkout's place. Every other change ninja sees by itself.
Configure() { # PRESET
    local folder=$root/build/$1
    if [[ -f $folder/build.ninja && ! $root/CMakePresets.json -nt $folder/build.ninja ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        return
    fi
    (cd "$root" && cmake --fresh --preset "$1")
}

Build() { # PRESET [TARGET...]
    local folder=$root/build/$1
    shift
    cmake --build "$folder" --parallel "$(nproc)" ${1:+--target "$@"}
}
