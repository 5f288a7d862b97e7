#!/usr/bin/env bash
# Runs a command on an X display of its own, with a window manager; ends both with it.
# with-display.sh COMMAND [ARGUMENT...]; MINDLOFT_SCREEN sets the screen (default 1280x960x24).
set -euo pipefail
folder=$(mktemp -d)
server=
manager=
finish() {
  if [ -n "$manager" ]; then kill "$manager" 2>/dev/null || true; wait "$manager" 2>/dev/null || true; fi
  if [ -n "$server" ]; then kill "$server" 2>/dev/null || true; wait "$server" 2>/dev/null || true; fi
  rm -rf "$folder"
}
trap finish EXIT
# Without -noreset the server starts anew when its only client goes: the first xprop below would take the window
# manager, which is just coming, with it.
Xvfb -displayfd 3 -screen 0 "${MINDLOFT_SCREEN:-1280x960x24}" -nolisten tcp -noreset 3>"$folder/number" 2>"$folder/log" &
server=$!
for _ in $(seq 200); do
  [ -s "$folder/number" ] && break
  kill -0 "$server" 2>/dev/null || break
  sleep 0.05
done
number=$(cat "$folder/number")
[ -n "$number" ] || { cat "$folder/log" >&2; echo "no X display could be started" >&2; exit 1; }
export DISPLAY=":$number"
openbox --sm-disable >/dev/null 2>&1 &
manager=$!
for _ in $(seq 300); do
  xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
  kill -0 "$manager" 2>/dev/null || { echo "the window manager ended" >&2; exit 1; }
  sleep 0.05
done
# There is no desktop here whose accessibility service could be asked.
export NO_AT_BRIDGE=1
"$@"
