#!/usr/bin/env bash
# Cross-builds the Windows programs (their libraries once, see windows-libs.sh), makes the MSI and runs the same suite
# under Wine. Arguments go to ctest. MINDLOFT_WINE_LANGUAGE=2052 (or another code) writes the windows in a font of that
# language's script, see wine-font.sh.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
scripts/packages.sh windows
scripts/build.sh windows
packaging/make-msi.sh build/windows

# A Wine home of the build's own. All of its programs share one display, as they share one desktop.
export WINEPREFIX=$PWD/build/windows/wine WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
end_wine() { wineserver -k >/dev/null 2>&1 || true; }
trap end_wine EXIT
scripts/with-display.sh bash -c '
  [ -e "$WINEPREFIX/system.reg" ] || wineboot -i >/dev/null 2>&1
  [ -z "${MINDLOFT_WINE_LANGUAGE-}" ] || scripts/wine-font.sh "$MINDLOFT_WINE_LANGUAGE"
  wineserver -w
  MINDLOFT_SHARED_DISPLAY=1 ctest --preset windows "$@"' windows.sh "$@"
