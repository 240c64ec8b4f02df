#!/usr/bin/env bash
# Installs what is missing, builds, and opens the updater with a simulated plotter
# attached. Without a display it runs under a virtual X server.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build

program=build/ui/teskal-updater-sim/teskal-updater-sim
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display found; running under xvfb-run -a (the window is not visible; stop it with Ctrl+C)."
    exec xvfb-run -a "$program"
fi
exec "$program"
