# Shared by demo.sh and test.sh: packages, build folders, and steps with a count of what passed and failed.

PASSED=0
FAILED=0
JOBS="${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}"

# install_missing PACKAGE...: installs with apt those packages that the machine doesn't have.
install_missing() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  if ! command -v apt-get >/dev/null; then
    echo "Please install what corresponds to: ${missing[*]}" >&2
    return 1
  fi
  local as_root=() log
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  log="$(mktemp)"
  echo "Installing ${missing[*]}"
  if ! { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends \
      "${missing[@]}"; } </dev/null >"$log" 2>&1; then
    tail -n 30 "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}

# step NAME COMMAND...: runs a step with its output in a log, which is shown only if the step fails.
step() {
  local name="$1" log start
  shift
  log="$LOGS/${name//[^A-Za-z0-9]/_}.log"
  start=$SECONDS
  if "$@" </dev/null >"$log" 2>&1; then
    PASSED=$((PASSED + 1))
    printf 'ok      %-58s %4d s\n' "$name" $((SECONDS - start))
    return 0
  fi
  FAILED=$((FAILED + 1))
  printf 'FAILED  %-58s %4d s\n' "$name" $((SECONDS - start))
  tail -n 60 "$log"
  return 1
}

# build_preset PRESET [CMAKE ARGUMENT...]: configures and builds a preset.
build_preset() {
  cmake --preset "$@" && cmake --build --preset "$1" --parallel "$JOBS"
}

# build_target PRESET TARGET: configures a preset and builds one of its targets.
build_target() {
  cmake --preset "$1" && cmake --build --preset "$1" --parallel "$JOBS" --target "$2"
}

# test_preset PRESET: runs the tests of a preset; each test counts.
test_preset() {
  local preset="$1" log="$LOGS/tests_$1.log" start=$SECONDS summary failed total
  ctest --preset "$preset" --parallel "$JOBS" --no-tests=error </dev/null >"$log" 2>&1
  local status=$?
  summary="$(grep -E '^[0-9]+% tests passed, [0-9]+ tests failed out of [0-9]+' "$log")"
  failed="$(sed -E 's/.*passed, ([0-9]+) tests.*/\1/' <<<"$summary")"
  total="$(sed -E 's/.*out of ([0-9]+).*/\1/' <<<"$summary")"
  if [ -z "$summary" ] || { [ $status -ne 0 ] && [ "$failed" -eq 0 ]; }; then
    failed=1 total=1
  fi
  FAILED=$((FAILED + failed))
  PASSED=$((PASSED + total - failed))
  if [ "$failed" -eq 0 ]; then
    printf 'ok      %-58s %4d s\n' "tests, $preset: $total test programs" $((SECONDS - start))
  else
    printf 'FAILED  %-58s %4d s\n' "tests, $preset: $failed of $total test programs" $((SECONDS - start))
    tail -n 100 "$log"
  fi
  [ "$failed" -eq 0 ]
}

# finish: prints the closing line; the exit code tells whether anything failed.
finish() {
  echo "$PASSED passed, $FAILED failed"
  [ "$FAILED" -eq 0 ] && [ "$PASSED" -gt 0 ]
}
