#!/usr/bin/env bash
# Sets up a fresh Debian machine if needed, builds, makes the sample project
# (once) and shows it: for now through the inspector, which prints the
# project's files as JSON.
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
for file in e_data/EditConfig.dat; do
  echo "== $file"
  "$ROOT/build/tools/velmora-inspect" dump "$file"
done
