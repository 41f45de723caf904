#!/usr/bin/env bash
# Registers Lumenote.dll as its users do, runs hosts of several languages against it, and removes it.
# usage: com_test.sh BUILD_FOLDER   in a wine prefix. The output of every wine command goes to a file: its
# services would keep a pipe open.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
kept=$here/../../hosts/com/typelib
dll=$1/hosts/com/Lumenote.dll maker=$1/hosts/com/lumenote_typelib.exe host=$1/tests/com/test_com.exe
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "FAIL: $1"
  cat "$work/out" 2>/dev/null || true
  exit 1
}
run() { wine "$@" >"$work/out" 2>&1 </dev/null; }
windows() { echo "Z:${1//\//\\}"; }

# The classes of the machine and of the user.
classes() {
  local root
  for root in HKLM HKCU; do
    run reg export "$root\\Software\\Classes" "$(windows "$work/$root.reg")" /y
    iconv -f UTF-16 "$work/$root.reg"
  done
}

# cscript takes scripts in code page 1252 and hides what they do not catch.
script() {
  iconv -f UTF-8 -t CP1252 "$here/$1" >"$work/$1"
  run cscript //nologo "$(windows "$work/$1")" || true
  [ "$(tr -d '\r' <"$work/out" | tail -1)" = PASS ] || fail "$1"
}

for width in 64 86; do
  name=Lumenote-x$width.tlb
  run "$maker" "$(windows "$work/$name")" "win${width/86/32}" || fail "$name is not made"
  cmp "$work/$name" "$kept/$name" || fail "$name does not match the table: build type_library"
done

run regsvr32 /s /u "$(windows "$dll")" || true  # what a test that ended early has left
run reg add 'HKCU\Software\Classes' /f  # there on every Windows
classes >"$work/before"
run regsvr32 /s "$(windows "$dll")" || fail "not registered"
classes >"$work/registered"
grep -q 'Lumenote\.CoBxRtf\.1' "$work/registered" || fail "no ProgID"
script host.vbs
script host.js
run "$host" || fail "hosts in C++"
run regsvr32 /s /u "$(windows "$dll")" || fail "not removed"
classes >"$work/after"
diff "$work/before" "$work/after" || fail "registration leaves a trace"

# For one user, as where the machine's classes cannot be written.
run regsvr32 /s /n /i:user "$(windows "$dll")" || fail "not registered for the user"
for key in 'CLSID\{74F0C059-87F8-4559-8AF9-416FB22805CD}\InprocServer32' \
  'TypeLib\{BB92CC6A-95F6-43C8-BA6C-7192433441A7}\1.0\0\win64'; do
  run reg query "HKCU\\Software\\Classes\\$key" /ve || fail "$key"
  grep -q "$(basename "$dll")" "$work/out" || fail "$key has another path"
done
run regsvr32 /s /u "$(windows "$dll")" || fail "not removed for the user"
classes >"$work/after"
diff "$work/before" "$work/after" || fail "a user's registration leaves a trace"
echo PASS
