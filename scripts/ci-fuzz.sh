#!/usr/bin/env bash
# Builds the libFuzzer targets (clang, preset "fuzz") and runs each one for a bounded
# time on a scratch corpus seeded from fuzz/corpus. Fails when any target finds a
# crash, a sanitizer report, a leak or a hang; the reproducer is left under
# build-fuzz/run/artifacts.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${TFU_FUZZ_SECONDS:-20}
# A small quarantine lets the simulated device's buffers be reused instead of
# faulting in fresh pages on every run; it doubles the whole-job target's rate.
export ASAN_OPTIONS=${ASAN_OPTIONS:-quarantine_size_mb=8:malloc_context_size=5}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
targets=(slip response stub_header partition_table console_version startup_verdict device_session
         image_report meta_version)

cmake --preset fuzz > /dev/null
cmake --build --preset fuzz

run=build-fuzz/run
rm -rf "$run"
mkdir -p "$run/artifacts"
total=0
findings=0
passed=0
for target in "${targets[@]}"; do
    binary=build-fuzz/fuzz/fuzz_$target
    if [ ! -x "$binary" ]; then
        echo "fuzz_$target: not built (needs the Qt build)"
        continue
    fi
    mkdir -p "$run/corpus/$target"
    log=$run/$target.log
    if ! "$binary" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -print_final_stats=1 -artifact_prefix="$run/artifacts/$target-" \
        "$run/corpus/$target" "fuzz/corpus/$target" > "$log" 2>&1; then
        echo "fuzz_$target: FINDING"
        tail -n 60 "$log"
        findings=$((findings + 1))
    else
        passed=$((passed + 1))
    fi
    executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)
    echo "fuzz_$target: ${executions:-0} executions"
    total=$((total + ${executions:-0}))
done
echo "fuzzing: $total executions in ${seconds} s per target"
echo "fuzz: $passed passed, $findings failed"
[ "$findings" -eq 0 ]
