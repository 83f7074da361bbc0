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
    draw_layer_chart "$build/bench/layer.json" "$build/bench/layer.png"
    return "$status"
}

# draw_layer_chart JSON PICTURE: a bar a row, shorter is better. The file has a row in a line.
draw_layer_chart() {
    sed -nE 's/.*"name": "([^"]*)".*"kind": "ratio", "result": ([0-9.]+), "quartiles": \[([0-9.]+), ([0-9.]+)\], "goal": ([0-9.]+).*/"\1" \2 \3 \4 \5/p' \
        "$1" | tac >"$1.dat"
    gnuplot <<PLOT
set terminal pngcairo size 900,1100 font "sans,9"
set output "$2"
set title "Time over that of the bare system or standard library (quartiles; shorter is better)"
set logscale x 2
set xrange [0.03:8]
set yrange [-1:*]
set grid xtics
set style fill solid 0.9 noborder
set key bottom right
plot "$1.dat" using (sqrt(\$2*0.03)):0:(0.03):2:(\$0-0.35):(\$0+0.35):ytic(1) with boxxyerror title "Fieldkit" linecolor rgb "#1f77b4", \\
     "" using 2:0:3:4 with xerrorbars title "quartiles" pointtype 0 linecolor rgb "black", \\
     "" using 5:0 with points title "goal" pointtype 9 linecolor rgb "#2ca02c"
PLOT
}
