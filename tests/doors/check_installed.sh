#!/bin/sh
# check_installed.sh PREFIX BUILD [PYTHON]: outside programs against an installation. The C host is built by pkg-config as
# C99 and as C++, against the shared and the static library, and by CMake in a project in C alone and in one that has this
# project in it; the Python tests run on the installed package. At the end the installation is taken back.
set -eu
prefix=$1
build=$2
python=${3:-}
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
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
cc -std=c99 "$hosts/shed.c" -o "$folder/static" $(pkg-config --static --cflags --libs orve3_bs6399_2_c | sed 's/-lorve3_bs6399_2_c/-l:liborve3_bs6399_2_c.a/')
for program in c99 cxx static; do "$folder/$program" "$folder" >"$folder/$program.txt"; done
cmp "$folder/c99.txt" "$folder/cxx.txt"
cmp "$folder/c99.txt" "$folder/static.txt"
grep -q 'baWalls, Face 4' "$folder/c99.txt"


# Headers are clean under a client's own warnings.
include=$(pkg-config --variable=includedir orve3_bs6399_2_c)
cc -std=c90 -pedantic -Wall -Wextra -Werror -fsyntax-only -x c "$include/orve3_bs6399_2_c.h"
clang -std=c99 -Wall -Wextra -Wpedantic -Wconversion -Werror -fsyntax-only -x c "$include/orve3_bs6399_2_c.h"
for header in orve3_bs6399_2.h engines/BuiltInEngines.h automation/Dispatch.h; do
  echo "#include \"$header\"" | clang++ -std=c++20 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror -fsyntax-only \
    -I"$include" -I"$include/engines" -I"$include/automation" -x c++ -
done

# A plugin that links the static libraries gives out no names of theirs.
echo 'extern "C" int orve_register_built_in_engines(void); extern "C" int begin() { return orve_register_built_in_engines(); }' |
  c++ -shared -fPIC -fvisibility=hidden -x c++ - -x none -o "$folder/plugin.so" \
    "$libraries/liborve3_bs6399_2_c.a" -L"$libraries" -lorve_engines -lorve3_bs6399_2
if nm -DC --defined-only "$folder/plugin.so" | grep ' orve::'; then exit 1; fi

# By CMake: C alone; inside another project; folders outside the prefix.
run_cmake() { cmake "$@" >"$folder/cmake.txt" 2>&1 || { cat "$folder/cmake.txt"; exit 1; }; }
run_cmake -S "$root/tests/install/c" -B "$folder/c" -DCMAKE_PREFIX_PATH="$prefix"
run_cmake --build "$folder/c"
run_cmake -S "$root/tests/install/sub" -B "$folder/sub"
run_cmake -S "$root/tests/install/sub" -B "$folder/fetched" -G Ninja -DFETCH=ON
run_cmake --build "$folder/fetched" --target host
for program in c/host_c c/host_c_static fetched/host; do "$folder/$program" "$folder" | cmp - "$folder/c99.txt"; done
run_cmake -S "$root" -B "$folder/absolute" -G Ninja -DORVE_BUILD_TESTS=OFF -DORVE_BUILD_WINDCASE=OFF -DORVE_BUILD_EXAMPLES=OFF \
  -DCMAKE_INSTALL_LIBDIR=/opt/orve/lib64 -DCMAKE_INSTALL_INCLUDEDIR=/opt/orve/include
[ "$(PKG_CONFIG_PATH="$folder/absolute/bindings/c" pkg-config --cflags --libs orve3_bs6399_2_c)" = \
  "-I/opt/orve/include/orve3_bs6399_2 -L/opt/orve/lib64 -lorve3_bs6399_2_c " ]

if [ -n "$python" ]; then
  PYTHONPATH=$(dirname "$(dirname "$(find "$prefix" -name '_orve*.so')")")
  export PYTHONPATH XDG_CONFIG_HOME="$folder" PYTHONDONTWRITEBYTECODE=1
  "$python" "$here/python_module.py"
  "$python" "$here/python_door.py" "$here/scripts"
  "$python" "$hosts/shed.py" | cmp - "$folder/c99.txt"
  if "$python" -c 'import matplotlib' 2>/dev/null; then
    "$python" "$hosts/plot_shed.py" "$folder/shed.png" && test -s "$folder/shed.png"
  fi
fi

run_cmake --build "$build" --target uninstall
[ ! -e "$prefix" ] || { find "$prefix"; exit 1; }
