# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# What the native tests run of the portable folders: lines, branches, and conditions that each
# decide something by themselves (MC/DC).

# Of these folders everything is run. A line that nothing can reach says so by a comment,
# "// unreachable: why", at its end; it does not count then.
covered_folders=(geometry survey)

run_coverage() {
    local folder=$build/coverage programs objects=() program
    require clang-19 llvm-19 libclang-rt-19-dev
    # Flags of its own: nothing is optimised away, and another compiler's warnings are no matter.
    logged coverage-configure cmake --fresh --preset host -S "$root" -B "$folder" -DCMAKE_CXX_COMPILER=clang++-19 \
        -DFIELDKIT_SANITIZE=OFF -DCMAKE_BUILD_TYPE=None \
        -DCMAKE_CXX_FLAGS='-O0 -g -w -fprofile-instr-generate -fcoverage-mapping -fcoverage-mcdc'
    logged coverage-build compile "$folder"
    rm -rf "$folder/raw"
    mkdir -p "$folder/raw"
    # What fails here and not in ./run test hangs on this build, and has run all the same.
    LLVM_PROFILE_FILE=$folder/raw/%p.profraw ctest --test-dir "$folder" --output-on-failure \
        >"$build/coverage-tests.log" 2>&1 ||
        printf 'not all tests pass in this build, see build/coverage-tests.log\n'
    llvm-profdata-19 merge -o "$folder/all.profdata" "$folder"/raw/*.profraw
    programs=("$folder"/bin/test_*)
    for program in "${programs[@]:1}"; do
        objects+=(-object "$program")
    done

    local all=("$root"/framework "$root"/companion "$root"/geometry "$root"/survey "$root"/util)
    llvm_cov show -format=html -output-dir="$folder/html" "${all[@]}"
    llvm_cov report -show-branch-summary -show-mcdc-summary "${all[@]}" |
        awk 'NF == 16 { printf "%-44s %9s %9s %9s\n", $1, $10, $13, $16 }
             NR == 1 { printf "%-44s %9s %9s %9s\n", "", "lines", "branches", "MC/DC" }'
    printf 'every line in %s\n' "${folder#"$root"/}/html/index.html"
    llvm_cov show -show-instantiations=false "${covered_folders[@]/#/$root/}" |
        gaps_in_coverage >"$folder/gaps.txt"
    [[ -s $folder/gaps.txt ]] || return 0
    printf 'not all of %s is run:\n' "${covered_folders[*]}"
    cat "$folder/gaps.txt"
    return 1
}

# llvm_cov COMMAND ARGUMENTS...: of all test programs; uses the caller's variables.
llvm_cov() {
    local options=()
    [[ $1 != show ]] || options=(-show-branches=count -show-mcdc)
    # It complains of functions that differ between the programs, such as those of the tests.
    llvm-cov-19 "$1" "${options[@]}" -instr-profile "$folder/all.profdata" \
        "${programs[0]}" "${objects[@]}" "${@:2}" 2>"$folder/llvm-cov.log"
}

# Reads the listing of llvm-cov: each line with its count, after it its branches and decisions.
gaps_in_coverage() {
    awk -v root="$root/" '
        function gap(line, what) {
            if (!((file, line) in excused)) printf "%s:%s: %s\n", file, line, what
        }
        /^\/.*:$/ { file = substr($0, length(root) + 1, length($0) - length(root) - 1); next }
        /^ *[0-9]+\|/ {
            split($0, part, "|")
            line = part[1] + 0
            if (/\/\/ unreachable: /) excused[file, line]
            if (part[2] ~ /^ *0$/) gap(line, "not run")
            next
        }
        /Branch \(.*(True|False): 0[],]/ {
            match($0, /\([0-9]+:[0-9]+\)/)
            place = substr($0, RSTART + 1, RLENGTH - 2)
            gap(place + 0, "branch at " place ", " (/True: 0/ ? "never" : "always") " true")
        }
        /MC\/DC Decision Region/ { match($0, /\([0-9]+/); decision = substr($0, RSTART + 1, RLENGTH - 1) + 0 }
        /C[0-9]+-Pair: not covered/ { gap(decision, "condition " substr($2, 1, index($2, "-") - 1) " decides nothing") }'
}
