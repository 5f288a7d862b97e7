#!/usr/bin/env bash
# Configures and builds one preset: build.sh PRESET [--target NAME ...]
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."
preset=$1
shift
options=()
if command -v ccache >/dev/null; then
  # Clones and build folders share what was compiled.
  export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
  options+=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
if [ "$preset" = windows ]; then
  libs=$(scripts/windows-libs.sh)
  options+=("-DMINDLOFT_WINDOWS_LIBS=$libs")
fi
cmake --preset "$preset" "${options[@]}" >/dev/null
cmake --build --preset "$preset" "$@"
