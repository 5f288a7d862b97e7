#!/usr/bin/env bash
# Starts a program on the present display, waits until its window is drawn, takes a picture of the screen and ends it:
# screenshot.sh PICTURE WINDOW-TITLE COMMAND [ARGUMENT...]
set -euo pipefail
picture=$1
title=$2
shift 2
"$@" &
program=$!
trap 'kill "$program" 2>/dev/null || true' EXIT
for _ in $(seq 150); do
  xdotool search --onlyvisible --name "$title" >/dev/null 2>&1 && break
  kill -0 "$program" 2>/dev/null || { echo "screenshot.sh: the program ended before its window came" >&2; exit 1; }
  sleep 0.2
done
# Drawn means: two pictures in a row are the same.
before=
for _ in $(seq 30); do
  sleep 0.4
  import -window root "$picture"
  now=$(sha256sum <"$picture")
  [ "$now" != "$before" ] || exit 0
  before=$now
done
