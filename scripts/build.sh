#!/usr/bin/env bash
# Configures and builds Huebase with two jobs: in build/ by default, or with
# the named CMake preset (CMakePresets.json), whose folder is build-<preset>/:
# `scripts/build.sh sanitize` builds in build-sanitize/.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-}
if [ -n "$preset" ]; then
    folder=build-$preset
    if [ ! -f "$folder/CMakeCache.txt" ]; then
        cmake --preset "$preset"
    fi
    cmake --build "$folder" -j2
    exit 0
fi
generator=()
if command -v ninja >/dev/null; then
    generator=(-G Ninja)
fi
if [ ! -f build/CMakeCache.txt ]; then
    cmake -S . -B build "${generator[@]}" -DCMAKE_BUILD_TYPE=RelWithDebInfo
fi
cmake --build build -j2
