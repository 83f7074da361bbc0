# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Feeds the parsers with made-up bytes, see fuzz/Targets.h.

# run_fuzz SECONDS: for each target; what was found stays in build/fuzz/corpus for the
# next run. An input that breaks something is left as build/fuzz/TARGET-...
run_fuzz() {
    local seconds=${1:-20} folder=$build/fuzz program
    [[ $seconds =~ ^[1-9][0-9]*$ ]] || die "not a number of seconds: $seconds"
    require clang
    logged fuzz-configure cmake -S "$root/fuzz" -B "$folder" -G Ninja -DCMAKE_CXX_COMPILER=clang++
    logged fuzz-build compile "$folder"
    for program in "$folder"/fuzz_*; do
        [[ -x $program ]] || continue
        fuzz_target "${program##*_}" "$program" "$seconds"
    done
}

fuzz_target() {
    local target=$1 program=$2 seconds=$3 corpus=$build/fuzz/corpus/$1 log=$build/fuzz/$1.log
    mkdir -p "$corpus"
    if ! timeout $((seconds + 60)) "$program" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 \
        -artifact_prefix="$build/fuzz/$target-" "$corpus" "$root/fuzz/seeds/$target" >"$log" 2>&1 </dev/null; then
        tail -n 40 "$log"
        die "$target broke, see ${log#"$root"/}"
    fi
    printf '%-8s %s\n' "$target" "$(grep '^Done' "$log")"
}
