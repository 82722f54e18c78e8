#!/usr/bin/env bash
# Shows the editor on a real desktop as an author sees it and keeps what the
# screen showed: a virtual X server with Debian's openbox as the window
# manager, the editor on a fresh sample project, and one PNG per moment:
#   1-startup.png      the windows as the editor opens them
#   2-enlarged.png     the stage window enlarged to 1600 x 1200
#   3-question.png     a Yes/No question (the new-stage confirmation)
#   4-file-dialog.png  the open dialog for stage files
#   5-after-restart.png the same project opened again after a quit
# Usage: scripts/screenshots.sh [OUTPUT_DIR]   (default: shots/)
set -euo pipefail
cd "$(dirname "$0")/.."
ROOT="$PWD"
OUT="$(realpath -m "${1:-shots}")"
JOBS="${JOBS:-$(nproc)}"

scripts/setup.sh
# Only this script needs a window manager and a way to drive it.
for package in openbox xdotool; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" && continue
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends openbox xdotool
  break
done
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j"$JOBS" --target velmora-editor velmora-make-sample

WORK="$(mktemp -d)"
SCREEN=99
while [ -e "/tmp/.X11-unix/X$SCREEN" ]; do SCREEN=$((SCREEN + 1)); done
export DISPLAY=":$SCREEN"
# A runtime folder of its own: an editor the user has open elsewhere doesn't
# turn the start into a double-start question.
export XDG_RUNTIME_DIR="$WORK/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
PIDS=()
cleanup() {
  for pid in "${PIDS[@]}"; do kill "$pid" 2>/dev/null || true; done
  rm -rf "$WORK"
}
trap cleanup EXIT

Xvfb "$DISPLAY" -screen 0 2048x1536x24 >/dev/null 2>&1 &
PIDS+=($!)
sleep 1
openbox >/dev/null 2>&1 &
PIDS+=($!)
"$ROOT/build/tools/velmora-make-sample" "$WORK/sample" >/dev/null
mkdir -p "$OUT"

shot() { sleep 1.5; import -window root "$OUT/$1"; echo "$OUT/$1"; }
# The stage window's title names its stage file; the hidden host window's
# is the program's name alone.
stage_window() { xdotool search --sync --name '^ヴェルモラ  ' | head -1; }
start_editor() {
  (cd "$WORK/sample" && exec "$ROOT/build/app/velmora-editor") &
  EDITOR_PID=$!
  PIDS+=("$EDITOR_PID")
  sleep 3
}
keys() { xdotool windowactivate --sync "$(stage_window)" key --clearmodifiers "$@"; }

start_editor
shot 1-startup.png

xdotool windowsize --sync "$(stage_window)" 1600 1200
shot 2-enlarged.png

keys ctrl+n
sleep 1
xdotool key Return  # OK in the new-stage dialog: the question follows
shot 3-question.png
xdotool key Escape  # No: the dialog stays
sleep 0.5
xdotool key Escape  # and is cancelled
sleep 0.5

keys ctrl+o
shot 4-file-dialog.png
xdotool key Escape
sleep 0.5

# Quit through the stage window's close box and start again: the windows
# must come back where they were.
keys alt+F4  # openbox's close: the editor's own closing path
wait "$EDITOR_PID" 2>/dev/null || true
start_editor
shot 5-after-restart.png
