# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Keeps the speed of the kernel and of the framework's portable base: the instructions that fixed
# inputs take must not become more. They are the same in every run and on every x86-64 processor,
# which no time is.

count_instructions() {
    local kernel=$build/bench-counts/kernel
    logged configure-counts cmake -S "$root/bench/kernel" -B "$kernel" -G Ninja
    logged build-counts ninja -C "$kernel" -j"$(nproc)" kernel_instructions
    count_instructions_of kernel "$kernel"
    logged build-portable ninja -C "$build/linux" -j"$(nproc)" portable_instructions
    count_instructions_of portable "$build/linux"
}

# count_instructions_of BENCH BUILD: adds to "passed" and "failed" like the test programs. Leaves
# the counts in build/bench-counts/BENCH/instructions.txt, in the form of the expected ones.
count_instructions_of() {
    local counts=$root/bench/$1/instructions.txt folder=$build/bench-counts/$1 start=$EPOCHREALTIME
    local program=$2/bin/$1_instructions good=0 bad=0 problems=() workload expected count
    mkdir -p "$folder"
    grep '^#' "$counts" >"$folder/instructions.txt"
    while read -r workload expected; do
        count=$(instructions_of "$program" "$workload" "$folder/$workload.log")
        printf '%s %s\n' "$workload" "$count" >>"$folder/instructions.txt"
        if [[ -n $count ]] && ((count * 100 <= expected * 105)); then
            good=$((good + 1))
        else
            bad=$((bad + 1))
            problems+=("$workload: ${count:-no count, see ${folder#"$root"/}/$workload.log}, the expected are $expected")
        fi
    done < <(grep -v '^#' "$counts")
    # A workload without a count, or a count without its workload, is a fault as well.
    if [[ $("$program" | sort) != "$(awk '!/^#/ { print $1 }' "$counts" | sort)" ]]; then
        bad=$((bad + 1))
        problems+=("${counts#"$root"/} does not name the workloads")
    fi
    passed=$((passed + good))
    failed=$((failed + bad))
    printf '%-6s %-20s %5d passed, %d failed (%s s)\n' host "$1 instructions:" "$good" "$bad" "$(seconds_since "$start")"
    ((bad == 0)) || printf '  %s\n' "${problems[@]}"
}

# instructions_of PROGRAM WORKLOAD LOG: those of one pass, without those of the C and the
# mathematics library, which have a variant for each kind of processor. In a folder of its own, for
# the works write a file of one name: another run in this tree took it away, and there was no count.
instructions_of() {
    local folder status=0
    folder=$(mktemp -d "${1%/*}/counts.XXXXXX")
    (cd "$folder" && valgrind --tool=callgrind --vgdb=no --toggle-collect=CountedPass \
        --callgrind-out-file=counts "$1" "$2") >"$3" 2>&1 </dev/null || status=$?
    ((status != 0)) || own_instructions "$folder/counts"
    rm -rf "$folder"
}

# own_instructions FILE: those of the counted program itself, of callgrind's file.
own_instructions() {
    # A module is named once and then called by its number; the line after "calls=" repeats
    # what the called function has on lines of its own.
    awk '
        match($0, /^c?ob=\([0-9]+\)/) {
            id = substr($0, index($0, "("), RLENGTH - index($0, "(") + 1)
            if (length($0) > RLENGTH) own[id] = $0 ~ /\/[a-z]+_instructions$/
            if (!/^c/) inside = own[id]
            next
        }
        /^calls=/ { getline; next }
        /^[-+*0-9]/ && inside { sum += $2 }
        END { if (sum > 0) print sum }' "$1"
}
