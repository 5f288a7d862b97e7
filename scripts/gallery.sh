#!/usr/bin/env bash
# Builds and opens the page that shows every control of the console: gallery.sh [OPTION...]; --language 1025 shows it in
# that language. gallery.sh --pictures makes docs/controls-linux.png and docs/controls-windows.png of it instead.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
title="Mindloft controls"
export MINDLOFT_SCREEN=${MINDLOFT_SCREEN:-1280x1000x24}

# picture FILE PROGRAM...: on a display of its own, without the empty screen around the window.
picture() {
  local file=$1
  shift
  scripts/with-display.sh scripts/screenshot.sh "$file" "$title" "$@"
  mogrify -trim +repage -strip "$file"
}

if [ "${1-}" != --pictures ]; then
  scripts/packages.sh run
  scripts/build.sh linux --target mindloft-controls resources
  if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
    exec build/linux/bin/mindloft-controls "$@"
  fi
  picture build/controls.png build/linux/bin/mindloft-controls "$@"
  echo "There is no display here: the controls are in build/controls.png"
  exit 0
fi

scripts/packages.sh run windows
scripts/build.sh linux --target mindloft-controls resources
picture docs/controls-linux.png build/linux/bin/mindloft-controls

scripts/build.sh windows --target mindloft-controls resources
export WINEPREFIX=$PWD/build/windows/wine WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
trap 'wineserver -k >/dev/null 2>&1 || true' EXIT
[ -e "$WINEPREFIX/system.reg" ] || scripts/with-display.sh wineboot -i >/dev/null 2>&1
picture docs/controls-windows.png wine build/windows/bin/mindloft-controls.exe
