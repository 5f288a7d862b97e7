#!/usr/bin/env bash
# Makes mindloft.msi of a Windows build: make-msi.sh BUILD-FOLDER
set -euo pipefail
root=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/..
# wixl finds files by relative paths only.
build=$(realpath -s --relative-to="$root" "$1")
cd "$root"
version=$(sed -n 's/^project(mindloft VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

# A component per file that matches a pattern below resources; its GUID is made of the file's name, so that it stays the same
# from version to version.
components=
components_of() {
  local kind=$1 pattern=$2 file name id hash guid
  files=
  for file in "$build/bin/resources"/$pattern; do
    name=$(basename "$file")
    id=${kind}_$(tr -c 'A-Za-z0-9\n' _ <<<"$name")
    hash=$(printf 'mindloft %s' "$name" | md5sum | cut -c1-32 | tr a-f A-F)
    guid=${hash:0:8}-${hash:8:4}-4${hash:13:3}-8${hash:17:3}-${hash:20:12}
    files+="              <Component Id=\"$id\" Win64=\"yes\" Guid=\"$guid\"><File Id=\"File_$id\" Source=\"$file\" KeyPath=\"yes\"/></Component>"$'\n'
    components+="      <ComponentRef Id=\"$id\"/>"$'\n'
  done
}
components_of Language 'languages/*'
languages=$files
components_of Help 'help/*'
help=$files
components_of Sound '*.wav'
sounds=$files

awk -v languages="$languages" -v help="$help" -v sounds="$sounds" -v components="$components" '
  /@LANGUAGES@/ { printf "%s", languages; next }
  /@HELP@/ { printf "%s", help; next }
  /@SOUNDS@/ { printf "%s", sounds; next }
  /@COMPONENTS@/ { printf "%s", components; next }
  { print }' packaging/mindloft.wxs >"$build/mindloft.wxs"
wixl -a x64 -D VERSION="$version" -D BIN="$build/bin" -D SOURCE=. -o "$build/mindloft.msi" "$build/mindloft.wxs"
