#!/usr/bin/env bash
# Builds for Windows and packs the control, its programs and their registration for both widths into
# build/Lumenote-VERSION-windows.zip, whose path alone goes to standard output.
# usage: packaging/windows.sh
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
. "$top/scripts/packages.sh"
. "$top/scripts/windows.sh"
ensure_packages "${WINDOWS_PACKAGES[@]}" >&2

version=$(sed -n 's/^project(Lumenote VERSION \([0-9.]*\).*/\1/p' "$top/CMakeLists.txt")
name=Lumenote-$version
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
mkdir "$stage/$name"

for width in x64 x86; do
  build_windows "$width" lumenote_com microedit lumenote_tool >&2
  mkdir "$stage/$name/$width"
  for file in hosts/com/Lumenote.dll hosts/microedit/microedit.exe tools/lumenote/lumenote.exe; do
    cp "$top/build/windows-$width/$file" "$stage/$name/$width/"
  done
done

# Texts with the system's line ends; those for readers with the mark of UTF-8.
text() { printf '%b' "$1"; sed "s/@version@/$version/; s/\$/\r/" "$2"; }
for script in "$top"/packaging/windows/*.cmd; do
  text '' "$script" >"$stage/$name/$(basename "$script")"
done
text '\xEF\xBB\xBF' "$top/packaging/windows/LISEZMOI.txt" >"$stage/$name/LISEZMOI.txt"
text '\xEF\xBB\xBF' "$top/LICENSE" >"$stage/$name/LICENSE.txt"

zip=$top/build/$name-windows.zip
rm -f "$zip"
(cd "$stage" && cmake -E tar cf "$zip" --format=zip "$name")
echo "$zip"
