# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# The framework layer, the file dialogs and the text files beside the bare calls of the system.

# Needs the configured preset win64 and an open screen. False if a goal is missed.
bench_layer() {
    local folder=$build/bench/layer
    logged build-bench-layer ninja -C "$build/win64" -j"$(nproc)" bench_layer
    rm -rf "$folder" # an interrupted run leaves its thousands of files
    mkdir -p "$folder"
    # Wine's background processes would hold a pipe open for ever.
    local status=0
    (cd "$folder" && in_wine timeout -k 5 900 wine "$build/win64/bin/bench_layer.exe" ../layer.json) \
        >"$folder/output.log" 2>&1 </dev/null || status=$?
    tr -d '\r' <"$folder/output.log"
    return "$status"
}
