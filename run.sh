#!/usr/bin/env bash
# Installs what is missing, builds, and opens the editor on NOTE or on a sample note; with --demo a
# small herbarium whose records have notes. Without a display it renders the window to a PNG and says
# where.      usage: ./run.sh [NOTE | --demo]
set -euo pipefail
top=$(cd "$(dirname "$0")" && pwd)
. "$top/scripts/packages.sh"

ensure_packages "${BUILD_PACKAGES[@]}" "${FONT_PACKAGES[@]}" hunspell-fr
build="$top/build/run"
cmake -S "$top" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DLUMENOTE_TESTS=OFF >/dev/null
cmake --build "$build"

# show PROGRAM OPTION_AND_NOTE...
show() {
  local program="$build/hosts/$1/$1" shot="$build/$1.png"
  [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || exec "$program" "${@:2}"
  QT_QPA_PLATFORM=offscreen "$program" --capture "$shot" "${@:2}"
  echo "No display: the window is rendered in $shot"
}

if [ "${1:-}" = --demo ]; then
  show herbier
  exit
fi
if [ $# -gt 0 ]; then
  note=$1
else
  note="$build/exemple.rtf"
  [ -e "$note" ] || cp "$top/docs/exemple.rtf" "$note"
fi
show microedit --title "Notes" --frame "Remarques" --key microedit "$note"
