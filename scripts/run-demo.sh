#!/usr/bin/env bash
# Installs what is missing, builds, and runs Huebase on the bundled demo data
# in a fresh scratch folder, as a host would start it: the folder holds the
# host's col.tmp and lut.tmp and a copy of the starter library (myLuts), and
# the status Huebase would hand to the host is printed. After OK in the editor
# the rewritten lut.tmp is shown.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh

scratch=$(mktemp -d -t huebase-demo.XXXXXX)
cp data/demo/col.tmp data/demo/lut.tmp "$scratch/"
mkdir -p "$scratch/myLuts"
cp data/myLuts/*.lut "$scratch/myLuts/"
echo "Demo folder: $scratch"

status=0
build/src/app/huebase --folder "$scratch" \
    --notify-command 'echo "Huebase finished with status"' || status=$?
echo "Huebase exited with code $status"

lut="$scratch/lut.tmp"
if [ ! -f "$lut" ]; then
    echo "No lut.tmp in $scratch"
elif cmp -s "$lut" data/demo/lut.tmp; then
    echo "lut.tmp is unchanged (the ramp was not confirmed): $lut"
else
    echo "lut.tmp: $lut ($(wc -l <"$lut") lines), first lines (key,colour in the host's order):"
    head -n 5 "$lut"
fi
