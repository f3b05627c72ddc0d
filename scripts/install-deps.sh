#!/usr/bin/env bash
# Installs the Debian packages that building, testing and running Huebase
# need, and only those that are missing.
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev libgl-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    xvfb xauth xdotool fonts-dejavu-core
    locales
    clang libclang-rt-14-dev
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
if [ "$(id -u)" -ne 0 ]; then
    sudo="sudo"
fi
echo "Installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
