# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Runs the test programs of all builds and adds up their results.

test_timeout=300
passed=0
failed=0

# Beside the device's: size and resolution.
other_screens=('320x240 96' '480x640 192' '800x480 96' '1024x768 96')

# run_tests NAME: every program whose name contains NAME, the sample's too. Without a NAME
# also what is no test program: tutorial and package. Programs with windows wait more than they
# calculate, so there are three lanes with a screen each that take about as long. The programs that
# look at all dialogs run on each of other_screens as well.
run_tests() {
    local built=$SECONDS lane
    # The same events each time, of which the first are as good as any; ./run shake has the time for more.
    export SHAKE_EVENTS=${SHAKE_EVENTS:-1000}
    start_lane second tests_on_second_screen "$1"
    start_lane third tests_on_third_screen "$1"
    [[ -n $1 ]] || start_lane package tests_of_package
    run_programs "$1" first win64 sample programs
    for lane in native second third package; do
        [[ -z ${lanes[$lane]:-} ]] || end_lane "$lane"
    done
    ((passed + failed > 0)) || die "no test program matches \"$1\""
    printf 'built in %d s, all done in %d s\n' "$built" "$SECONDS"
    printf '%d passed, %d failed\n' "$passed" "$failed"
    ((failed == 0))
}

# Wine's first start takes seconds in which the machine has nothing to do: beside the build.
prepare_screen() {
    open_screen
    close_screen
}

# What needs no screen, beside all that the screens wait for, which gets the processors first.
test_natively() {
    local preset
    renice -n 10 "$BASHPID" >/dev/null
    for preset in host arm; do
        build_presets "$preset"
        run_programs "$1" first "$preset"
    done
    [[ -z $1 ]] || return 0
    check_proofs
    make_native_package
    count_instructions
    test_native_package
}

# What the library is to those who get it.
tests_of_package() {
    renice -n 5 "$BASHPID" >/dev/null
    check_symbols
    check_abi
    build_tutorial
    open_screen -package
    test_tutorial
    make_windows_package
    test_package
    close_screen
}

tests_on_second_screen() {
    if [[ -n $(programs "$1" second sample) ]]; then
        open_screen -second
        run_programs "$1" second sample
        close_screen
    fi
    [[ -z $1 || screens == *"$1"* ]] || return 0
    local screen
    for screen in "${other_screens[@]}"; do
        # shellcheck disable=SC2086  # size and resolution
        open_screen "-${screen%% *}" $screen
        run_programs screens first win64 sample
        close_screen
    done
}

tests_on_third_screen() {
    [[ -n $(programs "$1" third win64) ]] || return 0
    open_screen -third
    run_programs "$1" third win64
    close_screen
}

declare -A lanes=()

# start_lane NAME COMMAND...: runs beside the caller; log and counters are the lane's own until
# end_lane shows and adds them.
start_lane() {
    local log=$build/lane-$1.log
    (
        forget_screens # they are the caller's
        "${@:2}"
        printf '%d %d\n' "$passed" "$failed"
    ) >"$log" 2>&1 &
    lanes[$1]=$!
}

end_lane() {
    local log=$build/lane-$1.log good bad
    if ! wait "${lanes[$1]}"; then
        cat "$log"
        die "the lane $1 did not come to its end"
    fi
    sed '$d' "$log"
    read -r good bad < <(tail -n 1 "$log")
    passed=$((passed + good))
    failed=$((failed + bad))
}

# run_programs NAME LANE BUILD...: the test programs of each build whose name contains NAME.
run_programs() {
    local preset program
    while read -r -u 4 preset program; do
        run_test_program "$preset" "$program"
    done 4< <(programs "$@")
}

# Their builds and paths, a line each, of a lane: those that take longest are in others than the first.
programs() {
    local name=$1 lane=$2 preset program folder found
    shift 2
    for preset in "$@"; do
        folder=$build/$preset/bin
        [[ $preset != sample ]] || folder=$build/fieldbook/tests
        for program in "$folder"/test_*"$name"*; do
            [[ -f $program && -x $program && $program != *.dll ]] || continue
            case $program in
            */test_faults.exe | */test_shake.exe) found=third ;;
            */test_fieldbook_shake.exe) found=second ;;
            *) found=first ;;
            esac
            [[ $found != "$lane" ]] || printf '%s %s\n' "$preset" "$program"
        done
    done
}

run_test_program() {
    local preset=$1 program=$2 name start=$EPOCHREALTIME status=0
    name=$(basename "$program" .exe)
    [[ $screen_size == "$device_screen" ]] || name+=@$screen_size
    local folder=$build/$preset/results
    local log=$folder/$name.log xml=$folder/$name.xml work=$folder/work/$name
    mkdir -p "$work"
    rm -f "$xml"
    # In a folder of its own, so that stray files do not land in the source tree.
    # The result's path is relative, so that it means the same inside Wine.
    (cd "$work" && start_test "$preset" "$program" "--gtest_output=xml:../../$name.xml") \
        >"$log" 2>&1 </dev/null || status=$?

    local good=0 bad=0 problem=
    if [[ -s $xml ]]; then
        read -r good bad < <(count_results "$xml")
    fi
    if ((status == 124 || status == 137)); then
        problem="timed out after $test_timeout s"
    elif [[ ! -s $xml ]]; then
        problem="ended without a result (exit status $status)"
    elif ((status != 0 && bad == 0)); then
        problem="failed outside its tests (exit status $status)"
    elif ((good + bad == 0)); then
        problem='ran no test'
    fi
    [[ -z $problem ]] || bad=$((bad + 1))
    passed=$((passed + good))
    failed=$((failed + bad))

    printf '%-6s %-20s %5d passed, %d failed (%s s)\n' "$preset" "$name:" "$good" "$bad" "$(seconds_since "$start")"
    if ((bad > 0)); then
        failure_details "$log"
        [[ -z $problem ]] || printf '  %s %s, see %s\n' "$name" "$problem" "${log#"$root"/}"
    fi
}

start_test() {
    local preset=$1
    shift
    case $preset in
    host | clang) timeout -k 5 "$test_timeout" "$@" ;;
    arm) timeout -k 5 "$test_timeout" qemu-arm -L /usr/arm-linux-gnueabi "$@" ;;
    win64 | clang-win64 | sample | programs) in_wine timeout -k 5 "$test_timeout" wine "$@" ;;
    esac
}

# Prints the numbers of passed and failed tests; skipped ones are neither.
count_results() {
    awk '
        /<testsuite / {
            tests += value("tests"); bad += value("failures") + value("errors")
            left_out += value("disabled") + value("skipped")
        }
        function value(name) {
            return match($0, " " name "=\"[0-9]+\"") ? substr($0, RSTART + length(name) + 3) + 0 : 0
        }
        END { print tests - bad - left_out, bad + 0 }' "$1"
}

# Only the output of tests that failed, or of the one that never came to its end.
failure_details() {
    tr -d '\r' <"$1" | awk '
        /^\[ RUN      \]/ { block = ""; lines = 0; inside = 1 }
        inside && ++lines <= 40 { block = block "  " $0 "\n" }
        !inside { rest = $0 }
        /^\[       OK \]|^\[  SKIPPED \]/ { inside = 0 }
        inside && /^\[  FAILED  \]/ { printf "%s", block; inside = 0; shown = 1 }
        END { if (inside) printf "%s", block; else if (!shown && NR) print "  " rest }'
}

seconds_since() {
    awk -v from="$1" -v to="$EPOCHREALTIME" 'BEGIN { printf "%.1f", to - from }'
}
