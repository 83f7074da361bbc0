# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Random input into every dialog and control and into the sample, see tests/shake.

# run_shake SECONDS SEED: rounds of the shake tests, each with the next seed, until the time is over.
# A crash or a hang names seed and event; the same seed repeats it.
run_shake() {
    local seconds=${1:-60} seed=${2:-1} start=$SECONDS
    [[ $seconds =~ ^[1-9][0-9]*$ ]] || die "not a number of seconds: $seconds"
    [[ $seed =~ ^[0-9]+$ ]] || die "not a seed: $seed"
    while ((SECONDS - start < seconds)); do
        shake_with "$seed" "$build/win64/bin/test_shake.exe"
        shake_with "$seed" "$build/fieldbook/tests/test_fieldbook_shake.exe"
        seed=$((seed + 1))
    done
}

shake_with() {
    local seed=$1 program=$2 log=$build/shake.log
    if ! SHAKE_SEED=$seed SHAKE_EVENTS=10000 \
        in_wine timeout -k 5 1800 wine "$program" >"$log" 2>&1 </dev/null; then
        tail -n 60 "$log"
        die "seed $seed broke something, see ${log#"$root"/}"
    fi
    printf 'seed %s, %s: %s\n' "$seed" "$(basename "$program" .exe)" "$(tail -n 1 "$log" | tr -d '\r')"
}
