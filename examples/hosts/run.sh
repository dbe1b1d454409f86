#!/usr/bin/env bash
# run.sh cpp|c|python|plot: builds one host and runs it from a fresh clone. Installs what the machine misses
# (Debian packages). The plot goes to build/shed.png.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")/../.." || exit 1
# shellcheck source=../../cmake/scripts.sh
. cmake/scripts.sh
LOGS="$PWD/build/logs"
mkdir -p "$LOGS"
folder="$(mktemp -d)"
trap 'rm -rf "$folder"' EXIT

host="${1:-}"
packages=(g++ cmake ninja-build)
case "$host" in
  cpp | c) target="shed_$host" ;;
  python) target=orve_python packages+=(python3-dev pybind11-dev) ;;
  plot) target=orve_python packages+=(python3-dev pybind11-dev python3-matplotlib) ;;
  *)
    echo "usage: examples/hosts/run.sh cpp|c|python|plot" >&2
    exit 2
    ;;
esac
install_missing "${packages[@]}" || exit 1

build_host() {
  local options=()
  [ "$target" = orve_python ] && options=(-DORVE_BUILD_PYTHON=ON -DPython3_EXECUTABLE=/usr/bin/python3)
  cmake --preset demo "${options[@]}" && cmake --build --preset demo --parallel "$JOBS" --target "$target"
}
step "build of the host" build_host >&2 || exit 1

export PYTHONPATH="$PWD/build/demo/python" XDG_CONFIG_HOME="$folder"
case "$host" in
  cpp) ./build/demo/examples/hosts/shed_cpp ;;
  c) ./build/demo/examples/hosts/shed_c "$folder" ;;
  python) /usr/bin/python3 examples/hosts/shed.py ;;
  plot) /usr/bin/python3 examples/hosts/plot_shed.py build/shed.png && echo build/shed.png ;;
esac
