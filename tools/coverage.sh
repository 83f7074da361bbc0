# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# What the native tests run of the portable folders: lines, branches, and conditions that each
# decide something by themselves (MC/DC).

# Of these folders and files everything is run. A line that nothing can reach says so by a comment,
# "// unreachable: why", at its end, a statement on a line above it; it does not count then.
covered=(
    geometry
    survey
    util
    framework/base
    framework/{afxcoll,afxstr,afxstrop_,afxtypes,atltypes}.h
    framework/afx{arc,array,dump,elem,err,file,list,map,obj,stdio,time,try,typed}_.h
)

run_coverage() {
    local folder=$build/coverage programs objects=() program
    require clang-19 llvm-19 libclang-rt-19-dev
    ls -d "${covered[@]/#/$root/}" >/dev/null # one that is renamed would count as covered
    # Flags of its own: nothing is optimised away, and another compiler's warnings are no matter.
    # What comes from a precompiled header has no counters.
    logged coverage-configure cmake --fresh --preset host -S "$root" -B "$folder" -DCMAKE_CXX_COMPILER=clang++-19 \
        -DFIELDKIT_SANITIZE=OFF -DCMAKE_BUILD_TYPE=None -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
        -DFIELDKIT_TEST_SOURCES="$root/tools/coverage/CountAborted.cpp" \
        -DCMAKE_CXX_FLAGS='-O0 -g -w -fprofile-instr-generate -fcoverage-mapping -fcoverage-mcdc'
    logged coverage-build compile "$folder"
    rm -rf "$folder/raw"
    mkdir -p "$folder/raw"
    # What fails here and not in ./run test hangs on this build, and has run all the same.
    # All processes of a program, the ones that tests start included, add to one file (%m).
    LLVM_PROFILE_FILE=$folder/raw/%m.profraw ctest --test-dir "$folder" --output-on-failure \
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
    llvm_cov show -show-instantiations=false "${covered[@]/#/$root/}" |
        gaps_in_coverage >"$folder/gaps.txt"
    [[ -s $folder/gaps.txt ]] || return 0
    printf 'not all of %s is run:\n' "${covered[*]}"
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
# A template's branches and decisions come once for each of its types, and count together.
gaps_in_coverage() {
    awk -v root="$root/" '
        function place_of(text) {
            match(text, /\([0-9]+:[0-9]+\)/)
            return substr(text, RSTART + 1, RLENGTH - 2)
        }
        function gap(place, what) {
            split(place, part, SUBSEP)
            if (!((part[1], part[2] + 0) in excused)) printf "%s:%d: %s\n", part[1], part[2], what
        }
        /^\/.*:$/ { file = substr($0, length(root) + 1, length($0) - length(root) - 1); next }
        /^ *[0-9]+\|/ {
            split($0, part, "|")
            line = part[1] + 0
            if (within || /\/\/ unreachable: /) excused[file, line]
            # The statement ends where a line does so by ; or {.
            within = part[3] ~ /^ *\/\/ unreachable: / || (within && $0 !~ /[;{]$/)
            if (part[2] ~ /^ *0$/) unrun[file, line]
            next
        }
        /Branch \(.*True: / {
            place = place_of($0)
            branches[file, place]
            if ($0 !~ /True: 0[],]/) taken[file, place, "never"]
            if ($0 !~ /False: 0[],]/) taken[file, place, "always"]
        }
        /MC\/DC Decision Region/ { decision = place_of($0) }
        /C[0-9]+-Pair: / {
            condition = substr($2, 1, index($2, "-") - 1)
            conditions[file, decision, condition]
            if (!/not covered/) decides[file, decision, condition]
        }
        END {
            for (place in unrun) gap(place, "not run")
            for (place in branches) {
                split(place, part, SUBSEP)
                for (way in ways) if (!((place, way) in taken)) gap(place, "branch at " part[2] ", " way " true")
            }
            for (place in conditions) {
                split(place, part, SUBSEP)
                if (!(place in decides)) gap(place, "condition " part[3] " decides nothing")
            }
        }
        BEGIN { ways["never"]; ways["always"] }' | sort -t: -k1,1 -k2,2n
}
