#!/usr/bin/env bash
# Installs what is missing, builds, and makes the Debian packages in build/package; their paths alone go
# to standard output.      usage: ./package.sh
set -euo pipefail
top=$(cd "$(dirname "$0")" && pwd)
. "$top/scripts/packages.sh"

ensure_packages "${BUILD_PACKAGES[@]}" "${PACKAGING_PACKAGES[@]}" >&2
build="$top/build/package"
export DEB_BUILD_MAINT_OPTIONS=hardening=+all
link=$(dpkg-buildflags --get LDFLAGS)
cmake -S "$top" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DLUMENOTE_TESTS=OFF \
  -DLUMENOTE_WERROR="${LUMENOTE_WERROR:-OFF}" \
  -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_EXE_LINKER_FLAGS="$link" -DCMAKE_SHARED_LINKER_FLAGS="$link" >&2
cmake --build "$build" >&2
rm -f "$build"/*.deb
(cd "$build" && cpack >&2)
# The system's own trigger does what cpack's scripts would do again.
library=$(ls "$build"/liblumenote0_*.deb)
dpkg-deb -R "$library" "$build/library"
rm "$build"/library/DEBIAN/post{inst,rm}
dpkg-deb --root-owner-group -b "$build/library" "$library" >&2
rm -r "$build/library"
ls "$build"/*.deb
