#!/usr/bin/env bash
# Checks the layout of all sources and runs the static checks: lint.sh [--format-only]
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
scripts/packages.sh lint
git ls-files -z -- '*.h' '*.cpp' | xargs -0 clang-format --dry-run -Werror
[ "${1-}" != --format-only ] || exit 0
cmake --preset linux >/dev/null
# Windows' sources need its headers; tests and fuzzers are checked by running them.
git ls-files -z -- '*.cpp' ':!:*/windows/*' ':!:bench/*' ':!:fuzz/*' ':!:tests/*' |
  xargs -0 -n 4 -P "$(nproc)" clang-tidy-16 -p build/linux --quiet --extra-arg=-Wno-unknown-warning-option --warnings-as-errors='*' 2>&1 |
  { grep -vE '^[0-9]+ warnings? generated|^$' || true; }
