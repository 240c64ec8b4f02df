#!/usr/bin/env bash
# Sanitizer gates, each in its own build directory (CMake presets):
#   asan  the whole suite under AddressSanitizer + UndefinedBehaviorSanitizer
#   tsan  the application-core tests (worker and GUI-thread hand-offs) under
#         ThreadSanitizer
# Any report fails the run: the sanitizers abort on their first finding.
#
# Qt's libraries are not instrumented. The tsan preset therefore has the sanitizer
# ignore the memory accesses of Qt's own code (ignore_noninstrumented_modules) and
# preloads tests/reliability/TsanQtHandOff.cpp, which tells it about the one
# synchronisation of Qt's that the application relies on: the queued-call hand-off
# from the worker to the GUI thread. No report is suppressed.
set -euo pipefail
cd "$(dirname "$0")/.."

presets=("$@")
[ ${#presets[@]} -eq 0 ] && presets=(asan tsan)
for preset in "${presets[@]}"; do
    case "$preset" in
        asan | tsan) ;;
        *)
            echo "usage: $0 [asan] [tsan]" >&2
            exit 2
            ;;
    esac
    cmake --preset "$preset" > /dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
