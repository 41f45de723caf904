#!/usr/bin/env bash
# Installs what is missing, builds, and opens the editor on NOTE or on a sample note. Without a
# display it renders the window to a PNG and says where.      usage: ./run.sh [NOTE]
set -euo pipefail
top=$(cd "$(dirname "$0")" && pwd)
. "$top/scripts/packages.sh"

ensure_packages "${BUILD_PACKAGES[@]}" "${FONT_PACKAGES[@]}" hunspell-fr
build="$top/build/run"
cmake -S "$top" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DLUMENOTE_TESTS=OFF >/dev/null
cmake --build "$build"

if [ $# -gt 0 ]; then
  note=$1
else
  note="$build/exemple.rtf"
  [ -e "$note" ] || cp "$top/docs/exemple.rtf" "$note"
fi
options=(--title "Notes" --frame "Remarques" --key microedit)
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$build/hosts/microedit/microedit" "${options[@]}" "$note"
fi
shot="$build/microedit.png"
QT_QPA_PLATFORM=offscreen "$build/hosts/microedit/microedit" "${options[@]}" --capture "$shot" "$note"
echo "No display: the window is rendered in $shot"
