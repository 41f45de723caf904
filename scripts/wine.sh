# Sourced by test-windows.sh and by the tests it runs: wine with a prefix of its own, silent.

# usage: start_wine PREFIX [DRIVER]   without an X server; with the driver x11 on the one of DISPLAY
start_wine() {
  local name driver=${2:-null}
  # File names are UTF-8 only where the locale says so.
  export WINEPREFIX=$1 WINEDEBUG=-all LC_ALL=C.UTF-8
  # No installers of other run-times, no debugger's box, no entries in the user's menus.
  export WINEDLLOVERRIDES='mscoree,mshtml=;winedbg.exe=d;winemenubuilder.exe=d'
  unset WAYLAND_DISPLAY
  [ "$driver" = x11 ] || unset DISPLAY
  mkdir -p "$WINEPREFIX"
  # In memory, where that can be: the tests make thousands of files.
  WINE_TEMPORARY=$(mktemp -d /dev/shm/wine-XXXXXX 2>/dev/null || mktemp -d)
  {
    wine wineboot --init
    wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d "$driver" /f
    for name in TEMP TMP; do
      wine reg add 'HKCU\Environment' /v $name /d "Z:${WINE_TEMPORARY//\//\\}" /f
    done
    # Only a new start takes the driver; without it no window can be made.
    wineserver -k
    wineserver -w
  } >"$WINEPREFIX/start.log" 2>&1 </dev/null
  # A server and services that a later command starts would keep that command's output open.
  wineserver -p >/dev/null 2>&1 </dev/null
  wine wineboot >/dev/null 2>&1 </dev/null
}

stop_wine() {
  wineserver -k >/dev/null 2>&1 </dev/null || true
  [ -z "${WINE_TEMPORARY:-}" ] || rm -rf "$WINE_TEMPORARY"
}

# usage: run_wine OUTPUT SECONDS COMMAND...   its output in that file: a program that wine starts would
# keep a pipe open
run_wine() {
  local output=$1 seconds=$2
  shift 2
  timeout "$seconds" wine "$@" >"$output" 2>&1 </dev/null
}

# For tests with a folder $work of their own.

# usage: run COMMAND...   its output in $work/out
run() { run_wine "$work/out" 300 "$@"; }

# usage: fail MESSAGE   ends the test with what the last command printed
fail() {
  echo "FAIL: $1"
  cat "$work/out" 2>/dev/null || true
  exit 1
}

# usage: windows PATH   its drive-letter path
windows() { echo "Z:${1//\//\\}"; }
