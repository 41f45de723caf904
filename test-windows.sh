#!/usr/bin/env bash
# Installs what is missing, builds for Windows (64 and 32 bits) and runs the 64-bit tests under wine.
# Every program's output goes to build/windows-logs.      usage: ./test-windows.sh
set -euo pipefail
top=$(cd "$(dirname "$0")" && pwd)
. "$top/scripts/packages.sh"
. "$top/scripts/wine.sh"
x64=$top/build/windows-x64 x86=$top/build/windows-x86 logs=$top/build/windows-logs
failures=0

step() {
  local name=$1 start=$SECONDS
  shift
  "$@"
  printf '== %s: %d min %02d s\n' "$name" $(((SECONDS - start) / 60)) $(((SECONDS - start) % 60))
}

fail() {
  printf 'FAILED %s\n' "$1"
  tail -n 20 "$2"
  failures=$((failures + 1))
}

# build FOLDER TOOLCHAIN TESTS TARGET...
build() {
  local folder=$1 toolchain=$2 tests=$3
  shift 3
  cmake -S "$top" -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=Release -DLUMENOTE_QT=OFF \
    -DLUMENOTE_TESTS="$tests" -DCMAKE_TOOLCHAIN_FILE="$top/cmake/toolchains/$toolchain.cmake" >/dev/null
  cmake --build "$folder" -- --quiet "$@"
}

# The tool of this system, whose output is what the scripts must print.
native_tool=$top/build/test/tools/lumenote/lumenote
build_native_tool() {
  [ -x "$native_tool" ] && return
  cmake -S "$top" -B "$top/build/test" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
  cmake --build "$top/build/test" --target lumenote_tool -- --quiet
}

run_unit_tests() {
  local program name
  for program in "$x64"/tests/test_*.exe; do
    name=$(basename "$program" .exe)
    (cd "$top/tests" && wine "$program" >"$logs/$name.log" 2>&1 </dev/null) ||
      fail "$name" "$logs/$name.log"
    grep -ahE '^\[  (PASSED|SKIPPED)  \]' "$logs/$name.log" | sed "s/^/$name: /" || true
  done
}

# A script's output without carriage returns and the sandbox's folder.
without_places() { tr -d '\r' <"$1" | sed -E 's#[^"\]*/lumenote-[A-Za-z0-9]{6}/#SANDBOX/#g'; }

run_scripts() {
  local script name count=0
  for script in "$top"/tests/pilot/*.pilot; do
    name=$(basename "$script" .pilot)
    [ "$name" != letter-case ] || continue  # names differ by more than that here
    "$native_tool" pilot "$script" >"$logs/$name.native" 2>&1 || true
    wine "$x64/tools/lumenote/lumenote.exe" pilot "Z:${script//\//\\}" \
      >"$logs/$name.wine" 2>&1 </dev/null || fail "$name.pilot" "$logs/$name.wine"
    diff <(without_places "$logs/$name.native") <(without_places "$logs/$name.wine") >"$logs/$name.diff" ||
      fail "$name.pilot prints something else" "$logs/$name.diff"
    wine "$x64/hosts/microedit/microedit.exe" --pilot "Z:${script//\//\\}" \
      >"$logs/$name.windows" 2>&1 </dev/null || fail "$name.pilot on native windows" "$logs/$name.windows"
    count=$((count + 1))
  done
  printf '%d scripts\n' "$count"
}

# Lumenote.dll, registered, in hosts of several languages.
run_com_hosts() {
  "$top/tests/com/com_test.sh" "$x64" >"$logs/com.log" 2>&1 || fail com "$logs/com.log"
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

mkdir -p "$logs"
step "Packages" ensure_packages "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${WINDOWS_PACKAGES[@]}"
step "This system's tool" build_native_tool
step "Build, 64 bits" build "$x64" windows-x64 ON
step "Build, 32 bits" build "$x86" windows-x86 OFF
step "Imports" check_imports
step "Exports" check_exports
trap stop_wine EXIT
step "wine" start_wine "$top/build/windows-prefix"
step "Unit tests" run_unit_tests
step "Scripts" run_scripts
step "Hosts of the control" run_com_hosts
[ "$failures" -eq 0 ]
