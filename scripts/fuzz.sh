#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each for SECONDS (default
# 10), seeded from the files of a fresh sample project, the seeds kept in
# fuzz/seeds/ and every input a target once failed on (tests/data/fuzz/).
# A failure keeps its input under fuzz-findings/ and the script fails.
#   scripts/fuzz.sh [SECONDS]          all targets
#   TARGETS="stage wave" scripts/fuzz.sh 60   some of them
# CORPUS=DIR keeps each target's corpus in DIR/<target> between runs.
set -euo pipefail
cd "$(dirname "$0")/.."
ROOT="$PWD"
SECONDS_EACH="${1:-10}"
JOBS="${JOBS:-$(nproc)}"

cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j"$JOBS" --target velmora-make-sample
cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELMORA_FUZZ=ON \
  -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build build-fuzz -j"$JOBS" --target fuzzers

WORK="$(mktemp -d)"
trap 'rm -rf "$WORK"' EXIT
build/tools/velmora-make-sample "$WORK/sample" >/dev/null
S="$WORK/sample"

# The files of the sample project that each target reads.
seed_files() {
  case "$1" in
    stage) echo "$S"/data/stg4/*.stg4_* ;;
    common_palette | stage_palette) echo "$S/data/CommonPalette.cplt4" ;;
    world_map) echo "$S/data/WorldMap.dat" ;;
    system) echo "$S/data/System.dat" ;;
    prj_option) echo "$S/data/PrjOption.dat" ;;
    edit_config | sheet_size) echo "$S/e_data/EditConfig.dat" ;;
    gval_info) echo "$S/data/GValInfo.dat" ;;
    record_stream) echo "$S"/data/*.dat ;;
    bitmap_load | bitmap_convert) echo "$S"/e_bmp/*.bmp "$S/bmp/plt/Palette.bmp" ;;
    midi_flatten) echo "$S"/bgm/*.mid ;;
    wave) echo "$S"/wave/*.wav ;;
  esac
}

# The database target takes the number of its list before the file, in the
# order of the lists.
DATABASE_LISTS=(AnimeSet Anime Bmp_CharaExc SwordType Effect CharaEffect ScrEffect Picture Sound Bgm)
seed_database() {
  local corpus="$1" i
  for i in "${!DATABASE_LISTS[@]}"; do
    { printf "\\x$(printf %02x "$i")"; cat "$S/data/database/${DATABASE_LISTS[$i]}.dat"; } >"$corpus/seed-${DATABASE_LISTS[$i]}"
  done
}

mkdir -p fuzz-findings
failed=0
for program in build-fuzz/fuzz/fuzz_*; do
  [ -x "$program" ] || continue
  target="${program##*/fuzz_}"
  if [ -n "${TARGETS:-}" ] && [[ " $TARGETS " != *" $target "* ]]; then continue; fi
  corpus="$(realpath -m "${CORPUS:-$WORK/corpus}")/$target"
  mkdir -p "$corpus"
  if [ "$target" = database ]; then seed_database "$corpus"; fi
  for file in $(seed_files "$target") "$ROOT"/fuzz/seeds/"$target"/* "$ROOT"/tests/data/fuzz/"$target"/*; do
    [ -f "$file" ] && cp "$file" "$corpus/seed-$(basename "$file")"
  done
  log="$WORK/$target.log"
  # The targets work inside a project folder of their own: the findings'
  # place is given whole.
  if "$ROOT/$program" -max_total_time="$SECONDS_EACH" -rss_limit_mb=2048 -malloc_limit_mb=512 -timeout=10 \
      -print_final_stats=1 -artifact_prefix="$ROOT/fuzz-findings/$target-" "$corpus" >"$log" 2>&1; then
    echo "fuzz $target: ok, $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") runs"
  else
    failed=$((failed + 1))
    echo "fuzz $target: FAILED (input kept in fuzz-findings/)"
    tail -40 "$log"
  fi
done
[ "$failed" -eq 0 ]
