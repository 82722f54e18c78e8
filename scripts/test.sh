#!/usr/bin/env bash
# Sets up a fresh Debian machine if needed, then builds and runs every test:
# the unit tests in a release build, again under AddressSanitizer and
# UndefinedBehaviorSanitizer, and each fuzz target for a few seconds.
set -euo pipefail
cd "$(dirname "$0")/.."
JOBS="${JOBS:-$(nproc)}"

scripts/setup.sh

cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j"$JOBS"
(cd build && ctest --output-on-failure -j"$JOBS")

cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DVELMORA_SANITIZE=ON >/dev/null
cmake --build build-asan -j"$JOBS"
(cd build-asan && ASAN_OPTIONS=detect_leaks=1 ctest --output-on-failure -j"$JOBS")

cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELMORA_FUZZ=ON \
  -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build build-fuzz -j"$JOBS" --target fuzzers
fuzz_passed=0
fuzz_failed=0
for target in build-fuzz/fuzz/fuzz_*; do
  [ -x "$target" ] || continue
  corpus="$(mktemp -d)"
  if "$target" -max_total_time="${FUZZ_SECONDS:-10}" -rss_limit_mb=2048 "$corpus" >"$corpus.log" 2>&1; then
    fuzz_passed=$((fuzz_passed + 1))
    echo "fuzz $(basename "$target"): ok"
  else
    fuzz_failed=$((fuzz_failed + 1))
    echo "fuzz $(basename "$target"): FAILED"
    tail -40 "$corpus.log"
  fi
  rm -rf "$corpus" "$corpus.log"
done
echo "fuzz: $fuzz_passed passed, $fuzz_failed failed"
[ "$fuzz_failed" -eq 0 ]
