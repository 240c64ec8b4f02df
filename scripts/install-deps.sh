#!/usr/bin/env bash
# Installs the Debian 12 packages the build, the tests and the demo need, when missing.
set -euo pipefail

packages=(build-essential cmake ninja-build pkg-config qt6-base-dev libssl-dev
          libgtest-dev libgmock-dev libbenchmark-dev clang libclang-rt-14-dev
          libyaml-cpp-dev libdtl-dev libcli11-dev
          qt6-tools-dev qt6-l10n-tools qt6-translations-l10n fonts-wqy-microhei
          xvfb xauth dbus-daemon at-spi2-core python3 python3-pyatspi)

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
"${sudo_cmd[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends \
    "${missing[@]}"
