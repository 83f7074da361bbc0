# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Shared by the commands of ./run: one run at a time, logged steps, errors.

die() {
    printf 'run: %s\n' "$*" >&2
    exit 1
}

# Claims the tree and moves everything that programs write for their user into
# build/, so that the caller's own home stays as it is.
begin() {
    mkdir -p "$build/home" "$build/tmp"
    exec 9>"$build/lock"
    flock --nonblock 9 || die "another run is at work in this tree"
    chmod 700 "$build/home"
    export HOME=$build/home TMPDIR=$build/tmp LC_ALL=C.UTF-8
    export XDG_CACHE_HOME=$HOME/.cache XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share
    export XDG_RUNTIME_DIR=$HOME
    cd "$root"
}

# logged NAME COMMAND...: output to build/NAME.log, one line with the time taken;
# on failure the end of the log, and the run is over.
logged() {
    local name=$1 log=$build/$1.log start=$SECONDS
    shift
    # Not as a condition: there the shell would ignore "set -e" inside the command.
    set +e
    (
        set -e
        "$@"
    ) >"$log" 2>&1 </dev/null
    local status=$?
    set -e
    if ((status != 0)); then
        printf '%-18s failed after %d s, the end of %s:\n' "$name" "$((SECONDS - start))" "${log#"$root"/}"
        tail -n 40 "$log"
        exit 1
    fi
    printf '%-18s %3d s\n' "$name" "$((SECONDS - start))"
}

# wait_until SECONDS COMMAND...: polls; false when the time is over.
wait_until() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < deadline)) || return 1
        sleep 0.1
    done
}
