#!/usr/bin/env bash
# Registers Lumenote.dll as its users do, runs hosts of several languages against it, and removes it.
# usage: com_test.sh BUILD_FOLDER   in a wine prefix. The output of every wine command goes to a file: its
# services would keep a pipe open.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../../scripts/wine.sh"
kept=$here/../../hosts/com/typelib
dll=$1/hosts/com/Lumenote.dll maker=$1/hosts/com/lumenote_typelib.exe host=$1/tests/com/test_com.exe
typist=$1/tests/com/typist.exe docs=$here/../../docs/windows.md
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The classes of the machine and of the user.
classes() {
  local root
  for root in HKLM HKCU; do
    run reg export "$root\\Software\\Classes" "$(windows "$work/$root.reg")" /y
    iconv -f UTF-16 "$work/$root.reg"
  done
}

# script FILE ARGUMENT...   prints the last line of what it prints. cscript takes scripts in code page
# 1252 and hides what they do not catch.
script() {
  local name=$(basename "$1")
  iconv -f UTF-8 -t CP1252 "$1" >"$work/script-$name"
  shift
  run cscript //nologo "$(windows "$work/script-$name")" "$@" || true
  tr -d '\r' <"$work/out" | tail -1
}

# The documentation's example in VBScript, with a user who types.
example() {
  local notes=$WINEPREFIX/drive_c/Notes
  mkdir -p "$notes"
  sed -n '/^VBScript /,/^VBA /s/^    //p' "$docs" >"$work/example.vbs"
  run_wine "$work/typist" 300 "$typist" 'Orchis purpurea Huds.' 'Abies' &
  [ "$(script "$work/example.vbs")" = 'C:\Notes\orchis.rtf' ] || fail "the example in VBScript"
  wait
  grep -q Abies "$notes/orchis.rtf" || fail "the example's note"
}

for width in 64 86; do
  name=Lumenote-x$width.tlb
  run "$maker" "$(windows "$work/$name")" "win${width/86/32}" || fail "$name is not made"
  cmp "$work/$name" "$kept/$name" || fail "$name does not match the table: build type_library"
done

run regsvr32 /s /u "$(windows "$dll")" || true  # what a test that ended early has left
run reg add 'HKCU\Software\Classes' /f  # there on every Windows
# Wine's script host registers itself when it first runs.
: >"$work/nothing.vbs"
run cscript //nologo "$(windows "$work/nothing.vbs")" || true
classes >"$work/before"
run regsvr32 /s "$(windows "$dll")" || fail "not registered"
classes >"$work/registered"
grep -q 'Lumenote\.CoBxRtf\.1' "$work/registered" || fail "no ProgID"
for name in host.vbs host.js; do
  [ "$(script "$here/$name" "$(windows "$typist")")" = PASS ] || fail "$name"
done
example
run "$host" || fail "hosts in C++"

# Names and library stay while hosts of the other width use them.
class='CLSID\{74F0C059-87F8-4559-8AF9-416FB22805CD}' library='TypeLib\{BB92CC6A-95F6-43C8-BA6C-7192433441A7}'
machine='HKLM\Software\Classes' user='HKCU\Software\Classes'
run reg add "$machine\\Wow6432Node\\$class" /f
run regsvr32 /s /u "$(windows "$dll")" || fail "not removed beside the other width"
run reg query "$machine\\Lumenote.CoBxRtf" || fail "the other width has lost its name"
run reg query "$machine\\$library" || fail "the other width has lost its library"
! run reg query "$machine\\$class" || fail "the class stays"
run reg delete "$machine\\Wow6432Node\\$class" /f

# For one user, as where the machine's classes cannot be written.
run regsvr32 /s /n /i:user "$(windows "$dll")" || fail "not registered for the user"
run regsvr32 /s "$(windows "$dll")" || fail "not registered again"
! run reg query "$user\\$class" || fail "the user's older class wins"
run regsvr32 /s /n /i:user "$(windows "$dll")" || fail "not registered for the user too"
for key in "$class\\InprocServer32" "$library\\1.0\\0\\win64"; do
  run reg query "$user\\$key" /ve || fail "$key"
  grep -q "$(basename "$dll")" "$work/out" || fail "$key has another path"
done
run regsvr32 /s /u /n /i:user "$(windows "$dll")" || fail "not removed for the user"
! run reg query "$user\\$class" || fail "the user's class stays"
run reg query "$machine\\$class" || fail "the machine's class is gone"
run regsvr32 /s /n /i:user "$(windows "$dll")" || fail "not registered for both"
run regsvr32 /s /u "$(windows "$dll")" || fail "not removed"
classes >"$work/after"
diff "$work/before" "$work/after" || fail "registration leaves a trace"
echo PASS
