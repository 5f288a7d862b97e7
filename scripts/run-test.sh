#!/usr/bin/env bash
# Runs one test program: run-test.sh [--printer] [--display] PROGRAM [ARGUMENT...]
# With --display it gets an X display and a window manager of its own, with --printer a print server. A Windows program runs under Wine, in the
# prefix that WINEPREFIX names.
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
printer=()
if [ "${1-}" = --printer ]; then
  printer=("$here/with-printer.sh")
  shift
fi
display=
if [ "${1-}" = --display ]; then
  display=1
  shift
fi
program=$1
shift
command=("$program" "$@")
case $program in
*.exe)
  display=1
  export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree=;mshtml=;winemenubuilder.exe=}"
  command=(wine "$program" "$@")
  ;;
esac
export LANG=C.UTF-8 LC_ALL=C.UTF-8 GTK_MODULES= NO_AT_BRIDGE=1 GDK_BACKEND=x11
export LSAN_OPTIONS="suppressions=$here/../tests/support/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS=print_stacktrace=1
if [ -n "$display" ] && [ -z "${MINDLOFT_SHARED_DISPLAY-}" ]; then
  command=("$here/with-display.sh" "${command[@]}")
fi
exec "${printer[@]}" "${command[@]}"
