#!/usr/bin/env bash
# Sanitizer gates, each in its own build directory (CMake presets):
#   asan  the whole suite under AddressSanitizer + UndefinedBehaviorSanitizer
#   tsan  the application-core tests (worker and GUI-thread hand-offs) under
#         ThreadSanitizer
# Any report fails the run: the sanitizers abort on their first finding.
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
    werror=OFF
    [ "${CI:-}" = "true" ] && werror=ON
    cmake --preset "$preset" -DTFU_WERROR="$werror" > /dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
