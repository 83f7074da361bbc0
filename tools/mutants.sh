# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# How much the tests notice: plants faults into a folder's sources, one at a time, and runs the
# folder's tests. All faults are in one build; a number in the environment chooses one.

mutants_folder=$build/mutants

# Each folder or file, the build that has its tests, and those tests, "@" the screen if it is another.
mutants_table='
geometry host geometry
survey host survey
framework/base host framework_base fuzz_seeds
framework/application win64 framework framework_comctl
framework/control win64 framework framework_comctl
framework/dialog win64 framework framework_comctl controls
framework/drawing win64 framework controls
framework/shell win64 framework framework_comctl companion screens controls screens@480x640 screens@320x240
framework/window win64 framework framework_comctl controls screens
companion win64 companion screens
util host util fuzz_seeds
controls win64 controls survey_window screens screens@800x480
dialogs win64 dialogs screens screens@800x480 screens@320x240
survey/AngleEdit.cpp win64 survey_window
'

# run_mutants [FOLDER [each | N]]: of all folders without one; "each" tells what each assertion is
# good for, a number has one fault in N tried, the same ones each time. False when a fault survives
# unexplained.
run_mutants() {
    local folder preset tests status=0 how=${2:-} rows
    [[ -z $how || $how == each || $how =~ ^[1-9][0-9]*$ ]] || die "neither \"each\" nor a number: $how"
    rows=$(awk -v folder="${1:-}" 'NF && (folder == "" || folder == $1)' <<<"$mutants_table")
    [[ -n $rows ]] || die "not a folder with tests of its own: $1"
    require python3 python3-clang-14 libclang1-14 libclang-common-14-dev
    while read -r -u 4 folder preset tests; do
        # shellcheck disable=SC2086  # a list
        mutants_of "$folder" "$preset" $tests || status=1
    done 4<<<"$rows"
    return $status
}

declare -A mutants_built=()
screens=()

mutants_of() {
    local folder=$1 preset=$2 name=${1//\//_} programs=("${@:3}") all=("${@:3}") through=()
    if [[ $preset == win64 ]]; then
        # These folders share a build, which takes minutes.
        name=windows
        mapfile -t all < <(awk '$2 == "win64" { for (i = 3; i <= NF; ++i) print $i }' <<<"$rows" | sed 's/@.*//' | sort -u)
        ((${#screens[@]} > 0)) || open_screens
    fi
    local own=$mutants_folder/$name
    mkdir -p "$own"
    if [[ -z ${mutants_built[$name]:-} ]]; then
        logged "mutants-$name" build_mutants "$(places_of "$folder" "$preset")" "$preset" "$own" "${all[@]}"
        mutants_built[$name]=yes
    fi
    programs=("${programs[@]/#/$own/tree/build/$preset/bin/test_}")
    if [[ $preset == win64 ]]; then
        mapfile -t programs < <(printf '%s\n' "${programs[@]}" | sed 's/@\|$/.exe&/')
        through+=(--through wine --folder "$folder" "${screens[@]/#/--screens=}")
    fi
    logged "reach-${folder//\//_}" see_reach "$preset" "${programs[@]}"
    case $how in
    each) through+=(--each "$own/each.json") ;;
    [1-9]*) through+=(--one-in "$how") ;;
    esac
    printf '%s\n' "$folder:"
    in_wine /usr/bin/python3 "$root/tools/mutants/judge.py" "${through[@]}" --workers "$(nproc)" \
        --explained "$root/tools/mutants/explained.txt" "$own/faults.json" "${programs[@]}" 2>&1 </dev/null
}

# Programs with windows wait more than they calculate, and on one screen they would take the focus from
# each other.
open_screens() {
    local i screen own
    open_screen # its prefix is what the others are made from
    for ((i = 2 * $(nproc); i > 0; --i)); do
        own=
        for screen in "$device_screen 96" "${other_screens[@]}"; do
            [[ "$device_screen 96 $mutants_table" == *"${screen%% *}"[[:space:]]* ]] || continue
            # shellcheck disable=SC2086  # size and resolution
            open_screen "-mutants$i-${screen%% *}" $screen
            own+=" $screen_size $DISPLAY $WINEPREFIX"
        done
        screens+=("$own")
    done
}

# What gets faults in one build, by commas: the folder and what else its tests are for, or all
# folders of windows.
places_of() {
    local IFS=, headers
    if [[ $2 == win64 ]]; then
        mapfile -t headers < <(awk '$2 == "win64" { print $1 }' <<<"$mutants_table")
        printf '%s' "${headers[*]}"
    elif [[ $1 == framework/base ]]; then
        mapfile -t headers < <(printf '%s\n' "${covered[@]}" | grep '^framework/.*\.h$')
        printf '%s' "$1,${headers[*]}"
    else
        printf '%s' "$1"
    fi
}

# build_mutants PLACES PRESET OWN TEST...: in the folder OWN a copy of the tree in which PLACES
# have all their faults. Places that only the compiler evaluates show up as errors and are left out.
build_mutants() {
    local places=$1 preset=$2 faults=$3/faults.json tree=$3/tree round
    local left_out=$3/left_out log=$3/compile.log arguments=()
    shift 3
    mkdir -p "$tree"
    rm -rf "$tree/tests" # what is gone there must not be tried
    git ls-files -z --cached --others --exclude-standard | tar --null -cf - -T - | tar -xf - -C "$tree"
    cmake --preset "$preset" -S "$root" -B "$build/$preset"
    if [[ $preset == win64 ]]; then
        windows_arguments
        arguments=("${tidy_windows[@]}")
    fi
    # The library does not know where the compiler's own headers are.
    arguments+=(-resource-dir /usr/lib/llvm-14/lib/clang/*)
    cmake --preset "$preset" -S "$tree" -B "$tree/build/$preset" -DFIELDKIT_SANITIZE=OFF \
        -DCMAKE_CXX_FLAGS="-w -include $root/tools/mutants/Mutant.h" \
        -DFIELDKIT_TEST_SOURCES="$root/tools/mutants/Reach.cpp"
    : >"$left_out"
    for round in 1 2 3 4 5 6; do
        /usr/bin/python3 "$root/tools/mutants/plant.py" "$build/$preset/compile_commands.json" "$root" \
            "$tree" "$places" "$left_out" -- "${arguments[@]}" >"$faults"
        echo "round $round"
        if ninja -C "$tree/build/$preset" -j"$(nproc)" -k 0 "${@/#/test_}" >"$log" 2>&1; then
            return
        fi
        /usr/bin/python3 "$root/tools/mutants/errors.py" "$log" "$tree/build/$preset" "$tree" "$faults" >>"$left_out"
    done
    tail -n 30 "$log"
    return 1
}

# see_reach PRESET PROGRAM...: which tests get to which faults, PROGRAM.reached.txt.
see_reach() {
    local preset=$1 program size display folder
    shift
    for program in "$@"; do
        cd "${program%/*}" || return # where files may land
        head -c 65536 /dev/zero >"$program.reached"
        rm -f "$program.reached.txt"
        case $preset in
        host) MUTANT_REACH=$program.reached "$program" ;;
        win64)
            size=$device_screen
            [[ $program != *@* ]] || size=${program#*@}
            # Of the first worker's screens.
            read -r display folder < <(grep -o "$size [^ ]* [^ ]*" <<<"${screens[0]}" | cut -d ' ' -f 2-)
            MUTANT_REACH=Z:$program.reached DISPLAY=$display WINEPREFIX=$folder \
                in_wine timeout -k 5 900 wine "${program%@*}"
            ;;
        esac
    done
}
