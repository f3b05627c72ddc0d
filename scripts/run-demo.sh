#!/usr/bin/env bash
# Installs what is missing, builds, and runs Huebase on the bundled demo data
# in a fresh scratch folder (the program reads and writes its exchange files
# in the folder it is given).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh
scratch=$(mktemp -d -t huebase-demo.XXXXXX)
if [ -d data/demo ]; then
    cp -r data/demo/. "$scratch/"
fi
echo "Demo folder: $scratch"
exec build/src/app/huebase --folder "$scratch" --notify-command "echo Huebase status:"
