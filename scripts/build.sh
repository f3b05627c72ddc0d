#!/usr/bin/env bash
# Configures and builds Huebase in build/ with two jobs.
set -euo pipefail
cd "$(dirname "$0")/.."
generator=()
if command -v ninja >/dev/null; then
    generator=(-G Ninja)
fi
if [ ! -f build/CMakeCache.txt ]; then
    cmake -S . -B build "${generator[@]}" -DCMAKE_BUILD_TYPE=RelWithDebInfo
fi
cmake --build build -j2
