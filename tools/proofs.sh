# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# The proofs of the kernel's short ways: Gappa checks each lemma of geometry/proofs with the
# numbers of the source itself.

# check_proofs: adds to "passed" and "failed" like the test programs.
check_proofs() {
    local folder=$build/proofs start=$EPOCHREALTIME good=0 problems=() lemma name
    require gappa
    mkdir -p "$folder"
    proof_numbers >"$folder/numbers.sed"
    for lemma in "$root"/geometry/proofs/*.gappa; do
        name=$(basename "$lemma")
        sed -f "$folder/numbers.sed" "$lemma" >"$folder/$name"
        # A name that has no number is a syntax error.
        if timeout 120 gappa -Wno-null-denominator "$folder/$name" >"$folder/$name.log" 2>&1; then
            good=$((good + 1))
        else
            problems+=("$name is not proved, see ${folder#"$root"/}/$name.log")
        fi
    done
    passed=$((passed + good))
    failed=$((failed + ${#problems[@]}))
    printf '%-6s %-20s %5d passed, %d failed (%s s)\n' host proofs: "$good" "${#problems[@]}" "$(seconds_since "$start")"
    ((${#problems[@]} == 0)) || printf '  %s\n' "${problems[@]}"
}

run_proofs() {
    check_proofs
    ((failed == 0 && passed > 0))
}

# "@name@" becomes its number, for the kernel's constants and the margins between the lemmas.
proof_numbers() {
    sed -nE 's/^(inline constexpr double )?([km][A-Za-z0-9]+) = ([-+.0-9a-fxp]+);?( .*)?$/s|@\2@|\3|g/p' \
        "$root"/geometry/Constants.h "$root"/geometry/detail/Limits.h "$root"/geometry/proofs/margins.txt
}
