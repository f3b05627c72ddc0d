#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test; the tests that need
# a real X server run on Xvfb, the others on Qt's offscreen platform. Then
# builds the fuzz targets and runs them deterministically (scripts/fuzz.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh
(cd build && xvfb-run -a -s "-screen 0 1280x1024x24" ctest --output-on-failure -j2 --timeout 300)
scripts/fuzz.sh ci
