# shellcheck shell=bash disable=SC2034,SC2154  # sourced by ./run, which sets the paths and reads the counters
# What compiled programs rely on, docs/stability.md: compared with a list in the tree.

abi_list=$root/tools/abi.txt

# Renews the list from the DLLs and the headers.
run_abi() {
    python3 "$root/tools/abi.py" list "$root" "$build/win64/bin" >"$abi_list.new"
    mv "$abi_list.new" "$abi_list"
    printf '%d lines in %s\n' "$(wc -l <"$abi_list")" "${abi_list#"$root"/}"
}

check_abi() {
    local log=$build/abi.log start=$EPOCHREALTIME good=1
    python3 "$root/tools/abi.py" compare "$abi_list" "$root" "$build/win64/bin" >"$log" 2>&1 || good=0
    passed=$((passed + good))
    failed=$((failed + 1 - good))
    printf '%-6s %-20s %5d passed, %d failed (%s s): %s\n' package 'stable names:' "$good" $((1 - good)) \
        "$(seconds_since "$start")" "$(tail -n 1 "$log")"
    ((good == 1)) || sed '$d' "$log"
}
