#!/usr/bin/env bash
# Cross-builds the COM library and runs its tests under wine, without a screen: registers it in a prefix of its
# own, drives it by C++ and script hosts and with outside components, and unregisters it. Installs what the
# machine misses (Debian packages). The 32-bit library runs in a root of its own (run32.sh) if that can be had.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")/../.." || exit 1
# shellcheck source=../../cmake/scripts.sh
. cmake/scripts.sh

LOGS="$PWD/build/logs"
mkdir -p "$LOGS"
install_missing cmake ninja-build g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools wine64 wine ||
  { FAILED=1 && finish; exit 1; }

# How many checks each program makes; the case scripts, one for each of their lines.
CLIENT=99
TYPES=46
FUNCTIONS=23
LATE=6
EARLY=6
OUTSIDE=24
SCRIPT=27
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
  cmake --install build/com --prefix "$ROOM/library" && cp build/com/tests/com/*.exe build/com/tests/com/*.dll "$ROOM/library" &&
    cp build/com32/bindings/com/ORVE3_BS6399_2.tlb "$ROOM/library32.tlb" && cp tests/com/host.vbs tests/com/host.js examples/hosts/com/shed.vbs "$ROOM/library" && cp -r tests/doors/scripts "$ROOM/scripts" &&
    run_wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f && wineserver -k && wineserver -w
}

# wine 8 doesn't show the classes of the user among the classes, as Windows does: they are copied to the machine's.
register() {
  run_wine regsvr32 /s 'C:\test\library\ORVE3_BS6399_2.dll' &&
    run_wine reg copy 'HKCU\Software\Classes' 'HKLM\Software\Classes' /s /f
}

# A host with the manifest beside it, before anything is registered.
check_manifest() {
  local version
  version="$(sed -nE 's/.*name="ORVE3_BS6399_2.Library" version="([0-9.]+)".*/\1/p' "$ROOM/library/ORVE3_BS6399_2.Library.manifest")"
  cat >"$ROOM/library/shed_early.exe.manifest" <<MANIFEST
<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
<assemblyIdentity type="win32" name="shed" version="1.0.0.0" processorArchitecture="amd64"/>
<dependency><dependentAssembly>
  <assemblyIdentity type="win32" name="ORVE3_BS6399_2.Library" version="$version" processorArchitecture="amd64"/>
</dependentAssembly></dependency>
</assembly>
MANIFEST
  grep -q "version=\"$version\" processorArchitecture" docs/hosting-com.md &&
    run_wine 'C:\test\library\shed_early.exe' | tr -d '\r' >"$ROOM/manifest"
  cat "$ROOM/manifest"
  rm "$ROOM/library/shed_early.exe.manifest"
  grep -q '^Face 4, A: -' "$ROOM/manifest"
}

# The library of the other bitness is there too, registering again changes nothing, and taking back leaves the other.
unregister() {
  local classes='HKCU\Software\Classes' platform
  platform="$classes\\TypeLib\\{347500A3-D11A-40C7-8429-FAB7B162211E}\\3.0\\0\\win32"
  run_wine reg add "$platform" /ve /d 'C:\other.dll' /f &&
    run_wine regsvr32 /s 'C:\test\library\ORVE3_BS6399_2.dll' &&
    ! run_wine reg query "$classes" /s | grep -i ThreadingModel &&
    run_wine regsvr32 /s /u 'C:\test\library\ORVE3_BS6399_2.dll' &&
    run_wine reg query "$platform" &&
    run_wine reg query "$classes\\ORVE3_BS6399_2.clsCurrentCase" &&
    ! run_wine reg query "$classes" /s | grep -i 'library.ORVE3' &&
    run_wine reg delete "$platform" /f &&
    run_wine regsvr32 /s /u 'C:\test\library\ORVE3_BS6399_2.dll' &&
    ! run_wine reg query "$classes" /s | grep -i orve
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

# The hosts of docs/hosting-com.md print the same loads, and it shows the script as it is.
check_hosts() {
  sed -n '/^<!-- shed.vbs -->$/,/^```$/p' docs/hosting-com.md | sed '1,2d;$d' | diff - examples/hosts/com/shed.vbs &&
  run_wine cscript.exe //nologo 'C:\test\library\shed.vbs' | tr -d '\r' >"$ROOM/script" &&
    run_wine 'C:\test\library\shed_early.exe' | tr -d '\r' >"$ROOM/early" &&
    run_wine 'C:\test\library\shed_late.exe' | tr -d '\r' >"$ROOM/late" &&
    cat "$ROOM/script" && grep -q '^Face 4, A: -' "$ROOM/script" &&
    diff "$ROOM/script" "$ROOM/manifest" && diff "$ROOM/script" "$ROOM/early" && diff "$ROOM/script" "$ROOM/late"
}

# Free Pascal's hosts; the importer writes the early-bound one's unit. It knows no records in late-bound properties.
build_pascal() {
  mkdir "$ROOM/pascal" && tests/com/pascal/build.sh "$ROOM/pascal" import late &&
    run_wine 'C:\test\pascal\import.exe' 'C:\test\library\ORVE3_BS6399_2.tlb' 'C:\test\pascal' &&
    sed -i '/ dispid [0-9]*;/{/\(ZoneDimensionsXY\|ExternalPressure\) /d}' "$ROOM/pascal/ORVE3_BS6399_2_3_0_TLB.pas" &&
    tests/com/pascal/build.sh "$ROOM/pascal" early
}

step "COM: build, 64 bits" build_preset com
step "COM: entry points, 64 bits" check_exports com x86_64-w64-mingw32-objdump
step "COM: build, 32 bits" build_preset com32
step "COM: entry points, 32 bits" check_exports com32 i686-w64-mingw32-objdump
if step "COM: a prefix without a screen" make_prefix && ln -s "$ROOM" "$WINEPREFIX/drive_c/test" &&
  step "COM: without registration, by the manifest" check_manifest &&
  step "COM: registration" register; then
  check_program "COM: C++ host" "$CLIENT" 'C:\test\library\orve_test_client.exe' 'C:\test\cases'
  check_program "COM: type library" "$TYPES" 'C:\test\library\orve_test_types.exe'
  check_program "COM: type library, 32 bits" "$FUNCTIONS" 'C:\test\library\orve_test_types.exe' 'C:\test\library32.tlb'
  check_program "COM: outside components" "$OUTSIDE" 'C:\test\library\orve_test_outside_client.exe'
  check_program "COM: script host" "$SCRIPT" cscript.exe //nologo 'C:\test\library\host.vbs' 'C:\test\cases'
  check_program "COM: JScript host" 1 cscript.exe //nologo 'C:\test\library\host.js'
  check_program "COM: case scripts" "$CASES" 'C:\test\library\orve_test_door.exe' 'C:\test\scripts' 'C:\test\doors'
  if install_missing fp-compiler fpc-source-3.2.2; then
    step "COM: build, Pascal hosts" build_pascal
    check_program "COM: late-bound Pascal host" "$LATE" 'C:\test\pascal\late.exe'
    check_program "COM: early-bound Pascal host" "$EARLY" 'C:\test\pascal\early.exe'
  else
    echo "COM: no Free Pascal, so its hosts aren't run"
  fi
  step "COM: the documents' hosts" check_hosts
  step "COM: registration taken back" unregister
fi
step "COM: the 32-bit library" tests/com/run32.sh "$CLIENT" "$TYPES"
grep -h '^32 bits:' "$LOGS/COM__the_32_bit_library.log"
finish
