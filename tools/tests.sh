# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Runs the test programs of all builds and adds up their results.

test_timeout=300
passed=0
failed=0

# run_tests NAME: every program whose name contains NAME, the sample's too. Without a NAME
# also what is no test program: proofs, speed, tutorial, package. Programs with windows wait
# more than they calculate, and what needs no screen runs beside them.
run_tests() {
    local log=$build/tests-without-screen.log beside good bad built=$SECONDS
    tests_without_screen "$1" >"$log" 2>&1 &
    beside=$!
    run_programs "$1" win64 sample
    if ! wait "$beside"; then
        cat "$log"
        die 'the tests that need no screen did not come to their end'
    fi
    sed '$d' "$log"
    read -r good bad < <(tail -n 1 "$log")
    passed=$((passed + good))
    failed=$((failed + bad))
    if [[ -z $1 ]]; then
        test_tutorial
        check_symbols
        test_package
    fi
    ((passed + failed > 0)) || die "no test program matches \"$1\""
    printf 'built in %d s, tested in %d s\n' "$built" "$((SECONDS - built))"
    printf '%d passed, %d failed\n' "$passed" "$failed"
    ((failed == 0))
}

# Its last line are the numbers of passed and failed tests.
tests_without_screen() {
    trap - EXIT # the screen is the caller's
    run_programs "$1" host arm
    if [[ -z $1 ]]; then
        make_package
        check_proofs
        count_instructions
    fi
    printf '%d %d\n' "$passed" "$failed"
}

# run_programs NAME BUILD...: the test programs of each build whose name contains NAME.
run_programs() {
    local name=$1 preset program
    shift
    for preset in "$@"; do
        for program in "$(programs_of "$preset")"/test_*"$name"*; do
            [[ -x $program && $program != *.dll ]] || continue
            run_test_program "$preset" "$program"
        done
    done
}

programs_of() {
    case $1 in
    sample) printf '%s' "$build/fieldbook/tests" ;;
    *) printf '%s' "$build/$1/bin" ;;
    esac
}

run_test_program() {
    local preset=$1 program=$2 name start=$EPOCHREALTIME status=0
    name=$(basename "$program" .exe)
    local folder=$build/$preset/results
    local log=$folder/$name.log xml=$folder/$name.xml
    mkdir -p "$folder/work"
    rm -f "$xml"
    # In a folder of its own, so that stray files do not land in the source tree.
    # The result's path is relative, so that it means the same inside Wine.
    (cd "$folder/work" && start_test "$preset" "$program" "--gtest_output=xml:../$name.xml") \
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
    host) timeout -k 5 "$test_timeout" "$@" ;;
    arm) timeout -k 5 "$test_timeout" qemu-arm -L /usr/arm-linux-gnueabi "$@" ;;
    win64 | sample) in_wine timeout -k 5 "$test_timeout" wine "$@" ;;
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
