#!/usr/bin/env bash
# Installs what is missing, builds the benchmarks in release mode, runs all of them and prints one
# table. scripts/bench.sh --once takes each figure once, to check that the benchmarks work.
. "$(dirname "$0")/lib.sh"

core=2 check=30 window=5 start=40 # seconds for each figure; starting programs takes longest
verdict=1
if [ "${1:-}" = --once ]; then
    core=0 check=0 window=0 start=0 verdict=0 # a single turn says nothing about a goal
fi

install_missing "${build_packages[@]}" libbenchmark-dev libxcb-damage0-dev qt6-svg-dev xvfb xauth \
    fonts-dejavu-core featherpad
cmake -S . -B build/bench -DCMAKE_BUILD_TYPE=Release -DTEPHREX_BENCH=ON -DBUILD_TESTING=OFF \
    >/dev/null
cmake --build build/bench -j "$(nproc)" >/dev/null

# Without the user's settings, and with the records in memory rather than on a disk.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home XDG_RUNTIME_DIR=$home LC_ALL=C.UTF-8
if [ -w /dev/shm ]; then
    TMPDIR=$(mktemp -d -p /dev/shm)
    export TMPDIR
    trap 'rm -rf "$home" "$TMPDIR"' EXIT
fi

failed=0
figures=build/bench/figures.txt
bench=build/bench/bench
{
    "$bench/core_bench" --benchmark_min_time=$core || failed=1
    "$bench/check_bench" --benchmark_min_time=$check || failed=1
    QT_QPA_PLATFORM=offscreen "$bench/window_bench" --benchmark_min_time=$window || failed=1
    QT_QPA_PLATFORM=offscreen "$bench/draw_bench" --benchmark_min_time=$window || failed=1
    xvfb-run -a -s "-screen 0 1600x1200x24 -noreset" \
        "$bench/start_bench" --benchmark_min_time=$start || failed=1
} >"$figures"

awk -F '\t' -v verdict=$verdict '
    BEGIN { print_row("Figure", "Ours", "Reference", "Ratio", "Goal", "") }
    { print_row($1, $2, $3, $4, $5, verdict ? $6 : "") }
    function print_row(figure, ours, reference, ratio, goal, met) {
        printf "%-42s %10s %10s %8s  %-17s  %s\n", figure, ours, reference, ratio, goal, met
    }' "$figures"
exit "$failed"
