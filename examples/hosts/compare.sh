#!/bin/sh
# compare.sh SHED_CPP SHED_C [PYTHON]: the hosts print the same sheet, and the guide shows them as they are.
set -eu
here=$(dirname "$0")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_CONFIG_HOME="$folder" TMPDIR="$folder"
"$1" >"$folder/cpp"
"$2" "$folder" >"$folder/c"
[ $# -lt 3 ] || "$3" "$here/shed.py" >"$folder/python"
[ "$(grep -c 'kN/m²' "$folder/cpp")" -gt 40 ]
for door in c python; do
  [ ! -e "$folder/$door" ] || diff "$folder/cpp" "$folder/$door"
done
# A host in the guide stands between a comment with its name and the end of its block.
shown() { sed -n "/^<!-- $(basename "$2") -->\$/,/^\`\`\`\$/p" "$here/../../docs/$1" | sed '1,2d;$d' | diff - "$here/$2"; }
shown hosting.md ../smallest_host.cpp
shown hosting-by-name.md by_name.cpp
shown hosting-c.md shed.c
shown hosting-python.md shed.py
