#!/usr/bin/env bash
# Installs what is missing, builds for Windows (64 and 32 bits), runs the 64-bit tests under wine and
# tests the package. Every program's output goes to build/windows-logs.      usage: ./test-windows.sh
set -euo pipefail
top=$(cd "$(dirname "$0")" && pwd)
. "$top/scripts/packages.sh"
. "$top/scripts/windows.sh"
. "$top/scripts/wine.sh"
x64=$top/build/windows-x64 x86=$top/build/windows-x86 logs=$top/build/windows-logs
native_tool=$top/build/test/tools/lumenote/lumenote  # its output is what the scripts must print
export top x64 logs native_tool

step() {
  local name=$1 start=$SECONDS
  shift
  "$@"
  printf '== %s: %d min %02d s\n' "$name" $(((SECONDS - start) / 60)) $(((SECONDS - start) % 60))
}

fail() {
  printf 'FAILED %s\n%s\n' "$1" "$(tail -n 20 "$2")"
  echo "$1" >>"$logs/failures"
}

# usage: in_parallel COMMAND   for each line of the input
in_parallel() { xargs -d '\n' -P "$(nproc)" -I{} bash -c "$1 "'"$1"' "$1" {}; }

build_native_tool() {
  cmake -S "$top" -B "$top/build/test" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
  cmake --build "$top/build/test" --target lumenote_tool -- --quiet
}

unit_test() {
  local name log
  name=$(basename "$1" .exe) log=$logs/$(basename "$1" .exe).log
  cd "$top/tests"
  run_wine "$log" 900 "$1" || fail "$name" "$log"
  grep -ahE '^\[  (PASSED|SKIPPED)  \]' "$log" | sed "s/^/$name: /" || true
}
run_unit_tests() { ls "$x64"/tests/test_*.exe | grep -v _desktop.exe | in_parallel unit_test; }

# Input methods need a display, which has a prefix of its own.
desktop_test() {
  . "$top/scripts/wine.sh"
  trap stop_wine EXIT
  start_wine "$top/build/windows-desktop-prefix" x11
  unit_test "$x64/tests/test_win32_desktop.exe"
}
# The shell that starts the X server passes no functions on.
run_desktop_tests() {
  xvfb-run -a -s '-screen 0 1000x740x24' \
    bash -c "$(declare -f fail run_wine unit_test desktop_test); desktop_test"
}

# A script's output without carriage returns and the sandbox's folder.
without_places() { tr -d '\r' <"$1" | sed -E 's#[^"\]*/lumenote-[A-Za-z0-9]{6}/#SANDBOX/#g'; }

# A script prints under wine what it prints here.
script() {
  local name log
  name=$(basename "$1") log=$logs/$(basename "$1" .pilot)
  "$native_tool" pilot "$1" >"$log.native" 2>&1 || true
  run_wine "$log.wine" 120 "$x64/tools/lumenote/lumenote.exe" pilot "Z:${1//\//\\}" ||
    fail "$name" "$log.wine"
  diff <(without_places "$log.native") <(without_places "$log.wine") >"$log.diff" ||
    fail "$name prints something else" "$log.diff"
}
script_on_windows() {
  local log
  log=$logs/$(basename "$1" .pilot).windows
  run_wine "$log" 120 "$x64/hosts/microedit/microedit.exe" --pilot "Z:${1//\//\\}" ||
    fail "$(basename "$1") on native windows" "$log"
}

# Names that differ in letter case alone are one name here, so that script has nothing to say.
scripts() { ls "$top"/tests/pilot/*.pilot | grep -v /letter-case.pilot; }

run_scripts() { scripts | in_parallel script; }
# One after the other: they share the focus and the mouse.
run_scripts_on_windows() {
  local path
  scripts | while read -r path; do script_on_windows "$path"; done
}

# Lumenote.dll, registered, in hosts of several languages.
run_com_hosts() {
  timeout 900 "$top/tests/com/com_test.sh" "$x64" >"$logs/com.log" 2>&1 || fail com "$logs/com.log"
}

test_package() {
  timeout 1800 "$top/packaging/windows_test.sh" >"$logs/package.log" 2>&1 || fail package "$logs/package.log"
  grep -a '\.zip' "$logs/package.log" || true
}

# Hosts look for these names, undecorated.
check_exports() {
  local folder name
  for folder in "$x64" "$x86"; do
    x86_64-w64-mingw32-objdump -p "$folder/hosts/com/Lumenote.dll" >"$logs/exports"
    for name in CanUnloadNow GetClassObject Install RegisterServer UnregisterServer; do
      grep -qE "\] Dll$name\$" "$logs/exports" || fail "no Dll$name in $folder" "$logs/exports"
    done
  done
}

# The DLL of each width carries the type library of that width.
check_type_libraries() {
  local width
  for width in x64 x86; do
    x86_64-w64-mingw32-objcopy -O binary -j .rsrc "$top/build/windows-$width/hosts/com/Lumenote.dll" \
      "$logs/resources"
    python3 - "$logs/resources" "$top/hosts/com/typelib/Lumenote-$width.tlb" <<'END' ||
import sys
resources, library = (open(path, "rb").read() for path in sys.argv[1:])
sys.exit(library not in resources)
END
      fail "type library of $width" /dev/null
  done
}

# Programs and libraries need nothing that a fresh system lacks.
check_imports() {
  local file own='libgcc|libstdc|libwinpthread'
  for file in {"$x64","$x86"}/{hosts/com/Lumenote.dll,hosts/microedit/microedit.exe,tools/lumenote/lumenote.exe}; do
    x86_64-w64-mingw32-objdump -p "$file" | sed -n 's/.*DLL Name: //p' >"$logs/imports"
    ! grep -iqE "$own" "$logs/imports" || fail "imports of $file" "$logs/imports"
    printf '%s: %d KB, %s\n' "${file#"$top"/}" $(($(stat -c %s "$file") / 1024)) \
      "$(tr '\n' ' ' <"$logs/imports")"
  done
}

export -f fail run_wine unit_test without_places script
mkdir -p "$logs"
: >"$logs/failures"
step "Packages" ensure_packages "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${WINDOWS_PACKAGES[@]}" \
  "${WINE_PACKAGES[@]}"
step "This system's tool" build_native_tool
step "Build, 64 bits" build_windows x64 all
step "Build, 32 bits" build_windows x86 all
step "Imports" check_imports
step "Exports" check_exports
step "Type libraries" check_type_libraries
trap stop_wine EXIT
step "wine" start_wine "$top/build/windows-prefix"
step "Unit tests" run_unit_tests
step "Unit tests on a display" run_desktop_tests
step "Scripts" run_scripts
step "Scripts on native windows" run_scripts_on_windows
step "Hosts of the control" run_com_hosts
step "Package" test_package
[ ! -s "$logs/failures" ]
