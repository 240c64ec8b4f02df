#!/usr/bin/env bash
# package_test.sh <cpack> <build dir> <StageResources.cmake> <development set>
set -euo pipefail
cpack=$1 build=$2 stage_script=$3 devset=$4

if ! command -v dpkg-deb >/dev/null; then
    echo "SKIPPED: dpkg-deb is missing, so the Debian package cannot be built or unpacked"
    exit 77
fi
fail() { echo "FAILED: $*"; exit 1; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$work/out" >"$work/cpack.log" 2>&1 ||
    { cat "$work/cpack.log"; fail "cpack"; }
debs=("$work"/out/*.deb)
[ ${#debs[@]} -eq 1 ] && [ -f "${debs[0]}" ] || fail "expected one .deb, found: ${debs[*]}"
dpkg-deb -x "${debs[0]}" "$work/root"
usr=$work/root/usr
share=$usr/share/teskal-firmware-updater

# Its library through its own RPATH, nothing from the build tree.
library=$(ldd "$usr/bin/teskal-flash" | awk '$1 == "libespflasher.so" { print $3 }')
[ "$(realpath -m "$library")" = "$(realpath "$usr/lib/libespflasher.so")" ] ||
    fail "libespflasher.so taken from '$library', not from the package"
[ -x "$usr/bin/teskal-updater-sim" ] || fail "teskal-updater-sim is not in the package"
# The Connection Check's root helper finds the rule it installs beside itself.
helper=$usr/lib/teskal-firmware-updater/install-udev-rule
[ -x "$helper" ] || fail "the permission rule's installer is not in the package"
[ -f "$(dirname "$helper")/../udev/rules.d/60-teskal-firmware-updater.rules" ] ||
    fail "the installer would not find the udev rule"
if [ -d "$share/resources" ] && grep -rqF "TESKAL DEVELOPMENT" "$share/resources"; then
    fail "the real programs' resources hold development images or the development key"
fi

"$usr/bin/teskal-flash" --help | grep -qF "Try it without hardware: teskal-flash flash --sim" ||
    fail "teskal-flash --help no longer offers the simulated plotter"
status=0
(cd "$work" && "$usr/bin/teskal-flash" flash --sim >"$work/flash.log" 2>&1) || status=$?
[ $status -eq 0 ] || { cat "$work/flash.log"; fail "teskal-flash flash --sim exited with $status"; }

# Staging, and installing, which stages the same way, refuse a vendor set marked
# as development images.
if cmake -DKIND=VENDOR "-DSOURCE=$devset" "-DDESTINATION=$work/vendor" -P "$stage_script" \
    >"$work/stage.log" 2>&1; then
    fail "the development set was staged as a vendor set"
fi
# CMake wraps its message; the words are what counts.
tr -s ' \n' '  ' <"$work/stage.log" | grep -qF "is a development image; it must never be shipped" ||
    { cat "$work/stage.log"; fail "the vendor set was refused for another reason"; }
# Nor a vendor set whose catalogue key is the development key.
mkdir "$work/key-only"
cp "$devset/catalogue.pub" "$work/key-only/"
if cmake -DKIND=VENDOR "-DSOURCE=$work/key-only" "-DDESTINATION=$work/vendor" -P "$stage_script" \
    >"$work/stage.log" 2>&1; then
    fail "the development catalogue key was staged as a vendor key"
fi
tr -s ' \n' '  ' <"$work/stage.log" | grep -qF "is the development key; it must never be shipped" ||
    { cat "$work/stage.log"; fail "the vendor key was refused for another reason"; }
echo "package $(basename "${debs[0]}") installs and flashes its simulated plotter"
