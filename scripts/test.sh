#!/usr/bin/env bash
# Sets up a fresh Debian machine if needed, then builds and runs every test:
# the unit tests in a release build, again under AddressSanitizer and
# UndefinedBehaviorSanitizer, and each fuzz target for a few seconds. The
# last line totals all of them.
set -euo pipefail
cd "$(dirname "$0")/.."
JOBS="${JOBS:-$(nproc)}"
passed=0
failed=0

# Runs ctest in a build folder and adds its counts to the totals. Leak
# checking is off: Qt keeps process-wide allocations until exit.
run_ctest() {
  local folder="$1" log
  log="$(mktemp)"
  local status=0
  (cd "$folder" && ASAN_OPTIONS=detect_leaks=0 ctest --output-on-failure -j"$JOBS") 2>&1 | tee "$log" || status=1
  local total failures
  total=$(sed -n 's/.*tests failed out of \([0-9]*\).*/\1/p' "$log" | tail -1)
  failures=$(sed -n 's/.* \([0-9]*\) tests failed out of.*/\1/p' "$log" | tail -1)
  rm -f "$log"
  if [ -z "$total" ]; then
    failed=$((failed + 1))
    return
  fi
  passed=$((passed + total - failures))
  failed=$((failed + failures))
  [ "$status" -eq 0 ] || [ "$failures" -gt 0 ] || failed=$((failed + 1))
}

scripts/setup.sh

cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j"$JOBS"
run_ctest build

cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DVELMORA_SANITIZE=ON >/dev/null
cmake --build build-asan -j"$JOBS"
run_ctest build-asan

cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELMORA_FUZZ=ON \
  -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build build-fuzz -j"$JOBS" --target fuzzers
for target in build-fuzz/fuzz/fuzz_*; do
  [ -x "$target" ] || continue
  corpus="$(mktemp -d)"
  if "$target" -max_total_time="${FUZZ_SECONDS:-10}" -rss_limit_mb=2048 "$corpus" >"$corpus.log" 2>&1; then
    passed=$((passed + 1))
    echo "fuzz $(basename "$target"): ok"
  else
    failed=$((failed + 1))
    echo "fuzz $(basename "$target"): FAILED"
    tail -40 "$corpus.log"
  fi
  rm -rf "$corpus" "$corpus.log"
done

echo "all: $passed passed, $failed failed"
[ "$failed" -eq 0 ]
