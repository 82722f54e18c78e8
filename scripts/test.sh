#!/usr/bin/env bash
# Sets up a fresh Debian machine if needed, then builds and runs every test:
# the unit tests in a release build, again under AddressSanitizer and
# UndefinedBehaviorSanitizer, and each fuzz target for a few seconds
# (scripts/fuzz.sh). The last line totals all of them.
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

# A few seconds of each fuzz target, a minute or so in all.
fuzz_log="$(mktemp)"
fuzz_status=0
scripts/fuzz.sh "${FUZZ_SECONDS:-3}" 2>&1 | tee "$fuzz_log" || fuzz_status=1
passed=$((passed + $(grep -c '^fuzz .*: ok' "$fuzz_log" || true)))
fuzz_failures=$(grep -c '^fuzz .*: FAILED' "$fuzz_log" || true)
failed=$((failed + fuzz_failures))
[ "$fuzz_status" -eq 0 ] || [ "$fuzz_failures" -gt 0 ] || failed=$((failed + 1))
rm -f "$fuzz_log"

echo "all: $passed passed, $failed failed"
[ "$failed" -eq 0 ]
