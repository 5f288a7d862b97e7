#!/usr/bin/env bash
# Builds the console and opens it, logged in, on a sample directory. Where there is no display it starts one and
# leaves a picture of the main window in build/console.png. Arguments go to the console (a tree node's name, ...).
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
scripts/packages.sh run
scripts/build.sh linux --target mindloft-console mindloft-directory resources

# The sample and the console's settings lie below build/, so that the user's own stay as they are.
home=$PWD/build/sample
scripts/sample.sh "$home"
export XDG_CONFIG_HOME=$home/config XDG_STATE_HOME=$home/state
console=(build/linux/bin/mindloft-console --directory "$home/sample.directory" "$@")
if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
  exec "${console[@]}"
fi
scripts/with-display.sh scripts/screenshot.sh build/console.png Mindloft "${console[@]}"
echo "There is no display here: the main window after login is in build/console.png"
