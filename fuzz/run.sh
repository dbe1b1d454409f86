#!/usr/bin/env bash
# Fuzzes each target for a number of seconds (default 20): fuzz/run.sh [SECONDS]. Builds with clang. A finding is
# stored in the target's folder "findings", where the plain tests replay it from then on.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
SECONDS_EACH="${1:-20}"
BUILD=build/fuzz

cmake -S . -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DCMAKE_CXX_FLAGS=-fsanitize=fuzzer-no-link -DORVE_SANITIZE=ON -DORVE_BUILD_FUZZ=ON -DORVE_BUILD_TESTS=OFF \
  -DORVE_BUILD_EXAMPLES=OFF -DORVE_BUILD_AUTOMATION=ON -DORVE_BUILD_C=OFF -DORVE_BUILD_WINDCASE=OFF >/dev/null &&
  cmake --build "$BUILD" --target fuzz_CaseFile fuzz_ObjectModel fuzz_ProfileFile fuzz_Sheet fuzz_Texts || exit 1

failed=0
fuzz() {
  local program="$1" folder="fuzz/$2" found="$BUILD/corpus/$2"
  mkdir -p "$found" "$folder/findings"
  if "$BUILD/fuzz/$program" -max_total_time="$SECONDS_EACH" -max_len=40000 -timeout=20 -rss_limit_mb=1024 \
    -artifact_prefix="$folder/findings/" -print_final_stats=1 -verbosity=0 "$found" "$folder/seeds" \
    >"$BUILD/$2.log" 2>&1; then
    echo "$2: no findings, $(sed -n 's/^stat::number_of_executed_units: *//p' "$BUILD/$2.log") inputs"
  else
    tail -n 40 "$BUILD/$2.log"
    echo "$2: failed, see $BUILD/$2.log"
    failed=1
  fi
  rmdir --ignore-fail-on-non-empty "$folder/findings"
}
fuzz fuzz_CaseFile case_file
fuzz fuzz_ObjectModel object_model
fuzz fuzz_ProfileFile profile_file
fuzz fuzz_Sheet sheet
fuzz fuzz_Texts texts
exit $failed
