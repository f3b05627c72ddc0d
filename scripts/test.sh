#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test twice: in the normal
# build, and in the AddressSanitizer + UndefinedBehaviorSanitizer build
# (preset "sanitize"), where any finding fails the test that raised it. The
# tests that need a real X server run on Xvfb, the others on Qt's offscreen
# platform. Then builds the Qt-free logic alone with clang and the same
# sanitizers (preset "fuzz"), runs the logic tests there without a display,
# and replays the fuzz targets' corpora and runs each deterministically
# (scripts/fuzz.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
scripts/install-deps.sh

run_suite() {
    (cd "$1" && xvfb-run -a -s "-screen 0 1280x1024x24" ctest --output-on-failure -j2 --timeout 600)
}

scripts/build.sh
run_suite build

scripts/build.sh sanitize
(
    export ASAN_OPTIONS=detect_leaks=1
    export LSAN_OPTIONS=suppressions=$root/tests/sanitize/lsan.supp:print_suppressions=0
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
    run_suite build-sanitize
)

scripts/build.sh fuzz
(
    export ASAN_OPTIONS=detect_leaks=1
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
    # The logic tests need no display: without one, a test that wanted it fails.
    cd build-fuzz && env -u DISPLAY ctest --output-on-failure -j2 --timeout 600
)

scripts/fuzz.sh ci
