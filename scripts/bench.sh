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
scripts/with-display.sh "$bin/richtext-bench" $([ -z "$small" ] || echo 20) || failed=1

scripts/sample.sh "$work/big" --users "$users"
scripts/sample.sh "$work/hundred" --users 100
# Both have their own administrator's password: the console-bench takes each one's settings.
scripts/with-display.sh "$bin/console-bench" "$work/hundred" "$work/big" || failed=1
scripts/sample.sh "$work/domains" --users "$users" --domains 1000
scripts/with-display.sh "$bin/editors-bench" "$work/domains" || failed=1
[ -n "$small" ] || exit "$failed"
