#!/usr/bin/env bash
# Cross-builds the COM library and runs its tests under wine, without a screen: registers it in a prefix of its
# own, drives it by C++ and script hosts and with outside components, and unregisters it. Installs what the
# machine misses (Debian packages). The 32-bit library is built and its entry points are looked at.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")/../.." || exit 1
# shellcheck source=../../cmake/scripts.sh
. cmake/scripts.sh

LOGS="$PWD/build/logs"
mkdir -p "$LOGS"
install_missing cmake ninja-build g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools wine64 wine ||
  { FAILED=1 && finish; exit 1; }

# How many checks each program makes; the case scripts, one for each of their lines.
CLIENT=84
OUTSIDE=24
SCRIPT=25
CASES="$(cat tests/doors/scripts/*.txt | grep -cvE '^(#|$)')"

ROOM="$(mktemp -d)"
export WINEPREFIX="$ROOM/prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
unset DISPLAY
leave() {
  wineserver -k 2>/dev/null
  wineserver -w 2>/dev/null
  rm -rf "$ROOM"
}
trap leave EXIT

run_wine() {
  timeout 180 wine "$@" </dev/null
}

# check_exports PRESET OBJDUMP: the entry points, by their plain names, and nothing else.
check_exports() {
  local names
  names="$("$2" -p "build/$1/bindings/com/ORVE3_BS6399_2.dll" | sed -nE 's/^\s*\[ *[0-9]+\] (\S+)$/\1/p' | paste -sd' ')"
  echo "$names"
  [ "$names" = "DllCanUnloadNow DllGetClassObject DllRegisterServer DllUnregisterServer" ]
}

# A prefix whose windows are drawn nowhere, so that dialogs can be answered without a screen.
make_prefix() {
  mkdir "$ROOM/library" "$ROOM/cases" "$ROOM/doors"
  cp build/com/bindings/com/ORVE3_BS6399_2.dll build/com/tests/com/*.exe build/com/tests/com/*.dll "$ROOM/library" &&
    cp tests/com/host.vbs examples/hosts/com/shed.vbs "$ROOM/library" && cp -r tests/doors/scripts "$ROOM/scripts" &&
    run_wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f && wineserver -k && wineserver -w
}

# wine 8 doesn't show the classes of the user among the classes, as Windows does: they are copied to the machine's.
register() {
  run_wine regsvr32 /s 'C:\test\library\ORVE3_BS6399_2.dll' &&
    run_wine reg copy 'HKCU\Software\Classes' 'HKLM\Software\Classes' /s /f
}

unregister() {
  run_wine regsvr32 /s /u 'C:\test\library\ORVE3_BS6399_2.dll' &&
    ! run_wine reg query 'HKCU\Software\Classes' /s | grep -i orve
}

# check_program NAME EXPECTED COMMAND...: a program passes if its closing line gives the expected count.
check_program() {
  local name="$1" expected="$2" log="$LOGS/com_${1//[^A-Za-z0-9]/_}.log" start=$SECONDS
  shift 2
  run_wine "$@" 2>&1 | tr -d '\r' >"$log"
  if [ "$(tail -n 1 "$log")" = "$expected passed, 0 failed" ]; then
    PASSED=$((PASSED + expected))
    printf 'ok      %-58s %4d s\n' "$name: $expected checks" $((SECONDS - start))
  else
    FAILED=$((FAILED + 1))
    printf 'FAILED  %-58s %4d s\n' "$name: $expected checks expected" $((SECONDS - start))
    tail -n 40 "$log"
  fi
}

# The hosts of docs/hosting.md print the same loads, and it shows the script as it is.
check_hosts() {
  sed -n '/^<!-- shed.vbs -->$/,/^```$/p' docs/hosting.md | sed '1,2d;$d' | diff - examples/hosts/com/shed.vbs &&
  run_wine cscript.exe //nologo 'C:\test\library\shed.vbs' | tr -d '\r' >"$ROOM/script" &&
    run_wine 'C:\test\library\shed_early.exe' | tr -d '\r' >"$ROOM/early" &&
    run_wine 'C:\test\library\shed_late.exe' | tr -d '\r' >"$ROOM/late" &&
    cat "$ROOM/script" && grep -q '^Face 4, A: -' "$ROOM/script" &&
    diff "$ROOM/script" "$ROOM/early" && diff "$ROOM/script" "$ROOM/late"
}

step "COM: build, 64 bits" build_preset com
step "COM: entry points, 64 bits" check_exports com x86_64-w64-mingw32-objdump
step "COM: build, 32 bits" build_preset com32
step "COM: entry points, 32 bits" check_exports com32 i686-w64-mingw32-objdump
if step "COM: a prefix without a screen" make_prefix && ln -s "$ROOM" "$WINEPREFIX/drive_c/test" &&
  step "COM: registration" register; then
  check_program "COM: C++ host" "$CLIENT" 'C:\test\library\orve_test_client.exe' 'C:\test\cases'
  check_program "COM: outside components" "$OUTSIDE" 'C:\test\library\orve_test_outside_client.exe'
  check_program "COM: script host" "$SCRIPT" cscript.exe //nologo 'C:\test\library\host.vbs' 'C:\test\cases'
  check_program "COM: case scripts" "$CASES" 'C:\test\library\orve_test_door.exe' 'C:\test\scripts' 'C:\test\doors'
  step "COM: the documents' hosts" check_hosts
  step "COM: registration taken back" unregister
fi
finish
