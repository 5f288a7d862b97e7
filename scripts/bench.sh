#!/usr/bin/env bash
# Measures speed and memory against their targets in a directory of 1,000,000 users: bench.sh
# bench.sh --small only sees that every benchmark runs, on a small directory, and judges nothing.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
scripts/packages.sh run
scripts/build.sh linux
users=1000000
small=
if [ "${1-}" = --small ]; then
  users=20000
  small=1
fi
bin=$PWD/build/linux/bin
work=$PWD/build/bench-$users
mkdir -p "$work"
failed=0
"$bin/directory-bench" "$work" "$users" || failed=1

# sample FOLDER USERS: a directory, and settings that log in to it.
sample() {
  [ -e "$1/sample.directory" ] && return
  mkdir -p "$1/config/mindloft"
  "$bin/mindloft-directory" sample "$1/sample.directory" --users "$2" >"$1/sample.log"
  cat >"$1/config/mindloft/registry" <<REGISTRY
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\\Software\\Ordwell\\Mindloft\\Settings]
"ConnectMode"="1"
"ConfigurationServer"="(local)"
"AutoLoginEnabled"="1"
"LoginUserName"="admin"
"LoginPassword"="$(sed -n 's/^password: //p' "$1/sample.log" | tail -n 1)"
REGISTRY
}
sample "$work/big" "$users"
sample "$work/hundred" 100
# Both have their own administrator's password: the console-bench takes each one's settings.
scripts/with-display.sh "$bin/console-bench" "$work/hundred" "$work/big" || failed=1
[ -n "$small" ] || exit "$failed"
