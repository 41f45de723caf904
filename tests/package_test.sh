#!/usr/bin/env bash
# Installs the build into a folder of its own, builds the example host against it and runs it.
# usage: package_test.sh BUILD_FOLDER SOURCE_FOLDER
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data QT_QPA_PLATFORM=offscreen

cmake --install "$build" --prefix "$work/prefix" >/dev/null
cmake -S "$source/hosts/example" -B "$work/example" -G Ninja \
  -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/example" >/dev/null
answer=$("$work/example/example" --check 2>/dev/null)
[ "$answer" = "Lisière sur calcaire, alt. 420 m." ] || { echo "unexpected note: $answer"; exit 1; }
"$work/prefix/bin/lumenote" --version
