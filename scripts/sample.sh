#!/usr/bin/env bash
# Makes a sample directory, and settings that log in to it automatically, where there is none yet:
# sample.sh FOLDER [OPTION...]; the options are those of "mindloft-directory sample".
# Leaves FOLDER/sample.directory, FOLDER/sample.log with the administrator's password, and FOLDER/config for
# XDG_CONFIG_HOME.
set -euo pipefail
root=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/..
folder=$1
shift
[ ! -e "$folder/sample.directory" ] || exit 0
mkdir -p "$folder/config/mindloft"
chmod 700 "$folder"
"$root/build/linux/bin/mindloft-directory" sample "$folder/sample.directory" "$@" | tee "$folder/sample.log"
cat >"$folder/config/mindloft/registry" <<REGISTRY
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\\Software\\Ordwell\\Mindloft\\Settings]
"ConnectMode"="1"
"ConfigurationServer"="(local)"
"AutoLoginEnabled"="1"
"LoginUserName"="admin"
"LoginPassword"="$(sed -n 's/^password: //p' "$folder/sample.log" | tail -n 1)"
REGISTRY
chmod 600 "$folder/config/mindloft/registry" "$folder/sample.log"
