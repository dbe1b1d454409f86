#!/usr/bin/env bash
# Builds the demo host and prints the wind loads of a portal building, worked out by the library on the built-in
# engines. Installs what the machine misses (Debian packages).
set -u
cd "$(dirname "${BASH_SOURCE[0]}")" || exit 1
# shellcheck source=cmake/scripts.sh
. cmake/scripts.sh
LOGS="$PWD/build/logs"
mkdir -p "$LOGS"

install_missing g++ cmake ninja-build || exit 1
if ! step "build of the demo" build_target demo demo; then
  finish
  exit 1
fi
./build/demo/examples/demo "$@" </dev/null
status=$?
if [ $status -eq 0 ]; then PASSED=$((PASSED + 1)); else FAILED=$((FAILED + 1)); fi
finish && exit $status
