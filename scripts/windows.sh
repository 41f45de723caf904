# Sourced by test-windows.sh and packaging/windows.sh, which set `top`.

# usage: build_windows WIDTH TARGET...   (x64, x86) builds them in build/windows-WIDTH; what has 32 bits
# runs nowhere here, so it has no tests. With LUMENOTE_WERROR=ON warnings are errors.
build_windows() {
  local width=$1 tests=ON
  shift
  [ "$width" = x64 ] || tests=OFF
  cmake -S "$top" -B "$top/build/windows-$width" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DLUMENOTE_QT=OFF -DLUMENOTE_TESTS=$tests -DLUMENOTE_WERROR="${LUMENOTE_WERROR:-OFF}" \
    -DCMAKE_TOOLCHAIN_FILE="$top/cmake/toolchains/windows-$width.cmake" >/dev/null
  cmake --build "$top/build/windows-$width" --target "$@" -- --quiet
}
