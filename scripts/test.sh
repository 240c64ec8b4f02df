#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
werror=OFF
[ "${CI:-}" = "true" ] && werror=ON
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTFU_WERROR="$werror"
cmake --build build
# More jobs than cores: most cases spend their time in the plotter's real time-outs.
ctest --test-dir build --output-on-failure -j6 --timeout 600
