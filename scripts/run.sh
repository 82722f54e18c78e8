#!/usr/bin/env bash
# Sets up a fresh Debian machine if needed, builds, makes the sample project
# (once) and shows it through the inspector: the behaviour of its
# characters and items as the flow editor lists it, then its files as JSON.
set -euo pipefail
cd "$(dirname "$0")/.."
JOBS="${JOBS:-$(nproc)}"

scripts/setup.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j"$JOBS" --target velmora-inspect velmora-make-sample

ROOT="$PWD"
SAMPLE="${SAMPLE:-$ROOT/sample}"
[ -d "$SAMPLE/data" ] || "$ROOT/build/tools/velmora-make-sample" "$SAMPLE"
cd "$SAMPLE"
INSPECT="$ROOT/build/tools/velmora-inspect"
echo "== behaviour of data/CommonPalette.cplt4"
"$INSPECT" behaviour data/CommonPalette.cplt4
for file in data/stg4/Stage1.stg4_950 data/PrjOption.dat data/System.dat e_data/EditConfig.dat; do
  echo "== $file"
  "$INSPECT" dump "$file" >"$ROOT/build/last-dump.json"
  head -60 "$ROOT/build/last-dump.json"
done
