# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# The file dialogs and the text file beside the bare calls of the system.

# Needs the configured preset win64 and an open screen. False if a goal is missed.
bench_dialogs() {
    local folder=$build/bench/dialogs
    logged build-bench-dialogs ninja -C "$build/win64" -j"$(nproc)" bench_dialogs
    rm -rf "$folder" # an interrupted run leaves its thousands of files
    mkdir -p "$folder"
    # Wine's background processes would hold a pipe open for ever.
    local status=0
    (cd "$folder" && in_wine timeout -k 5 900 wine "$build/win64/bin/bench_dialogs.exe" ../dialogs.json) \
        >"$folder/output.log" 2>&1 </dev/null || status=$?
    tr -d '\r' <"$folder/output.log"
    return "$status"
}
