#!/usr/bin/env bash
# Makes the package, unpacks it, and registers and removes the control from its folder.
# usage: windows_test.sh   in a wine prefix
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
. "$top/scripts/wine.sh"
key='HKLM\Software\Classes\CLSID\{74F0C059-87F8-4559-8AF9-416FB22805CD}\InprocServer32'
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

zip=$("$top/packaging/windows.sh")
(cd "$work" && cmake -E tar xf "$zip")
folder=$(echo "$work"/Lumenote-*)
find "$folder" -type f -printf '%P\n' | LC_ALL=C sort >"$work/listed"
diff - "$work/listed" <<'END' || fail "another content"
LICENSE.txt
LISEZMOI.txt
each-width.cmd
register.cmd
unregister.cmd
x64/Lumenote.dll
x64/lumenote.exe
x64/microedit.exe
x86/Lumenote.dll
x86/lumenote.exe
x86/microedit.exe
END

run cmd /c "$(windows "$folder/register.cmd")" || fail "register.cmd"
run reg query "$key" /ve || fail "not registered"
grep -qiF "$(basename "$folder")\\x64\\Lumenote.dll" "$work/out" || fail "registered elsewhere"
run cmd /c "$(windows "$folder/unregister.cmd")" || fail "unregister.cmd"
! run reg query "$key" /ve || fail "not removed"
run "$folder/x64/lumenote.exe" --version || fail "lumenote.exe does not start"
echo "$(stat -c %s "$zip") bytes, $zip"
