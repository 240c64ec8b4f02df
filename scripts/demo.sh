#!/usr/bin/env bash
# Installs what is missing, builds, and opens the updater with a simulated plotter
# attached. Without a display it runs under a virtual X server. The build's signed
# catalogue of development images is served on 127.0.0.1 while the window is open,
# so that File > "Choose Firmware Version…" lists its versions and their notes.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build

program=build/ui/teskal-updater-sim/teskal-updater-sim
port=$(python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
python3 -m http.server --bind 127.0.0.1 --directory build/dev-catalogue "$port" >/dev/null 2>&1 &
server=$!
trap 'kill "$server" 2>/dev/null || true' EXIT
catalogue="http://127.0.0.1:$port/catalogue.json"
# The window reads the catalogue as it opens; let the server listen first.
for _ in $(seq 50); do
    (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null && break
    sleep 0.1
done
echo "Serving the development firmware catalogue at $catalogue"

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display found; running under xvfb-run -a (the window is not visible; stop it with Ctrl+C)."
    xvfb-run -a "$program" --catalogue "$catalogue"
else
    "$program" --catalogue "$catalogue"
fi
