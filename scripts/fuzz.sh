#!/usr/bin/env bash
# fuzz.sh [SECONDS]: builds the fuzz targets, runs each on the seeds in fuzz/seeds and then fuzzes it
# for that many seconds (30 if none are given). Failing inputs are in build/fuzz/findings; inputs
# that reach new code are in build/fuzz/corpus, from which the next run starts.
. "$(dirname "$0")/lib.sh"

seconds=${1:-30}
build=build/fuzz
install_missing clang libclang-rt-dev cmake make libgtest-dev libcli11-dev nlohmann-json3-dev
cmake -S . -B "$build" -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DTEPHREX_WERROR=ON -DTEPHREX_FUZZ=ON -DBUILD_TESTING=OFF \
    -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON >/dev/null
cmake --build "$build" -j "$(nproc)"

# The targets allocate and free memory in large blocks: a small quarantine keeps them fast.
export ASAN_OPTIONS=quarantine_size_mb=4
TMPDIR=$(mktemp -d)
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT

# fuzz TARGET LONGEST: an input has at most LONGEST bytes.
fuzz() {
    local program=$build/fuzz/fuzz$1 corpus=$build/corpus/$1 findings=$build/findings log=$build/$1.log
    mkdir -p "$corpus" "$findings"
    if "$program" "fuzz/seeds/$1"/* >"$log" 2>&1 &&
        "$program" -max_total_time="$seconds" -max_len="$2" -timeout=10 \
            -artifact_prefix="$findings/" "$corpus" "fuzz/seeds/$1" >>"$log" 2>&1; then
        echo "$1: $(grep -E '^#[0-9]+.*DONE' "$log")"
    else
        tail -n 60 "$log"
        echo "$1: failed, see $log"
        return 1
    fi
}

failed=0
fuzz Reader 4096 || failed=1
fuzz Numbers 80 || failed=1
fuzz Form 1024 || failed=1
fuzz Check 4096 || failed=1
exit "$failed"
