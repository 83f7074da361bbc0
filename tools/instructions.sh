# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Keeps the kernel's speed: the instructions that fixed inputs take must not become more. They
# are the same in every run and on every x86-64 processor, which no time is.

# count_instructions: adds to "passed" and "failed" like the test programs. Leaves the counts in
# build/bench-counts/instructions.txt, in the form of the expected ones.
count_instructions() {
    local counts=$root/bench/kernel/instructions.txt start=$EPOCHREALTIME
    local program=$build/bench-counts/bin/kernel_instructions good=0 bad=0 problems=() workload expected count
    logged configure-counts cmake -S "$root/bench/kernel" -B "$build/bench-counts" -G Ninja
    logged build-counts ninja -C "$build/bench-counts" -j"$(nproc)" kernel_instructions
    grep '^#' "$counts" >"$build/bench-counts/instructions.txt"
    while read -r workload expected; do
        count=$(instructions_of "$program" "$workload")
        printf '%s %s\n' "$workload" "$count" >>"$build/bench-counts/instructions.txt"
        if [[ -n $count ]] && ((count * 100 <= expected * 105)); then
            good=$((good + 1))
        else
            bad=$((bad + 1))
            problems+=("$workload: ${count:-no count}, the expected are $expected")
        fi
    done < <(grep -v '^#' "$counts")
    # A workload without a count, or a count without its workload, is a fault as well.
    if [[ $("$program" | sort) != "$(awk '!/^#/ { print $1 }' "$counts" | sort)" ]]; then
        bad=$((bad + 1))
        problems+=("${counts#"$root"/} does not name the workloads")
    fi
    passed=$((passed + good))
    failed=$((failed + bad))
    printf '%-6s %-20s %5d passed, %d failed (%s s)\n' host instructions: "$good" "$bad" "$(seconds_since "$start")"
    ((bad == 0)) || printf '  %s\n' "${problems[@]}"
}

# instructions_of PROGRAM WORKLOAD: those of one pass, without those of the C and the
# mathematics library, which have a variant for each kind of processor.
instructions_of() {
    local folder=$build/bench-counts/counts
    mkdir -p "$folder"
    valgrind --tool=callgrind --toggle-collect=CountedPass --callgrind-out-file="$folder/$2.out" \
        "$1" "$2" >"$folder/$2.log" 2>&1 </dev/null || return 0
    # A module is named once and then called by its number; the line after "calls=" repeats
    # what the called function has on lines of its own.
    awk '
        match($0, /^c?ob=\([0-9]+\)/) {
            id = substr($0, index($0, "("), RLENGTH - index($0, "(") + 1)
            if (length($0) > RLENGTH) own[id] = $0 ~ /\/kernel_instructions$/
            if (!/^c/) inside = own[id]
            next
        }
        /^calls=/ { getline; next }
        /^[-+*0-9]/ && inside { sum += $2 }
        END { if (sum > 0) print sum }' "$folder/$2.out"
}
