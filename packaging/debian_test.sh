#!/usr/bin/env bash
# Makes the Debian packages, checks them, installs them into a system that has nothing else, and runs
# from there what they bring.      usage: packaging/debian_test.sh
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
. "$top/scripts/packages.sh"
ensure_packages "${PACKAGING_PACKAGES[@]}" mmdebstrap

mapfile -t packages < <("$top/package.sh")
desktop-file-validate "$top/packaging/debian/microedit.desktop"
# The maintainers have no address that they could be written to.
lintian --allow-root --fail-on error,warning \
  --suppress-tags malformed-contact,bogus-mail-host-in-debian-changelog "${packages[@]}"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cat >"$work/try" <<'END'
set -eux
apt-get install -y -qq --no-install-recommends /try/*.deb gcc libc6-dev pkg-config >/dev/null
cd /try
microedit --version
lumenote text exemple.rtf | grep -q 'Orchis purpurea'
microedit --pdf exemple.pdf exemple.rtf
[ "$(head -c 4 exemple.pdf)" = %PDF ]
QT_QPA_PLATFORM=offscreen microedit --capture window.png exemple.rtf
[ "$(head -c 4 window.png | tail -c 3)" = PNG ]
microedit exemple.rtf 2>&1 | grep -q "Pas d'écran"
cc main.c -o host $(pkg-config --cflags --libs lumenote-qt)
./host exemple.rtf 2>&1 | grep -q "Pas d'écran"
apt-get purge -y -qq lumenote liblumenote0 >/dev/null
[ -z "$(find /usr -name '*lumenote*' -o -name '*microedit*')" ]
END
mmdebstrap --quiet --variant=apt \
  --customize-hook="mkdir \"\$1/try\"; cp $(printf '%q ' "${packages[@]}" "$top/docs/exemple.rtf" \
    "$top/hosts/examples/c/main.c" "$work/try") \"\$1/try\"" \
  --customize-hook='chroot "$1" env -u DISPLAY -u WAYLAND_DISPLAY LC_ALL=C.UTF-8 sh /try/try' \
  bookworm /dev/null
echo "The packages hold."
