# shellcheck shell=bash disable=SC2154  # sourced by ./run, which sets the paths
# Measures speed. The libraries to compare with are installed only here.

kernel_bench_packages=(libboost-dev libeigen3-dev libcgal-dev libgeos++-dev gnuplot-nox)

# bench_kernel: the geometry kernel beside the floor of its formulas and other libraries.
# The tables go to the screen; figures and chart are build/bench/kernel.json, kernel.png and contexts.txt.
bench_kernel() {
    require "${kernel_bench_packages[@]}"
    logged configure-bench cmake -S "$root/bench/kernel" -B "$build/bench" -G Ninja -DFIELDKIT_PEERS=ON
    logged build-bench ninja -C "$build/bench" -j"$(nproc)" bench_kernel bench_contexts
    "$build/bench/bin/bench_kernel" "$build/bench"
    "$build/bench/bin/bench_contexts" | tee "$build/bench/contexts.txt"
    draw_kernel_chart "$build/bench/kernel.dat" "$build/bench/kernel.png"
}

# draw_kernel_chart DATA PICTURE: a group of bars a workload, lower is better.
draw_kernel_chart() {
    gnuplot <<PLOT
set terminal pngcairo size 900,480 font "sans,10"
set output "$2"
set title "Time over the floor of the formula's arithmetic (logarithmic, lower is better)"
set style data histogram
set style histogram clustered gap 1
set style fill solid 0.9 noborder
set logscale y
set yrange [0.8:*]
set grid ytics
set xtics rotate by 25 right nomirror
set key top right
plot "$1" using 2:xtic(1) title "plain form" linecolor rgb "#b0b0b0", \
     "" using 3 title "Fieldkit" linecolor rgb "#1f77b4", \
     "" using 5 title "best other library" linecolor rgb "#ff7f0e", \
     "" using 4 title "goal" linecolor rgb "#2ca02c"
PLOT
}
