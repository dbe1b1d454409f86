#!/bin/sh
# python_package.sh PYTHON: the module from a source distribution by pip without a network, as a wheel in a virtual
# environment of its own, and its stub compared with what it has.
set -eu
python=$1
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_CONFIG_HOME="$folder"

# pip builds in the folder itself, so the tracked files are copied.
mkdir "$folder/clone"
(cd "$root" && git ls-files -z | xargs -0 cp --parents -t "$folder/clone")
(cd "$folder/clone" && "$python" setup.py -q sdist --dist-dir "$folder")
(cd "$folder" && tar xf orve3*.tar.gz)

"$python" -m venv --system-site-packages "$folder/builder"
"$folder/builder/bin/pip" -q wheel --no-index --no-build-isolation --no-deps -w "$folder" "$folder"/orve3*.tar.gz

"$python" -m venv "$folder/plain"
"$folder/plain/bin/pip" -q install --no-index "$folder"/orve3*.whl
cd "$folder"
plain=$folder/plain/bin/python
"$plain" -m orve3_bs6399_2 | tee "$folder/says.txt"
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
grep -q " $version:" "$folder/says.txt"
grep -q "site-packages/orve3_bs6399_2/share/orve" "$folder/says.txt"
"$plain" "$here/python_module.py"
"$plain" "$here/python_door.py" "$here/scripts"
"$plain" "$root/examples/hosts/shed.py" | grep -q 'baWalls, Face 4'

if "$python" -c 'import mypy.stubtest' 2>/dev/null; then
  package=$("$plain" -c 'import orve3_bs6399_2, os; print(os.path.dirname(os.path.dirname(orve3_bs6399_2.__file__)))')
  test -e "$package/orve3_bs6399_2/py.typed"
  MYPYPATH=$package PYTHONPATH=$package "$python" -m mypy.stubtest orve3_bs6399_2 --concise
fi
