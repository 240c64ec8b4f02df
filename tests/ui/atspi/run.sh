#!/usr/bin/env bash
# Reads the simulated-plotter window through AT-SPI, as a screen reader does: starts
# a virtual X server, a D-Bus session and the accessibility bus of its own, runs
# window_check.py against PROGRAM in LANGUAGE, and takes everything down again.
#   run.sh PROGRAM LANGUAGE
# Installs the packages it needs when they are missing; exits 77 (skipped) when it
# cannot.
set -euo pipefail

program=$1
language=$2
here=$(cd "$(dirname "$0")" && pwd)

packages=(xvfb dbus-daemon at-spi2-core python3-pyatspi)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo_cmd=()
    [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo -n)
    if ! { "${sudo_cmd[@]}" apt-get update -qq &&
           DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq \
               --no-install-recommends "${missing[@]}"; }; then
        echo "SKIPPED: cannot install ${missing[*]}"
        exit 77
    fi
fi

scratch=$(mktemp -d)
xvfb=""
cleanup() {
    [ -n "$xvfb" ] && kill "$xvfb" 2>/dev/null && wait "$xvfb" 2>/dev/null
    rm -rf "$scratch"
}
trap cleanup EXIT

# Xvfb writes the display number it found free once it listens.
exec {display_fd}>"$scratch/display"
Xvfb -displayfd "$display_fd" -screen 0 1280x1024x24 -nolisten tcp >"$scratch/xvfb.log" 2>&1 &
xvfb=$!
for _ in $(seq 100); do
    [ -s "$scratch/display" ] && break
    sleep 0.1
done
exec {display_fd}>&-
[ -s "$scratch/display" ] || { cat "$scratch/xvfb.log"; echo "Xvfb did not start"; exit 1; }

mkdir -m 700 "$scratch/runtime" "$scratch/home"
export DISPLAY=":$(head -n1 "$scratch/display")"
export XDG_RUNTIME_DIR="$scratch/runtime" HOME="$scratch/home" XDG_DATA_HOME="$scratch/home/data"
# Qt talks to the accessibility bus only when a screen reader is said to be on, and
# only through a real window system.
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_QPA_PLATFORM=xcb
# Under AddressSanitizer: libxkbcommon-x11 hands strndup() counted atom names that
# are not NUL-terminated, which is valid C but what strict string checks report.
[ -n "${ASAN_OPTIONS:-}" ] && export ASAN_OPTIONS="${ASAN_OPTIONS//strict_string_checks=1/strict_string_checks=0}"
# Nothing of the desktop this runs in: its accessibility bus or its scaling.
unset AT_SPI_BUS_ADDRESS QT_SCALE_FACTOR QT_FONT_DPI

# The session bus starts the accessibility bus's launcher when the check first asks
# for it, and with it the bus and its registry; all of them end with the session.
dbus-run-session -- /usr/bin/python3 "$here/window_check.py" "$program" "$language"
