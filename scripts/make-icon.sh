#!/usr/bin/env bash
# Draws app/windows/app.ico anew from resources/images/app.svg. The result is committed, so that only whoever changes
# the drawing needs rsvg-convert (librsvg2-bin) and icotool (icoutils).
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
pictures=()
for size in 16 24 32 48 64; do
  rsvg-convert --width "$size" --height "$size" --output "$folder/$size.png" "$root/resources/images/app.svg"
  pictures+=("$folder/$size.png")
done
rsvg-convert --width 256 --height 256 --output "$folder/256.png" "$root/resources/images/app.svg"
icotool --create --output "$root/app/windows/app.ico" "${pictures[@]}" --raw="$folder/256.png"
