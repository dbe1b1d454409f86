#!/usr/bin/env bash
# run32.sh CLIENT TYPES: the 32-bit COM library with as many checks of its two test programs, under the wine of an i386
# root in a temporary folder; the machine's own architectures stay as they are. Without the means for it (debootstrap,
# the rights of root, a package mirror) nothing is run; run.sh has read its type library and entry points.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")/../.." || exit 1
BUILT="$PWD/build/com32"
CLIENT="$1"
TYPES="$2"
ROOT="$(mktemp -d)"
trap 'rm -rf --one-file-system "$ROOT"' EXIT

# Whether the system's kernel runs programs of 32 bits.
runs_32_bits() {
  echo 'void _start(void) { __asm__("mov $1, %eax; xor %ebx, %ebx; int $0x80"); }' |
    gcc -m32 -static -nostdlib -x c - -o "$ROOT/program" && "$ROOT/program"
}

make_root() {
  local mirror
  runs_32_bits || return 1
  mirror="$(sed -nE 's/^(deb|URIs:) *(\[[^]]*\] *)?(https?:[^ ]+\/debian)\/? .*/\3/p; s/^URIs: *(https?:[^ ]+\/debian)\/?$/\1/p' \
    /etc/apt/sources.list /etc/apt/sources.list.d/* 2>/dev/null | head -n 1)"
  [ "$(id -u)" -eq 0 ] && command -v debootstrap >/dev/null &&
    debootstrap --arch=i386 --variant=minbase bookworm "$ROOT/i386" "${mirror:-http://deb.debian.org/debian}" &&
    cp -r /etc/apt/apt.conf.d "$ROOT/i386/etc/apt/" &&
    chroot "$ROOT/i386" apt-get install -y --no-install-recommends wine wine32
}

# The mount of /proc is this call's alone.
run_root() {
  unshare -m sh -c 'mount -t proc proc "$0/proc" && exec chroot "$0" "$@"' "$ROOT/i386" env -i \
    PATH=/usr/bin:/bin HOME=/root WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" "$@" </dev/null
}

# Ends with the line of a program in which all checks passed.
run_program() {
  run_root timeout 300 wine "C:\\test\\$1" "${@:3}" 2>/dev/null | tr -d '\r' >"$ROOT/output"
  cat "$ROOT/output"
  [ "$(tail -n 1 "$ROOT/output")" = "$2 passed, 0 failed" ]
}

run_library() {
  local drive="$ROOT/i386/root/.wine/drive_c"
  run_root timeout 300 wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f &&
    run_root wineserver -w && mkdir -p "$drive/test/cases" &&
    cmake --install build/com32 --prefix "$drive/test" && cp "$BUILT"/tests/com/*.exe "$drive/test" &&
    run_root timeout 180 wine regsvr32 /s 'C:\test\ORVE3_BS6399_2.dll' &&
    run_root timeout 180 wine reg copy 'HKCU\Software\Classes' 'HKLM\Software\Classes' /s /f &&
    run_program orve_test_client.exe "$CLIENT" 'C:\test\cases' && run_program orve_test_types.exe "$TYPES" &&
    run_root timeout 180 wine regsvr32 /s /u 'C:\test\ORVE3_BS6399_2.dll'
}

if make_root; then
  echo "32 bits: run under wine in an i386 root"
  run_library
else
  echo "32 bits: not run, as no i386 root can be had; its type library and entry points were read"
fi
