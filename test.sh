#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test without a display.
# usage: ./test.sh [CTEST OPTION...]
set -euo pipefail
top=$(cd "$(dirname "$0")" && pwd)
. "$top/scripts/packages.sh"

ensure_packages "${BUILD_PACKAGES[@]}" "${FONT_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
build="$top/build/test"
cmake -S "$top" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build"
exec ctest --test-dir "$build" --output-on-failure -j "$(nproc)" "$@"
