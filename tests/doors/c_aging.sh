#!/bin/sh
# c_aging.sh LIBRARY HEADER: a client made with an earlier header runs with the library of the day. The folder
# golden/ keeps the header and the list of symbols of each version that clients were given.
set -eu
library=$1
header=$2
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
link="$library -Wl,-rpath,$(dirname "$library")"

functions() { sed -n 's/^ORVE_C_API .*[ *]\(orve_[A-Za-z0-9_]*\)(.*/\1/p' "$1" | sort; }
functions "$header" >"$folder/now.txt"

for golden in "$here"/golden/*/; do
  old=$golden/orve3_bs6399_2_c.h
  functions "$old" >"$folder/then.txt"
  echo "$(wc -l <"$folder/then.txt") functions of $(basename "$golden"), $(wc -l <"$folder/now.txt") now"

  # Each function is still there (the program links), and is declared as it was.
  {
    echo '#include "orve3_bs6399_2_c.h"'
    awk 'NR == FNR { kept[$0]; next }
      /^ORVE_C_API/ { name = $0; sub(/\(.*/, "", name); sub(/.*[ *]/, "", name); if (name in kept) print }' \
      "$folder/then.txt" "$header"
    echo 'typedef void (*any)(void);'
    echo 'const any all[] = {'
    sed 's/.*/  (any)&,/' "$folder/then.txt"
    echo '  0};'
    echo 'int main(void) { return all[0] == 0; }'
  } >"$folder/all.c"
  # shellcheck disable=SC2086
  cc -std=c11 -Wall -Wextra -Werror -I"$golden" "$folder/all.c" -o "$folder/all" $link
  "$folder/all"

  # Records and enumerations are laid out as they were.
  for kind in now then; do
    [ $kind = now ] && include=$(dirname "$header") || include=$golden
    cc -std=c99 -Wall -Wextra -Werror -I"$include" "$here/c_layout.c" -o "$folder/layout-$kind"
    "$folder/layout-$kind" >"$folder/layout-$kind.txt"
  done
  diff "$folder/layout-then.txt" "$folder/layout-now.txt"
  sed -n 's/^  \(orve_[A-Za-z0-9_]* = -\{0,1\}[0-9]*\).*/\1/p' "$old" | sort >"$folder/values-then.txt"
  sed -n 's/^  \(orve_[A-Za-z0-9_]* = -\{0,1\}[0-9]*\).*/\1/p' "$header" | sort >"$folder/values-now.txt"
  test -s "$folder/values-then.txt"
  [ -z "$(comm -23 "$folder/values-then.txt" "$folder/values-now.txt")" ]

  # A whole host gives the same sheet.
  for kind in now then; do
    [ $kind = now ] && include=$(dirname "$header") || include=$golden
    # shellcheck disable=SC2086
    cc -std=c99 -I"$include" "$here/../../examples/hosts/shed.c" -o "$folder/shed-$kind" $link
    "$folder/shed-$kind" "$folder" >"$folder/shed-$kind.txt"
  done
  cmp "$folder/shed-then.txt" "$folder/shed-now.txt"

  # No symbol has gone or changed its version; added ones are welcome.
  if command -v abidiff >/dev/null; then
    abidiff --no-architecture --no-added-syms "$golden/orve3_bs6399_2_c.abi" "$library"
  fi
done
