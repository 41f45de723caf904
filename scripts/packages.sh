# Sourced by run.sh, test.sh, test-windows.sh, packaging/windows.sh and .ci/run: installs the Debian
# packages that are missing.
# usage: ensure_packages PACKAGE...

ensure_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local root=()
  [ "$(id -u)" -eq 0 ] || root=(sudo)
  "${root[@]}" apt-get update -qq
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

BUILD_PACKAGES=(g++ cmake ninja-build qt6-base-dev libgl1-mesa-dev libxcb1-dev libhunspell-dev
  qt6-translations-l10n libqt6sql6-sqlite)
# Metric-compatible with the fonts that notes name.
FONT_PACKAGES=(fonts-liberation fonts-dejavu-core fontconfig)
# With abiword (15 MB) a real word processor takes part in the tests too; without it they skip that.
TEST_PACKAGES=(libgtest-dev python3 xvfb xauth openbox xdotool x11-utils procps
  dbus-daemon at-spi2-core python3-gi gir1.2-atspi-2.0 poppler-utils
  pkg-config libgtk-3-dev)
WINDOWS_PACKAGES=(cmake ninja-build g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix googletest)
WINE_PACKAGES=(wine64 wine)
PACKAGING_PACKAGES=(dpkg-dev file desktop-file-utils lintian)
CHECK_PACKAGES=(ccache clang clang-format clang-tidy libclang-rt-14-dev libbenchmark-dev doxygen)
