#!/bin/sh
# check_installed.sh PREFIX [PYTHON]: outside programs against an installation. The C host is built by pkg-config as
# C99 and as C++, against the shared and the static library; the Python tests run on the installed package.
set -eu
prefix=$1
python=${2:-}
here=$(cd "$(dirname "$0")" && pwd)
hosts=$here/../../examples/hosts
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name orve3_bs6399_2_c.pc)")
export PKG_CONFIG_PATH
libraries=$(pkg-config --variable=libdir orve3_bs6399_2_c)
export LD_LIBRARY_PATH="$libraries"
# shellcheck disable=SC2046
cc -std=c99 -Wall -Wextra -Wpedantic -Werror "$hosts/shed.c" -o "$folder/c99" $(pkg-config --cflags --libs orve3_bs6399_2_c)
# shellcheck disable=SC2046
c++ -x c++ -Wall -Wextra -Werror "$hosts/shed.c" -x none -o "$folder/cxx" $(pkg-config --cflags --libs orve3_bs6399_2_c)
# shellcheck disable=SC2046
cc -std=c99 "$hosts/shed.c" -o "$folder/static" $(pkg-config --cflags orve3_bs6399_2_c) \
  "$libraries/liborve3_bs6399_2_c.a" -L"$libraries" -lorve_engines -lorve3_bs6399_2 -lstdc++ -lm
for program in c99 cxx static; do "$folder/$program" "$folder" >"$folder/$program.txt"; done
cmp "$folder/c99.txt" "$folder/cxx.txt"
cmp "$folder/c99.txt" "$folder/static.txt"
grep -q 'baWalls, Face 4' "$folder/c99.txt"

[ -n "$python" ] || exit 0
PYTHONPATH=$(dirname "$(dirname "$(find "$prefix" -name '_orve*.so')")")
export PYTHONPATH XDG_CONFIG_HOME="$folder"
"$python" "$here/python_module.py"
"$python" "$here/python_door.py" "$here/scripts"
"$python" "$hosts/shed.py" | cmp - "$folder/c99.txt"
if "$python" -c 'import matplotlib' 2>/dev/null; then
  "$python" "$hosts/plot_shed.py" "$folder/shed.png" && test -s "$folder/shed.png"
fi
