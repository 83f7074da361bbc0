# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Random input into every dialog and control, see tests/shake.

# run_shake SECONDS SEED: rounds of the shake test, each with the next seed, until the time is over.
# A crash or a hang names seed and event; the same seed repeats it.
run_shake() {
    local seconds=${1:-60} seed=${2:-1} start=$SECONDS log=$build/shake.log
    [[ $seconds =~ ^[1-9][0-9]*$ ]] || die "not a number of seconds: $seconds"
    [[ $seed =~ ^[0-9]+$ ]] || die "not a seed: $seed"
    while ((SECONDS - start < seconds)); do
        if ! SHAKE_SEED=$seed SHAKE_EVENTS=10000 in_wine timeout -k 5 1800 \
            wine "$build/win64/bin/shake.exe" >"$log" 2>&1 </dev/null; then
            tail -n 40 "$log"
            die "seed $seed broke something, see ${log#"$root"/}"
        fi
        printf 'seed %s: %s\n' "$seed" "$(tail -n 1 "$log" | tr -d '\r')"
        seed=$((seed + 1))
    done
}
