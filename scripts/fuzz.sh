#!/usr/bin/env bash
# Builds the fuzzers and runs each for a time: fuzz.sh [SECONDS] [NAME...]; a minute each without one.
# A finding is left in build/linux-fuzz/findings and ends the run. What the fuzzers have learnt is kept in
# build/linux-fuzz/corpus and starts the next run.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
seconds=${1:-60}
shift || true
names=("$@")
[ ${#names[@]} -gt 0 ] || mapfile -t names < <(ls fuzz/corpus)
scripts/packages.sh fuzz
scripts/build.sh linux-fuzz
export LSAN_OPTIONS="suppressions=$PWD/tests/support/lsan.supp:print_suppressions=0" UBSAN_OPTIONS=print_stacktrace=1
work=$PWD/build/linux-fuzz
for name in "${names[@]}"; do
  echo "== $name, $seconds s"
  mkdir -p "$work/corpus/$name" "$work/findings"
  if ! "$work/bin/fuzz-$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="$work/findings/$name-" "$work/corpus/$name" "fuzz/corpus/$name" >"$work/$name.log" 2>&1; then
    tail -n 60 "$work/$name.log" >&2
    echo "fuzz.sh: $name has a finding" >&2
    exit 1
  fi
  grep number_of_executed_units "$work/$name.log"
done
