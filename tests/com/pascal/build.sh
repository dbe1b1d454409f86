#!/bin/sh
# build.sh FOLDER PROGRAM...: Free Pascal's units for 64-bit Windows, made once in FOLDER out of its sources, and
# programs of this folder with them.
set -eu
here="$(cd "$(dirname "$0")" && pwd)"
folder="$1"
shift
sources="$(dirname "$(dpkg -L fpc-source-3.2.2 | grep '/rtl/win64/system\.pp$')")/../.."
packages="$sources/packages"
compile() {
  fpc -v0 -Twin64 -n -Sg -FU"$folder/units" -Fu"$folder/units" -Fu"$folder" -FE"$folder" "$@"
}

if [ ! -d "$folder/units" ]; then
  mkdir "$folder/units"
  cd "$sources/rtl/win64"
  parts="-Fi../inc -Fi../x86_64 -Fi../win -Fi../win/wininc -Fi../objpas -Fi../objpas/sysutils -Fi../objpas/classes -Fi.
    -Fu../inc -Fu../win -Fu../objpas -Fu../x86_64 -Fu../charmaps"
  # shellcheck disable=SC2086
  { compile $parts -Us system.pp && compile $parts ../objpas/objpas.pp && compile $parts buildrtl.pp; }
fi
for program in "$@"; do
  compile -Fu"$packages/winunits-base/src" -Fi"$packages/winunits-base/src" -Fu"$packages/rtl-objpas/src/inc" \
    -Fi"$packages/rtl-objpas/src/inc" -Fu"$packages/rtl-objpas/src/win" -Fi"$packages/rtl-objpas/src/common" \
    -Fu"$packages/fcl-registry/src" -Fu"$packages/fcl-base/src" "$here/$program.pas"
done
