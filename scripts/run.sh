#!/usr/bin/env bash
# Builds the console and opens it, logged in, on a sample directory. Where there is no display it starts one and
# leaves a picture of the main window in build/console.png. Arguments go to the console (a tree node's name, ...).
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
scripts/packages.sh run
scripts/build.sh linux --target mindloft-console mindloft-directory resources

# The sample and the console's settings lie below build/, so that the user's own stay as they are.
home=$PWD/build/sample
directory=$home/sample.directory
if [ ! -e "$directory" ]; then
  mkdir -p "$home/config/mindloft"
  chmod 700 "$home"
  build/linux/bin/mindloft-directory sample "$directory" | tee "$home/sample.log"
  password=$(sed -n 's/^password: //p' "$home/sample.log" | tail -n 1)
  cat >"$home/config/mindloft/registry" <<REGISTRY
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\\Software\\Ordwell\\Mindloft\\Settings]
"ConnectMode"="1"
"ConfigurationServer"="(local)"
"AutoLoginEnabled"="1"
"LoginUserName"="admin"
"LoginPassword"="$password"
REGISTRY
  chmod 600 "$home/config/mindloft/registry" "$home/sample.log"
fi
export XDG_CONFIG_HOME=$home/config XDG_STATE_HOME=$home/state
console=(build/linux/bin/mindloft-console --directory "$directory" "$@")
if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
  exec "${console[@]}"
fi
scripts/with-display.sh scripts/screenshot.sh build/console.png Mindloft "${console[@]}"
echo "There is no display here: the main window after login is in build/console.png"
