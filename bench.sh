#!/usr/bin/env bash
# Installs what is missing, builds, and prints what editing costs: ours, the barest way to do the same
# work, and other editors (docs/speed.md explains the table).      usage: ./bench.sh [--short]
set -euo pipefail
top=$(cd "$(dirname "$0")" && pwd)
. "$top/scripts/packages.sh"

ensure_packages "${BUILD_PACKAGES[@]}" "${FONT_PACKAGES[@]}" libbenchmark-dev
build="$top/build/test"
cmake -S "$top" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DLUMENOTE_BENCH=ON >/dev/null
cmake --build "$build" --target bench_speed >/dev/null
sizes=(30000 1000000 10000000)
[ "${1:-}" != --short ] || sizes=(30000 100000)
exec "$build/bench/bench_speed" "${sizes[@]}"
