#!/usr/bin/env bash
# Sets up a fresh Debian machine if needed, builds, makes the sample project
# (once) and opens the editor on it. The editor works on the current
# directory, so it starts inside the project folder.
set -euo pipefail
cd "$(dirname "$0")/.."
JOBS="${JOBS:-$(nproc)}"

scripts/setup.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j"$JOBS" --target velmora-editor velmora-make-sample velmora-inspect

ROOT="$PWD"
SAMPLE="${SAMPLE:-$ROOT/sample}"
[ -d "$SAMPLE/data" ] || "$ROOT/build/tools/velmora-make-sample" "$SAMPLE"
cd "$SAMPLE"
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
  echo "No display: running the editor under a virtual X server (xvfb-run)." >&2
  exec xvfb-run -a -s "-screen 0 1280x1024x24" "$ROOT/build/app/velmora-editor"
fi
exec "$ROOT/build/app/velmora-editor"
