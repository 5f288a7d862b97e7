#!/usr/bin/env bash
# Builds the native programs with sanitizers and runs the whole suite. Arguments go to ctest (-R core, -V, ...).
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
scripts/packages.sh test
scripts/build.sh linux-asan
ctest --preset linux-asan -j "$(nproc)" "$@"
