#!/usr/bin/env bash
# Installs the build into a folder of its own, builds hosts against it and runs them.
# usage: package_test.sh BUILD_FOLDER SOURCE_FOLDER
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data QT_QPA_PLATFORM=offscreen

# compile SOURCE_FOLDER BUILD_FOLDER
compile() {
  cmake -S "$1" -B "$2" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
  cmake --build "$2" >"$work/log" || { cat "$work/log"; exit 1; }
}

cmake --install "$build" --prefix "$work/prefix" >/dev/null
compile "$source/hosts/examples/cpp" "$work/example"
answer=$("$work/example/example" --check 2>/dev/null)
[ "$answer" = "Lisière sur calcaire, alt. 420 m." ] || { echo "unexpected note: $answer"; exit 1; }

# Without Qt: each public header alone, a control on any platform, a note without a window.
mkdir "$work/host"
cat >"$work/host/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.25)
project(Host LANGUAGES CXX)
find_package(Lumenote REQUIRED COMPONENTS Headless Posix)
file(GLOB sources *.cpp)
add_executable(host ${sources})
target_link_libraries(host PRIVATE Lumenote::Headless Lumenote::Posix)
END
(cd "$work/prefix/include" && find . -name '*.h' ! -name QtCoBxRtf.h) | while read -r header; do
  echo "#include <${header#./}>" >"$work/host/$(basename "$header").cpp"
done
cat >>"$work/host/CoBxRtf.h.cpp" <<'END'
void Edit(lumenote::Platform& platform) { lumenote::CoBxRtf(platform).ShowMicroEdit(1); }
END
cat >>"$work/host/Note.h.cpp" <<'END'
int main() { return lumenote::Note("{\\rtf1 note}").Text() == u"note" ? 0 : 1; }
END
compile "$work/host" "$work/host/build"
"$work/host/build/host"

# In C, by pkg-config: the example, and a note without a window.
PKG_CONFIG_PATH=$(dirname "$(find "$work/prefix" -name lumenote.pc)")
export PKG_CONFIG_PATH
cc "$source/hosts/examples/c/main.c" -o "$work/c_host" $(pkg-config --cflags --libs lumenote-qt)
cat >"$work/convert.c" <<'END'
#include <lumenote/lumenote.h>
#include <string.h>
int main(void) { return strcmp(lumenote_convert("{\\rtf1 note}", 12, "rtf", "text", NULL), "note"); }
END
cc "$work/convert.c" -o "$work/convert" $(pkg-config --cflags --libs lumenote)
LD_LIBRARY_PATH=$(pkg-config --variable=libdir lumenote) "$work/convert"

"$work/prefix/bin/lumenote" --version

cmake --build "$build" --target uninstall >/dev/null
left=$(find "$work/prefix" ! -type d)
[ -z "$left" ] || { echo "not uninstalled: $left"; exit 1; }
