#!/usr/bin/env bash
# Builds the project and runs all its tests, in a release build and in one with the address and
# undefined-behaviour sanitizers. With --full also: the second compiler, the form of the sources, each header by
# itself, an outside program against the installed package, the slow tests, and the COM library under wine.
# Installs what the machine misses (Debian packages).
set -u
cd "$(dirname "${BASH_SOURCE[0]}")" || exit 1
# shellcheck source=cmake/scripts.sh
. cmake/scripts.sh

FULL=0
for argument in "$@"; do
  case "$argument" in
    --full) FULL=1 ;;
    *)
      echo "usage: ./test.sh [--full]" >&2
      exit 2
      ;;
  esac
done

LOGS="$PWD/build/logs"
mkdir -p "$LOGS"

PACKAGES=(g++ cmake ninja-build libgtest-dev libcli11-dev nlohmann-json3-dev)
[ $FULL -eq 1 ] && PACKAGES+=(clang clang-format libclang-rt-14-dev git libbenchmark-dev pkg-config python3-dev
  pybind11-dev python3-matplotlib python3-numpy python3-pip python3-venv python3-setuptools python3-wheel mypy abigail-tools)
install_missing "${PACKAGES[@]}" || { FAILED=1 && finish; exit 1; }

check_format() {
  git ls-files '*.h' '*.cpp' '*.c' ':!tests/doors/golden' | xargs clang-format --dry-run --Werror
}

# An outside program that knows nothing but the installation.
check_installation() {
  local prefix="$PWD/build/installed" outside="$PWD/build/outside"
  rm -rf "$prefix" "$outside"
  cmake --install build/release --prefix "$prefix" &&
    cmake -S tests/install -B "$outside" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH="$prefix" &&
    cmake --build "$outside" --parallel "$JOBS" &&
    "$outside/outside" &&
    sh tests/doors/check_installed.sh "$prefix" build/release "$PYTHON"
}

# The interpreter that the packages belong to, whatever else stands first in the path.
PYTHON=/usr/bin/python3
RELEASE_OPTIONS=()
# The command-line host and its sheets take long under the sanitizers.
DEBUG_OPTIONS=(-DORVE_BUILD_WINDCASE=OFF)
if [ $FULL -eq 1 ]; then
  DEBUG_OPTIONS=(-DORVE_BUILD_WINDCASE=ON)
  RELEASE_OPTIONS=(-DORVE_CHECK_HEADERS=ON -DORVE_BUILD_BENCH=ON -DORVE_BUILD_PYTHON=ON
    -DPython3_EXECUTABLE="$PYTHON")
  # Tests that have a long form run it in the release build.
  export ORVE_LONG_TESTS=1
fi

step "build, release" build_preset release "${RELEASE_OPTIONS[@]}" && test_preset release
unset ORVE_LONG_TESTS
step "build, address and undefined-behaviour sanitizers" build_preset debug "${DEBUG_OPTIONS[@]}" && test_preset debug

if [ $FULL -eq 1 ]; then
  step "build, clang" build_preset clang && test_preset clang
  step "form of the sources" check_format
  step "installation and outside programs" check_installation
  step "Python package" sh tests/doors/python_package.sh "$PYTHON"
  step "demo" ./demo.sh
  step "recalculation of the engines' cases" "$PYTHON" tests/recalculation/recalculate.py --check
  step "benchmarks, allocations of a warm sheet" build/release/bench/orve_bench --benchmark_min_time=0.05
  if [ -x fuzz/run.sh ]; then
    step "fuzzing" fuzz/run.sh 30
  fi
  step "COM library, under wine" tests/com/run.sh
else
  echo "left out: the COM library, windcase under the sanitizers and what else takes long; ./test.sh --full has it all"
fi

finish
